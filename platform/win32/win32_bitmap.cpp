#include "platform/win32/win32_bitmap.h"

#include <utility>

namespace zentar {
namespace {

constexpr WORD kBitsPerPixel = 24;

}  // namespace

Win32Bitmap::Win32Bitmap(UniqueBitmap handle, const BITMAP& form)
    : handle_(std::move(handle)),
      size_{form.bmWidth, form.bmHeight},
      lowestLine_(static_cast<std::uint8_t*>(form.bmBits)),
      pitch_(static_cast<std::size_t>(form.bmWidthBytes)) {}

std::shared_ptr<Win32Bitmap> Win32Bitmap::Take(UniqueBitmap handle) {
    DIBSECTION section{};
    const bool fits = GetObjectW(handle.Get(), sizeof section, &section) == sizeof section &&
                      section.dsBmih.biBitCount == kBitsPerPixel && section.dsBmih.biHeight > 0;
    if (!fits) {
        return nullptr;
    }
    return std::shared_ptr<Win32Bitmap>(new Win32Bitmap(std::move(handle), section.dsBm));
}

std::shared_ptr<Win32Bitmap> Win32Bitmap::Make(Size size) {
    if (size.width <= 0 || size.height <= 0) {
        return nullptr;
    }
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.width;
    info.bmiHeader.biHeight = size.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = kBitsPerPixel;
    void* bits = nullptr;
    return Take(UniqueBitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)));
}

nviewlib::Raster Win32Bitmap::Pixels() const {
    const auto pitch = static_cast<std::ptrdiff_t>(pitch_);
    return {lowestLine_ + pitch * (size_.height - 1), -pitch};
}

}  // namespace zentar
