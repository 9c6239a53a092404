#include "platform/nviewlib/win32/dib.h"

#include <cstddef>

namespace nviewlib {

Dib MakeDib(ImageSize size) {
    // Bitmaps begin each line at a multiple of four bytes.
    const std::ptrdiff_t pitch = (std::ptrdiff_t{size.width} * 3 + 3) / 4 * 4;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.width;
    info.bmiHeader.biHeight = size.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    void* bits = nullptr;
    Dib dib;
    dib.bitmap.reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (dib.bitmap) {
        dib.pixels = {static_cast<std::uint8_t*>(bits) + pitch * (size.height - 1), -pitch};
    }
    return dib;
}

}  // namespace nviewlib
