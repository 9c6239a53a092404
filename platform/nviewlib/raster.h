// Where a decoder puts the pixels of an image.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace nviewlib {

struct ImageSize {
    int width = 0;
    int height = 0;
    bool operator==(const ImageSize&) const = default;
};

// Lines of pixels, three bytes each: blue, green, red. `top` is the first byte of the top line, and
// each line stands `pitch` bytes behind the one above it; the pitch is negative where the lines
// stand bottom up in memory. Its size in bytes is at least three times the width.
struct Raster {
    std::uint8_t* top = nullptr;
    std::ptrdiff_t pitch = 0;
};

// Makes room for an image of a size; a raster without `top` says that there is none. A decoder asks
// once, and only when the file is long enough to hold an image of that size.
using RasterMaker = std::function<Raster(ImageSize)>;

// More pixels than this are not decoded, whatever the file says, so that none takes the memory of
// the whole machine. A picture of an 8K screen has 33 million.
inline constexpr std::int64_t kMostPixels = 40'000'000;

}  // namespace nviewlib
