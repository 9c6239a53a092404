#include "platform/win32/grey_icon.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/win32/pixel_image.h"

namespace zentar {
namespace {

void DrawOver(const PixelImage& image, int stockBrush, HICON icon, SIZE size) {
    const UniqueMemoryContext context(CreateCompatibleDC(nullptr));
    const HGDIOBJ before = SelectObject(context.Get(), image.bitmap.Get());
    const RECT all{0, 0, size.cx, size.cy};
    FillRect(context.Get(), &all, static_cast<HBRUSH>(GetStockObject(stockBrush)));
    DrawIconEx(context.Get(), 0, 0, icon, size.cx, size.cy, 0, nullptr, DI_NORMAL);
    GdiFlush();
    SelectObject(context.Get(), before);
}

int Channel(Pixel pixel, unsigned shift) { return static_cast<int>((pixel >> shift) & 0xFFU); }

// What a pixel looks like over black and over white says how opaque it is, in icons of any kind.
Pixel Grey(Pixel overBlack, Pixel overWhite) {
    const int alpha = std::clamp(255 - Channel(overWhite, 8) + Channel(overBlack, 8), 0, 255);
    if (alpha == 0) {
        return 0;
    }
    const int brightness =
        (29 * Channel(overBlack, 0) + 150 * Channel(overBlack, 8) + 77 * Channel(overBlack, 16)) /
        256;
    const auto grey = static_cast<Pixel>(std::min(255, brightness * 255 / alpha));
    const auto pale = static_cast<Pixel>(alpha / 2);
    return (pale << 24U) | (grey << 16U) | (grey << 8U) | grey;
}

}  // namespace

UniqueIcon GreyIcon(HICON icon, SIZE size) {
    const PixelImage overBlack = MakePixelImage(size);
    const PixelImage overWhite = MakePixelImage(size);
    // The transparency is in the pixels; the mask that every icon has as well hides nothing.
    const auto width = static_cast<std::size_t>(size.cx);
    const auto height = static_cast<std::size_t>(size.cy);
    const std::vector<std::uint8_t> none((width + 15) / 16 * 2 * height);
    const UniqueBitmap mask(CreateBitmap(size.cx, size.cy, 1, 1, none.data()));
    if (icon == nullptr || !overBlack.bitmap || !overWhite.bitmap || !mask) {
        return UniqueIcon();
    }
    DrawOver(overBlack, BLACK_BRUSH, icon, size);
    DrawOver(overWhite, WHITE_BRUSH, icon, size);
    std::transform(overBlack.pixels.begin(), overBlack.pixels.end(), overWhite.pixels.begin(),
                   overBlack.pixels.begin(), Grey);
    ICONINFO info{};
    info.fIcon = TRUE;
    info.hbmMask = mask.Get();
    info.hbmColor = overBlack.bitmap.Get();
    return UniqueIcon(CreateIconIndirect(&info));
}

}  // namespace zentar
