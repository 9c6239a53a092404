// Names that the user gives to files.
#pragma once

#include <string_view>

#include "platform/window_services.h"

namespace zentar {

// Whether a name is free of the nine characters that no file name may hold; tells the user of each
// one that it holds.
[[nodiscard]] bool ValidateFileName(WindowServices& windows, std::string_view name);

// "C:\Games\duel.dm2" as "C:\Games\" and "duel.dm2".
std::string_view FolderOf(std::string_view path);
std::string_view FileNameOf(std::string_view path);

}  // namespace zentar
