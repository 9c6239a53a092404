#include "tests/window/wallpaper.h"

#include <windows.h>

namespace zentar::window_tests {

std::wstring CurrentWallpaper() {
    wchar_t path[MAX_PATH] = {};
    DWORD bytes = sizeof path;
    RegGetValueW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", L"Wallpaper", RRF_RT_REG_SZ, nullptr,
                 path, &bytes);
    return path;
}

}  // namespace zentar::window_tests
