#include "tests/window/screen_picture.h"

#include <wincodec.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "platform/nviewlib/win32/resources.h"
#include "platform/win32/win32_text.h"
#include "tests/window/waiting.h"
#include "tests/window/zentar_home.h"

namespace zentar::window_tests {

namespace {

std::filesystem::path PictureFolder() {
    std::filesystem::path folder = BuildFolder() / "pictures";
    if (const wchar_t* wanted = _wgetenv(L"ZENTAR_PICTURES")) {
        folder = wanted;
    }
    std::filesystem::create_directories(folder);
    return folder;
}

HBITMAP CopyScreen(const RECT& area) {
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
    SelectObject(memory, before);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

void SavePng(HBITMAP bitmap, const std::filesystem::path& file) {
    using nviewlib::Made;
    const auto factory = Made<IWICImagingFactory>([](IWICImagingFactory** made) {
        return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                IID_IWICImagingFactory, reinterpret_cast<void**>(made));
    });
    const auto picture = Made<IWICBitmap>([&](IWICBitmap** made) {
        return factory->CreateBitmapFromHBITMAP(bitmap, nullptr, WICBitmapIgnoreAlpha, made);
    });
    // The file is complete once this has gone.
    const auto stream =
        Made<IWICStream>([&](IWICStream** made) { return factory->CreateStream(made); });
    stream->InitializeFromFilename(file.c_str(), GENERIC_WRITE);
    const auto encoder = Made<IWICBitmapEncoder>([&](IWICBitmapEncoder** made) {
        return factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, made);
    });
    encoder->Initialize(stream.get(), WICBitmapEncoderNoCache);
    const auto frame = Made<IWICBitmapFrameEncode>(
        [&](IWICBitmapFrameEncode** made) { return encoder->CreateNewFrame(made, nullptr); });
    frame->Initialize(nullptr);
    frame->WriteSource(picture.get(), nullptr);
    frame->Commit();
    encoder->Commit();
}

// Gives the length of the file.
std::uintmax_t SavePicture(HWND window, const std::string& name) {
    RECT area{};
    GetWindowRect(window, &area);
    // The frame of a maximised window lies outside, from where nothing can be copied.
    const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    IntersectRect(&area, &area, &screen);
    const HBITMAP bitmap = CopyScreen(area);
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const std::filesystem::path file = PictureFolder() / (Widen(name) + L".png");
    SavePng(bitmap, file);
    CoUninitialize();
    DeleteObject(bitmap);
    return std::filesystem::file_size(file);
}

}  // namespace

bool TakesPicture(HWND window, const std::string& name) {
    // One of nothing but one colour is smaller.
    constexpr std::uintmax_t kSmallestPicture = 2'000;
    return Eventually([&] { return SavePicture(window, name) > kSmallestPicture; });
}

COLORREF PixelAt(POINT place) {
    const HDC screen = GetDC(nullptr);
    const COLORREF colour = GetPixel(screen, place.x, place.y);
    ReleaseDC(nullptr, screen);
    return colour;
}

std::vector<RGBQUAD> PixelsOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const HBITMAP bitmap = CopyScreen(area);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    std::vector<RGBQUAD> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const HDC screen = GetDC(nullptr);
    GetDIBits(screen, bitmap, 0, static_cast<UINT>(height), pixels.data(), &info, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    DeleteObject(bitmap);
    return pixels;
}

int CountPixels(HWND window, COLORREF colour) {
    constexpr int kNear = 40;
    const std::vector<RGBQUAD> pixels = PixelsOf(window);
    return static_cast<int>(std::count_if(pixels.begin(), pixels.end(), [&](const RGBQUAD& pixel) {
        return std::abs(pixel.rgbRed - GetRValue(colour)) <= kNear &&
               std::abs(pixel.rgbGreen - GetGValue(colour)) <= kNear &&
               std::abs(pixel.rgbBlue - GetBValue(colour)) <= kNear;
    }));
}

}  // namespace zentar::window_tests
