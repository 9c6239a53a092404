// Images in other sizes.
//
// The program's own way, for Windows' is good only on Windows itself: Wine's leaves pixels out,
// which looks ragged, whatever filter it is asked for.
#pragma once

#include "platform/nviewlib/raster.h"

namespace nviewlib {

// The whole image in the other size; neither has a side of 0. Where it gets smaller each pixel is
// the mean of those that it covers; where it gets larger the colours run smoothly into each other.
// Throws std::bad_alloc.
void Scale(const Raster& from, ImageSize fromSize, const Raster& to, ImageSize toSize);

}  // namespace nviewlib
