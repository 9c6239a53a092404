// Which demos a folder holds, and which of them the filter lets through.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace zentar {

struct DemoFilter {
    bool showAll = true;
    std::string phrase = {};  // bytes, compared exactly; an empty phrase lets every demo through
    bool contain = true;      // list the demos that contain the phrase, else those that do not
};

struct DemoListing {
    std::vector<std::string> entries;  // as the list shows them, in alphabetical order
    std::uint64_t total = 0;           // demos in the folder, listed or not
};

// `folder` ends in a backslash; one that cannot be read holds no demos. A demo whose content cannot
// be read does not pass a filter, whichever way it asks.
DemoListing ListDemos(FileSystem& files, const std::string& folder, std::string_view extension,
                      const DemoFilter& filter);

}  // namespace zentar
