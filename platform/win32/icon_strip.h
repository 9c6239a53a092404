// Icons side by side in one image list.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <span>

#include "platform/win32/win32_handle.h"

namespace zentar {

struct ImageListTraits {
    using Type = HIMAGELIST;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return ImageList_Destroy(handle) != FALSE; }
};

using UniqueImageList = UniqueHandle<ImageListTraits>;

// The module's icons of those numbers as squares of `size` pixels, one image a number. An icon that
// has no picture of that size stands in the middle of its square with the next smaller one; one
// that is missing leaves it empty.
//
// Takes the pixels straight from the resources (a group of icons names its pictures, each a
// bottom-up 32-bit bitmap): icons of the system's own take ten times as long to make.
UniqueImageList LoadIconStrip(HINSTANCE module, std::span<const int> icons, int size);

}  // namespace zentar
