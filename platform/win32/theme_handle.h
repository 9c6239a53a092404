// Owner of an opened visual style.
#pragma once

#include <windows.h>

#include <uxtheme.h>

#include "platform/win32/win32_handle.h"

namespace zentar {

struct ThemeHandleTraits {
    using Type = HTHEME;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return SUCCEEDED(CloseThemeData(handle)); }
};
using UniqueTheme = UniqueHandle<ThemeHandleTraits>;

}  // namespace zentar
