// Pictures in other sizes.
#pragma once

#include <memory>

#include "platform/win32/win32_bitmap.h"

namespace zentar {

// The whole picture in that size. Null when memory is short.
std::shared_ptr<const Win32Bitmap> ScalePicture(const Win32Bitmap& picture, Size size);

}  // namespace zentar
