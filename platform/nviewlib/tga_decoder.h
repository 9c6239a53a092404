// Decodes Truevision TGA files: types 1, 2, 3 and their run-length coded forms 9, 10, 11, with 8,
// 15, 16, 24 or 32 bits a pixel, from any of the four corners. The format is described in
// "Truevision TGA File Format Specification 2.0".
#pragma once

#include <cstdint>
#include <span>

#include "platform/nviewlib/raster.h"

namespace nviewlib {

// Whether `file` is an image, whole, and was decoded. When not, the raster, if one was asked for,
// holds part of an image. Attribute bits (alpha) are not used: games leave them at any value.
// Indexes outside of the colour map are black.
[[nodiscard]] bool DecodeTga(std::span<const std::uint8_t> file, const RasterMaker& make);

}  // namespace nviewlib
