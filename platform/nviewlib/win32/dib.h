// Bitmaps of Windows whose pixels are there to be set.
#pragma once

#include <windows.h>

#include <memory>

#include "platform/nviewlib/raster.h"

namespace nviewlib {

struct BitmapDeleter {
    using pointer = HBITMAP;
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};

// 24 bits a pixel, in lines that stand bottom up in memory.
struct Dib {
    std::unique_ptr<HBITMAP, BitmapDeleter> bitmap;  // none when the system lacks the memory
    Raster pixels;
};

Dib MakeDib(ImageSize size);

}  // namespace nviewlib
