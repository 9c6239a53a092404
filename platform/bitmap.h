// A decoded picture.
#pragma once

#include <memory>

#include "platform/geometry.h"

namespace zentar {

// Held by the platform, in whatever form it draws fastest; never changes.
class Bitmap {
  public:
    virtual ~Bitmap() = default;
    // In pixels; neither is 0.
    virtual Size Dimensions() const = 0;
};

// Null stands for no picture.
using BitmapPtr = std::shared_ptr<const Bitmap>;

// What a picture may measure at most, in pixels. One of an 8K screen has 33 million; a file that
// claims more is not decoded, so that none takes the memory of the whole machine.
inline constexpr long long kMostPixels = 40'000'000;

}  // namespace zentar
