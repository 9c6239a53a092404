// Copying a file without ever leaving half of one under the name of a whole one.
#pragma once

#include <cstdint>
#include <string>

#include "platform/file_system.h"

namespace zentar {

enum class CopyOutcome : std::uint8_t {
    Whole,    // the target is the copy, checked
    Missing,  // there is no copy; what stood under the target's name before is still there
    Partial,  // a copy of another length came out, and has been deleted; the same holds
    Exists,   // something stands under the target's name and was not to be replaced
};

enum class Existing : std::uint8_t { Keep, Replace };

// Copies a file of the given length. The copy is made under a name of the program's own in the
// target's folder, checked, and only then gets the target's name.
CopyOutcome CopyFileWhole(FileSystem& files, const std::string& from, const std::string& to,
                          std::uint64_t length, Existing existing);

// Whether a file's content has come through to the disk, so that it outlives a power cut. A
// read-only file cannot be opened for this, and is left to the system.
bool IsOnDisk(FileSystem& files, const std::string& path, bool readOnly);

// Whether two files hold the same bytes.
Result<bool> HoldSameBytes(FileSystem& files, const std::string& one, const std::string& other);

}  // namespace zentar
