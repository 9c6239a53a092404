// A bitmap that is drawn from or into.
#pragma once

#include <windows.h>

#include "platform/win32/win32_handle.h"

namespace zentar {

// A device context that the bitmap is selected into for the time of the scope. A bitmap stands in
// one at a time.
class BitmapContext {
  public:
    explicit BitmapContext(HBITMAP bitmap)
        : context_(CreateCompatibleDC(nullptr)), before_(SelectObject(context_.Get(), bitmap)) {}
    BitmapContext(const BitmapContext&) = delete;
    BitmapContext& operator=(const BitmapContext&) = delete;
    ~BitmapContext() { SelectObject(context_.Get(), before_); }

    HDC Get() const { return context_.Get(); }

  private:
    UniqueMemoryContext context_;
    HGDIOBJ before_;
};

// Copies the part of a bitmap that lies in `wanted`, when its upper left corner stands at `place`,
// and fills the rest of `wanted`: each pixel is painted once, so that nothing flickers.
void PaintBitmap(HDC context, const RECT& wanted, HBITMAP bitmap, const RECT& place, HBRUSH around);

}  // namespace zentar
