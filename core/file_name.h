// Names that the user gives to files.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/window_services.h"

namespace zentar {

// The longest name that a file may have, in bytes of UTF-8; Windows counts differently, but none
// that is longer can be one.
inline constexpr std::size_t kLongestFileName = 3 * 255;

// Whether a name holds one of the nine characters that no file name may hold.
bool HoldsIllegalCharacter(std::string_view name);

// Whether a name is free of the nine characters that no file name may hold; tells the user of each
// one that it holds.
[[nodiscard]] bool ValidateFileName(WindowServices& windows, std::string_view name);

// "C:\Games\duel.dm2" as "C:\Games\" and "duel.dm2".
std::string_view FolderOf(std::string_view path);
std::string_view FileNameOf(std::string_view path);
// The file name without its last four characters: those of an extension such as ".ini".
std::string_view StemOf(std::string_view path);

// What tells the drives of two paths apart: "c:", or "\\server\share" of a folder of the network,
// in lower case.
std::string DriveOf(std::string_view path);

}  // namespace zentar
