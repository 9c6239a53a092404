#include "platform/win32/icon_strip.h"

#include <algorithm>
#include <cstddef>

#include "platform/win32/pixel_image.h"

namespace zentar {
namespace {

// What a resource holds; empty without one.
std::span<std::byte> ResourceBytes(HINSTANCE module, int number, LPCWSTR type) {
    const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(number), type);
    const HGLOBAL loaded = found == nullptr ? nullptr : LoadResource(module, found);
    if (loaded == nullptr) {
        return {};
    }
    return {static_cast<std::byte*>(LockResource(loaded)), SizeofResource(module, found)};
}

// A picture of an icon: square, 32 bits a pixel, lowest line first.
struct Picture {
    const Pixel* pixels = nullptr;
    int size = 0;
};

Picture PictureOf(HINSTANCE module, int icon, int size) {
    const std::span<std::byte> group = ResourceBytes(module, icon, RT_GROUP_ICON);
    if (group.empty()) {
        return {};
    }
    const int picked = LookupIconIdFromDirectoryEx(reinterpret_cast<PBYTE>(group.data()), TRUE,
                                                   size, size, LR_DEFAULTCOLOR);
    const std::span<std::byte> bytes = ResourceBytes(module, picked, RT_ICON);
    if (bytes.size() < sizeof(BITMAPINFOHEADER)) {
        return {};
    }
    const auto& header = *reinterpret_cast<const BITMAPINFOHEADER*>(bytes.data());
    const auto width = static_cast<std::size_t>(std::max<LONG>(header.biWidth, 0));
    if (header.biSize != sizeof header || header.biBitCount != 32 ||
        bytes.size() < sizeof header + width * width * sizeof(Pixel)) {
        return {};
    }
    return {reinterpret_cast<const Pixel*>(bytes.data() + sizeof header), static_cast<int>(width)};
}

// The largest picture of the icon that is no larger than `size`.
Picture FittingPicture(HINSTANCE module, int icon, int size) {
    constexpr int kSmallest = 16;
    for (int wanted = size; wanted >= kSmallest; --wanted) {
        const Picture picture = PictureOf(module, icon, wanted);
        if (picture.size <= size) {
            return picture;
        }
    }
    return {};
}

// The strip is `squares` squares of `size` pixels wide.
void PutInto(const PixelImage& strip, int squares, int square, int size, const Picture& picture) {
    const int margin = (size - picture.size) / 2;
    for (int line = 0; line < picture.size; ++line) {
        const Pixel* from = picture.pixels + (picture.size - 1 - line) * picture.size;
        const int left = square * size + margin;
        std::copy_n(from, picture.size,
                    strip.pixels.begin() + (line + margin) * squares * size + left);
    }
}

}  // namespace

UniqueImageList LoadIconStrip(HINSTANCE module, std::span<const int> icons, int size) {
    const auto count = static_cast<int>(icons.size());
    UniqueImageList list(ImageList_Create(size, size, ILC_COLOR32, count, 1));
    const PixelImage strip = MakePixelImage({count * size, size});
    if (strip.bitmap) {
        for (int square = 0; square < count; ++square) {
            const int icon = icons[static_cast<std::size_t>(square)];
            PutInto(strip, count, square, size, FittingPicture(module, icon, size));
        }
        ImageList_Add(list.Get(), strip.bitmap.Get(), nullptr);
    }
    return list;
}

}  // namespace zentar
