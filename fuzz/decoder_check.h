// What holds for a decoder whatever the bytes are.
#pragma once

#include <cstdint>
#include <span>

#include "tests/unit/nviewlib/canvas.h"

namespace zentar::fuzz {

// Aborts unless the decoder asks for at most one raster of a sound size, writes nothing beside it,
// and draws the same into lines that stand top down and bottom up, all of their pixels.
void CheckDecoder(nviewlib::testing::Decoder decoder, std::span<const std::uint8_t> file);

}  // namespace zentar::fuzz
