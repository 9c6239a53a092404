// Replacing a file so that a full disk, a kill or a power cut leaves the old file or the new one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace zentar {

enum class Durability : std::uint8_t {
    Flushed,  // on the disk before it takes the old file's place
    Cached,   // for what the program can make again: after a power cut the file may be empty
};

// Writes `bytes` whole under a temporary name in the same folder (the path and ".new"), flushes and
// checks it, and puts it in the place of `path` in one step. On failure `path` is untouched and the
// temporary file is gone, as far as the disk still allows.
Status ReplaceFileContents(FileSystem& files, const std::string& path, std::string_view bytes,
                           Durability durability = Durability::Flushed);

}  // namespace zentar
