// The system's own picture services.
#pragma once

#include <string>
#include <string_view>

#include "platform/bitmap.h"
#include "platform/result.h"

namespace zentar {

class Pictures {
  public:
    virtual ~Pictures() = default;
    // The picture in a JPG, BMP or GIF file's bytes. Null when there is none, or when it has more
    // pixels than kMostPixels.
    virtual BitmapPtr Decode(std::string_view file) = 0;
    // The whole picture in another size, its proportions not kept. Null when memory is short.
    virtual BitmapPtr Stretch(const Bitmap& picture, Size size) = 0;
    // The bytes of a Windows bitmap file, 24 bits a pixel.
    virtual Result<std::string> EncodeBmp(const Bitmap& picture) = 0;
};

}  // namespace zentar
