// What stands before the pixels of a TGA file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "platform/nviewlib/raster.h"

namespace nviewlib {

// How one pixel is written in the file.
enum class TgaPixel : std::uint8_t {
    Grey8,
    Grey16,    // grey, then alpha
    Colour16,  // or 15 bits, which are the same without the bit of alpha
    Colour24,
    Colour32,
    Index8,
    Index16,
};

struct TgaColourMap {
    std::size_t at = 0;
    std::size_t first = 0;  // the index that the first entry is the colour of
    std::size_t length = 0;
    TgaPixel entry = TgaPixel::Colour24;
};

struct TgaHeader {
    ImageSize size;
    TgaPixel pixel = TgaPixel::Colour24;
    bool runLength = false;
    bool fromTop = false;
    bool fromRight = false;
    TgaColourMap map;
    std::size_t pixelsAt = 0;
};

std::size_t BytesOf(TgaPixel pixel);

// None when `file` is no TGA file of a kind that can be shown, or ends before its pixels begin.
std::optional<TgaHeader> ReadTgaHeader(std::span<const std::uint8_t> file);

}  // namespace nviewlib
