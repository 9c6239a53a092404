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

}  // namespace zentar
