#include "benchmarks/bare_windows_pictures.h"

#include <windows.h>

#include <wincodec.h>

#include "platform/nviewlib/win32/resources.h"

namespace zentar::benchmarks {
namespace {

using nviewlib::Made;

void SetQuality(IPropertyBag2* options) {
    PROPBAG2 name{};
    name.pstrName = const_cast<wchar_t*>(L"ImageQuality");
    VARIANT value{};
    value.vt = VT_R4;
    value.fltVal = 0.8F;
    options->Write(1, &name, &value);
}

}  // namespace

void EncodeBareJpg(const std::filesystem::path& file, std::string& pixels, int width, int height) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    {
        const auto factory = Made<IWICImagingFactory>([](IWICImagingFactory** made) {
            return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                    IID_IWICImagingFactory, reinterpret_cast<void**>(made));
        });
        const auto stream =
            Made<IWICStream>([&](IWICStream** made) { return factory->CreateStream(made); });
        stream->InitializeFromFilename(file.c_str(), GENERIC_WRITE);
        const auto encoder = Made<IWICBitmapEncoder>([&](IWICBitmapEncoder** made) {
            return factory->CreateEncoder(GUID_ContainerFormatJpeg, nullptr, made);
        });
        encoder->Initialize(stream.get(), WICBitmapEncoderNoCache);
        IPropertyBag2* bag = nullptr;
        const auto frame = Made<IWICBitmapFrameEncode>(
            [&](IWICBitmapFrameEncode** made) { return encoder->CreateNewFrame(made, &bag); });
        const nviewlib::ComPointer<IPropertyBag2> options(bag);
        SetQuality(options.get());
        frame->Initialize(options.get());
        frame->SetSize(static_cast<UINT>(width), static_cast<UINT>(height));
        WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
        frame->SetPixelFormat(&format);
        frame->WritePixels(static_cast<UINT>(height), static_cast<UINT>(width * 3),
                           static_cast<UINT>(width * height * 3),
                           reinterpret_cast<BYTE*>(pixels.data()));
        frame->Commit();
        encoder->Commit();
    }
    CoUninitialize();
}

BareBlit::BareBlit(void* window, int width, int height)
    : window_(window),
      context_(GetDC(static_cast<HWND>(window))),
      memory_(CreateCompatibleDC(static_cast<HDC>(context_))),
      bitmap_(CreateCompatibleBitmap(static_cast<HDC>(context_), width, height)) {
    SelectObject(static_cast<HDC>(memory_), bitmap_);
    PatBlt(static_cast<HDC>(memory_), 0, 0, width, height, WHITENESS);
}

BareBlit::~BareBlit() {
    DeleteDC(static_cast<HDC>(memory_));
    DeleteObject(bitmap_);
    ReleaseDC(static_cast<HWND>(window_), static_cast<HDC>(context_));
}

void BareBlit::Draw(int left, int top) {
    RECT client{};
    GetClientRect(static_cast<HWND>(window_), &client);
    BitBlt(static_cast<HDC>(context_), 0, 0, client.right, client.bottom, static_cast<HDC>(memory_),
           left, top, SRCCOPY);
}

}  // namespace zentar::benchmarks
