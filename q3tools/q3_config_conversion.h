// Quake 3's configuration in a form that every text editor shows line by line.
#pragma once

#include <string>

#include "platform/file_system.h"

namespace zentar {

// Whether it has that form already.
Result<bool> IsConfigConverted(FileSystem& files, const std::string& path);

// Rewrites a file that has it not, which is for the caller to know: its first line, which is the
// game's own, becomes the program's, and each line ends in CR LF; a last line without an end is
// dropped. A read-only file becomes writable. Meanwhile the new one stands beside the old one, as
// "q3config.cfg-".
Status ConvertConfig(FileSystem& files, const std::string& path);

// Where a drive cannot put one file in another's place in one step, a power cut there can leave the
// new configuration under its temporary name alone: if it is whole, it takes its own name.
void RecoverConfig(FileSystem& files, const std::string& path);

}  // namespace zentar
