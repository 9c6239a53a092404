// Looking for files, and reading whole ones.
#pragma once

#include <cstdint>
#include <string>

#include "platform/file_system.h"

namespace zentar {

// Whether a file, and no folder, stands there.
bool FileExists(FileSystem& files, const std::string& path);

// A file's bytes. A file longer than `most` is not read, and gives NoSpace.
Result<std::string> ReadWholeFile(FileSystem& files, const std::string& path, std::uint64_t most);

}  // namespace zentar
