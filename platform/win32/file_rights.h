// Who may do what with a file: its access control list.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace zentar {

// A security descriptor in Windows' own form; empty when there is none, or it cannot be read.
using FileRights = std::vector<std::byte>;

FileRights RightsOf(const std::wstring& nativePath);

// As far as the system allows; else the file keeps the rights that it has.
void SetRights(const std::wstring& nativePath, FileRights rights);

}  // namespace zentar
