#include "platform/win32/pixel_image.h"

#include <cstddef>

namespace zentar {

PixelImage MakePixelImage(SIZE size) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    PixelImage image{
        UniqueBitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)), {}};
    if (image.bitmap) {
        const auto count = static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy);
        image.pixels = {static_cast<Pixel*>(bits), count};
    }
    return image;
}

}  // namespace zentar
