// What stands before the pixels of a Windows bitmap file (BITMAPFILEHEADER, then BITMAPCOREHEADER
// or BITMAPINFOHEADER or one of its longer forms).
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace nviewlib {

struct BmpHeader {
    std::int64_t pixelsAt = 0;
    std::int64_t infoBytes = 0;  // of the second header
    std::int64_t width = 0;
    std::int64_t height = 0;  // the lines of a negative one stand top down
    int bits = 0;             // per pixel
    std::int64_t compression = 0;
};

// Nothing when the file is no bitmap, or says a size that no image has.
std::optional<BmpHeader> ReadBmpHeader(std::span<const std::uint8_t> file);

}  // namespace nviewlib
