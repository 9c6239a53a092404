// Colours on their way into a raster.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace nviewlib {

// The fourth byte makes it a word, which is moved faster than three bytes are.
struct Colour {
    std::uint8_t blue = 0;
    std::uint8_t green = 0;
    std::uint8_t red = 0;
    std::uint8_t unused = 0;
};

inline constexpr std::size_t kPixelBytes = 3;

// Writes `count` pixels from `to` on, where `colourOf(i)` gives the i-th. Each pixel but the last
// is written as a word, whose fourth byte the next pixel overwrites.
template <class ColourOf>
inline void PutPixels(std::uint8_t* to, std::size_t count, ColourOf colourOf) {
    if (count == 0) {
        return;
    }
    for (std::size_t i = 0; i + 1 < count; ++i) {
        const Colour colour = colourOf(i);
        std::memcpy(to, &colour, sizeof colour);
        to += kPixelBytes;
    }
    const Colour last = colourOf(count - 1);
    std::memcpy(to, &last, kPixelBytes);
}

}  // namespace nviewlib
