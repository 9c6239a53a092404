// Decodes ZSoft PCX files: 1, 2, 4 or 8 bits a pixel and plane, one to four planes, with the
// palette of the header or the one of 256 colours at the end, and 24 bit images of three planes.
// The format is described in "ZSoft PCX File Format Technical Reference Manual".
#pragma once

#include <cstdint>
#include <span>

#include "platform/nviewlib/raster.h"

namespace nviewlib {

// Whether `file` is an image, whole, and was decoded. When not, the raster, if one was asked for,
// holds part of an image. Without its palette an image of 256 colours is not whole.
[[nodiscard]] bool DecodePcx(std::span<const std::uint8_t> file, const RasterMaker& make);

}  // namespace nviewlib
