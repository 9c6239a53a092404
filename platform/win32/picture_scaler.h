// Pictures in other sizes.
//
// The program's own way, for Windows' is good only on Windows itself: Wine's leaves pixels out,
// which looks ragged, whatever filter it is asked for.
#pragma once

#include <memory>

#include "platform/win32/win32_bitmap.h"

namespace zentar {

// The whole picture in that size. Where it gets smaller each pixel is the mean of those that it
// covers; where it gets larger the colours run smoothly into each other. Null when memory is short.
std::shared_ptr<const Win32Bitmap> ScalePicture(const Win32Bitmap& picture, Size size);

}  // namespace zentar
