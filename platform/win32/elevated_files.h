// Operations on files that need an administrator's rights, for which the system itself asks.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "platform/result.h"

namespace zentar {

// As Shell::CopyElevated and Shell::DeleteElevated say; the owner is the window over which the
// system asks. COM must be there.
Status CopyAsAdministrator(const std::string& from, const std::string& to, HWND owner);
Status DeleteAsAdministrator(const std::vector<std::string>& paths, HWND owner);

}  // namespace zentar
