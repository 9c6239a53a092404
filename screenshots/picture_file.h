// Files of pictures that the system itself decodes.
#pragma once

#include <string>

#include "platform/bitmap.h"
#include "platform/platform.h"

namespace zentar {

// The picture in a JPG, BMP or GIF file; null when it cannot be read or shows none.
BitmapPtr ReadPicture(const Platform& platform, const std::string& path);

}  // namespace zentar
