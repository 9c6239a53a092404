// A picture whose pixels the program sets itself.
#pragma once

#include <windows.h>

#include <cstdint>
#include <span>

#include "platform/win32/win32_handle.h"

namespace zentar {

using Pixel = std::uint32_t;  // blue in the lowest byte, alpha in the highest

struct PixelImage {
    UniqueBitmap bitmap;      // none when the system lacks the memory
    std::span<Pixel> pixels;  // line by line from the top, transparent at first
};

PixelImage MakePixelImage(SIZE size);

}  // namespace zentar
