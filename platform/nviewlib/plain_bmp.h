// Decodes the Windows bitmap files that the program itself writes: 24 bits a pixel, not compressed,
// the lowest line first. All other bitmap files are left to the system's decoder, which takes five
// times as long for these. The format is described under "Bitmap Storage" in the Windows SDK.
#pragma once

#include <cstdint>
#include <span>

#include "platform/nviewlib/raster.h"

namespace nviewlib {

// Whether `file` is such an image, whole, and was decoded.
[[nodiscard]] bool DecodePlainBmp(std::span<const std::uint8_t> file, const RasterMaker& make);

}  // namespace nviewlib
