// What the screenshot list shows of a folder.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace zentar {

struct ShotListing {
    // File names as stored, in alphabetical order; those with a preview image that is not empty
    // have the marker behind them.
    std::vector<std::string> entries;
    std::uint32_t tga = 0;
    std::uint32_t jpg = 0;
    std::uint32_t pcx = 0;
};

// The screenshots of a folder, which ends in a backslash; none when it cannot be read.
ShotListing ListShots(FileSystem& files, const std::string& folder);

// "Total: 3  (tga=1,  jpg=2,  pcx=0)."
std::string CountText(const ShotListing& listing);

}  // namespace zentar
