// Reading whole files.
#pragma once

#include <cstdint>
#include <string>

#include "platform/file_system.h"

namespace zentar {

// A file's bytes. A file longer than `most` is not read, and gives NoSpace.
Result<std::string> ReadWholeFile(FileSystem& files, const std::string& path, std::uint64_t most);

}  // namespace zentar
