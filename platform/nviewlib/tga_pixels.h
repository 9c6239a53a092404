// The pixels of a TGA file, one type for each way in which one is written: how many bytes it takes,
// and its colour.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/nviewlib/byte_reader.h"
#include "platform/nviewlib/colour.h"

namespace nviewlib {

struct TgaGrey8 {
    static constexpr std::size_t kBytes = 1;
    Colour operator()(const std::uint8_t* at) const { return {at[0], at[0], at[0]}; }
};

struct TgaGrey16 {
    static constexpr std::size_t kBytes = 2;
    Colour operator()(const std::uint8_t* at) const { return {at[0], at[0], at[0]}; }
};

// Five bits of each colour, stretched so that none stays none and all becomes all.
struct TgaColour16 {
    static constexpr std::size_t kBytes = 2;
    Colour operator()(const std::uint8_t* at) const {
        const unsigned bits = WordAt({at, kBytes}, 0);
        return {Stretch(bits), Stretch(bits >> 5U), Stretch(bits >> 10U)};
    }
    static std::uint8_t Stretch(unsigned bits) {
        return static_cast<std::uint8_t>((bits & 31U) * 255 / 31);
    }
};

struct TgaColour24 {
    static constexpr std::size_t kBytes = 3;
    Colour operator()(const std::uint8_t* at) const { return {at[0], at[1], at[2]}; }
};

struct TgaColour32 {
    static constexpr std::size_t kBytes = 4;
    Colour operator()(const std::uint8_t* at) const {
        Colour colour;
        std::memcpy(&colour, at, sizeof colour);
        return colour;
    }
};

// The table has a colour for each index that can be written.
struct TgaIndex8 {
    static constexpr std::size_t kBytes = 1;
    const Colour* table;
    Colour operator()(const std::uint8_t* at) const { return table[at[0]]; }
};

struct TgaIndex16 {
    static constexpr std::size_t kBytes = 2;
    const Colour* table;
    Colour operator()(const std::uint8_t* at) const { return table[WordAt({at, kBytes}, 0)]; }
};

// Writes `count` pixels that stand one behind the other in the file.
template <class Pixel>
inline void Convert(Pixel pixel, const std::uint8_t* from, std::size_t count, std::uint8_t* to) {
    PutPixels(to, count, [=](std::size_t i) { return pixel(from + (i * Pixel::kBytes)); });
}

// These stand in the file as they stand in the raster.
inline void Convert(TgaColour24 /*pixel*/, const std::uint8_t* from, std::size_t count,
                    std::uint8_t* to) {
    std::memcpy(to, from, count * TgaColour24::kBytes);
}

}  // namespace nviewlib
