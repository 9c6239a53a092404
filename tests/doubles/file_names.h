// What Windows makes of paths and names, for the in-memory file system.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/result.h"

namespace zentar {

// A key that is the same for names which Windows takes for one name: case does not count in ASCII,
// Latin, Greek and Cyrillic letters.
std::string FoldName(std::string_view name);

// Whether Windows can hold a file or folder of this name: no device name, no trailing dot or blank,
// none of the characters that mean something in paths, at most 255 UTF-16 units, proper UTF-8.
bool IsPossibleName(std::string_view name);

struct PathParts {
    std::string root;  // "C:" or "\\server\share", as written
    std::vector<std::string> names;
    bool endsInBackslash = false;
};

// Splits an absolute path, slashes turned, "." and ".." resolved. A path that is not absolute gives
// NotFound, one with an impossible name BadName.
Result<PathParts> SplitPath(std::string_view written);

}  // namespace zentar
