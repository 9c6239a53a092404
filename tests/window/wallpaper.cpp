#include "tests/window/wallpaper.h"

#include <windows.h>

#include <filesystem>
#include <system_error>

#include "tests/window/image_library_file.h"

namespace zentar::window_tests {

std::wstring CurrentWallpaper() {
    wchar_t path[MAX_PATH] = {};
    DWORD bytes = sizeof path;
    RegGetValueW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", L"Wallpaper", RRF_RT_REG_SZ, nullptr,
                 path, &bytes);
    return path;
}

KeptWallpaper::KeptWallpaper() : before_(CurrentWallpaper()) {}

KeptWallpaper::~KeptWallpaper() {
    SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, before_.data(), SPIF_UPDATEINIFILE);
    std::error_code leftBehind;
    for (const auto& entry : std::filesystem::directory_iterator(WindowsFolder(), leftBehind)) {
        if (entry.path().filename().wstring().starts_with(L"[Zentar]")) {
            std::filesystem::remove(entry.path(), leftBehind);
        }
    }
}

}  // namespace zentar::window_tests
