// The system's own picture services.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/bitmap.h"
#include "platform/result.h"

namespace zentar {

// A longer file holds no picture that would be decoded.
inline constexpr std::uint64_t kLongestPictureFile = std::uint64_t{208} << 20U;

class Pictures {
  public:
    virtual ~Pictures() = default;
    // The picture in a JPG, BMP or GIF file's bytes. Null when there is none, or when it has more
    // than 40 million pixels.
    virtual BitmapPtr Decode(std::string_view file) = 0;
    // The whole picture in another size, its proportions not kept. Null when memory is short.
    virtual BitmapPtr Stretch(const Bitmap& picture, Size size) = 0;
    // The bytes of a Windows bitmap file, 24 bits a pixel.
    virtual Result<std::string> EncodeBmp(const Bitmap& picture) = 0;
};

}  // namespace zentar
