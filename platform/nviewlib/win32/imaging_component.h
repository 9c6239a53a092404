// Decodes pictures by way of the Windows Imaging Component: the codecs that come with the system.
#pragma once

#include <cstdint>
#include <span>

#include "platform/nviewlib/raster.h"

namespace nviewlib {

// Decodes a JPG, BMP or GIF file's bytes, of several images the first. False when they are none, or
// take more than one file may. Orientation and colour profiles are not looked at. When false, the
// raster, if one was asked for, holds part of an image.
[[nodiscard]] bool DecodeBySystem(std::span<const std::uint8_t> file, const RasterMaker& make);

}  // namespace nviewlib
