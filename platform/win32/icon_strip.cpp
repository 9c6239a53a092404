#include "platform/win32/icon_strip.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

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
    const std::uint32_t* pixels = nullptr;
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
        bytes.size() < sizeof header + width * width * sizeof(std::uint32_t)) {
        return {};
    }
    return {reinterpret_cast<const std::uint32_t*>(bytes.data() + sizeof header),
            static_cast<int>(width)};
}

struct BitmapTraits {
    using Type = HBITMAP;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return DeleteObject(handle) != FALSE; }
};
using UniqueBitmap = UniqueHandle<BitmapTraits>;

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

// A row of transparent squares, lowest line first.
struct Strip {
    Strip(int squares, int squareSize) : size(squareSize), width(squares * squareSize) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = size;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap.Reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        pixels = static_cast<std::uint32_t*>(bits);
    }

    void Put(int square, const Picture& picture) const {
        const int margin = (size - picture.size) / 2;
        for (int line = 0; line < picture.size; ++line) {
            std::memcpy(pixels + (line + margin) * width + square * size + margin,
                        picture.pixels + line * picture.size,
                        static_cast<std::size_t>(picture.size) * sizeof(std::uint32_t));
        }
    }

    int size;
    int width;
    UniqueBitmap bitmap;
    std::uint32_t* pixels = nullptr;
};

}  // namespace

UniqueImageList LoadIconStrip(HINSTANCE module, std::span<const int> icons, int size) {
    const auto count = static_cast<int>(icons.size());
    UniqueImageList list(ImageList_Create(size, size, ILC_COLOR32, count, 1));
    const Strip strip(count, size);
    if (strip.bitmap) {
        for (int square = 0; square < count; ++square) {
            const int icon = icons[static_cast<std::size_t>(square)];
            strip.Put(square, FittingPicture(module, icon, size));
        }
        ImageList_Add(list.Get(), strip.bitmap.Get(), nullptr);
    }
    return list;
}

}  // namespace zentar
