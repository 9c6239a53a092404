// What stands before the pixels of a PCX file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "platform/nviewlib/colour.h"
#include "platform/nviewlib/raster.h"

namespace nviewlib {

inline constexpr std::size_t kPcxHeaderBytes = 128;

struct PcxHeader {
    ImageSize size;
    bool runLength = false;
    unsigned bits = 8;  // of a pixel in one plane
    unsigned planes = 1;
    std::size_t planeBytes = 0;  // of one line in one plane
    std::array<Colour, 16> palette{};

    std::size_t LineBytes() const { return planeBytes * planes; }
};

// None when `file` is no PCX file of a kind that can be shown.
std::optional<PcxHeader> ReadPcxHeader(std::span<const std::uint8_t> file);

}  // namespace nviewlib
