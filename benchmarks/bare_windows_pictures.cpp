#include "benchmarks/bare_windows_pictures.h"

#include <windows.h>

#include <wincodec.h>

namespace zentar::benchmarks {
namespace {

template <typename Interface>
struct ComPointer {
    Interface* pointer = nullptr;
    ComPointer() = default;
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;
    ~ComPointer() {
        if (pointer != nullptr) {
            pointer->Release();
        }
    }
    Interface* operator->() const { return pointer; }
};

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
        ComPointer<IWICImagingFactory> factory;
        CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                         IID_IWICImagingFactory, reinterpret_cast<void**>(&factory.pointer));
        ComPointer<IWICStream> stream;
        factory->CreateStream(&stream.pointer);
        stream->InitializeFromFilename(file.c_str(), GENERIC_WRITE);
        ComPointer<IWICBitmapEncoder> encoder;
        factory->CreateEncoder(GUID_ContainerFormatJpeg, nullptr, &encoder.pointer);
        encoder->Initialize(stream.pointer, WICBitmapEncoderNoCache);
        ComPointer<IWICBitmapFrameEncode> frame;
        ComPointer<IPropertyBag2> options;
        encoder->CreateNewFrame(&frame.pointer, &options.pointer);
        SetQuality(options.pointer);
        frame->Initialize(options.pointer);
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
