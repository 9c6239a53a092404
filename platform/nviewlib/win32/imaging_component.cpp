#include "platform/nviewlib/win32/imaging_component.h"

#include <windows.h>

#include <objbase.h>
#include <wincodec.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <optional>
#include <vector>

#include "platform/nviewlib/claimed_size.h"
#include "platform/nviewlib/colour.h"
#include "platform/nviewlib/plain_bmp.h"
#include "platform/nviewlib/win32/resources.h"

namespace nviewlib {
namespace {

// What is decoded at a time: enough to be worth a call, little enough for the processor's cache.
constexpr std::size_t kBandBytes = std::size_t{256} << 10U;

ComPointer<IWICImagingFactory> MakeFactory() {
    return Made<IWICImagingFactory>([](IWICImagingFactory** factory) {
        return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                IID_IWICImagingFactory, reinterpret_cast<void**>(factory));
    });
}

const GUID& ContainerOf(FileKind kind) {
    switch (kind) {
        case FileKind::Bmp:
            return GUID_ContainerFormatBmp;
        case FileKind::Gif:
            return GUID_ContainerFormatGif;
        case FileKind::Jpg:
            break;
    }
    return GUID_ContainerFormatJpeg;
}

// The system's own decoder of that kind, and none that some other program installed.
ComPointer<IWICBitmapDecoder> MakeDecoder(IWICImagingFactory& factory, FileKind kind,
                                          std::span<const std::uint8_t> file) {
    const auto stream = Made<IWICStream>([&](IWICStream** s) { return factory.CreateStream(s); });
    // The system only reads from the bytes.
    if (!stream || FAILED(stream->InitializeFromMemory(const_cast<BYTE*>(file.data()),
                                                       static_cast<DWORD>(file.size())))) {
        return {};
    }
    auto decoder = Made<IWICBitmapDecoder>([&](IWICBitmapDecoder** d) {
        return factory.CreateDecoder(ContainerOf(kind), &GUID_VendorMicrosoft, d);
    });
    if (!decoder || FAILED(decoder->Initialize(stream.get(), WICDecodeMetadataCacheOnDemand))) {
        return {};
    }
    return decoder;
}

bool HasSize(IWICBitmapSource& source, ImageSize size) {
    UINT width = 0;
    UINT height = 0;
    return SUCCEEDED(source.GetSize(&width, &height)) &&
           size == ImageSize{static_cast<int>(width), static_cast<int>(height)};
}

ComPointer<IWICBitmapSource> Converted(IWICImagingFactory& factory, IWICBitmapSource& source,
                                       const GUID& format) {
    auto converter = Made<IWICFormatConverter>(
        [&](IWICFormatConverter** made) { return factory.CreateFormatConverter(made); });
    if (!converter || FAILED(converter->Initialize(&source, format, WICBitmapDitherTypeNone,
                                                   nullptr, 0, WICBitmapPaletteTypeCustom))) {
        return {};
    }
    return converter;
}

// Line by line, since the system gives them top down only.
bool CopyLines(IWICBitmapSource& source, ImageSize size, const Raster& raster) {
    const std::size_t line = kPixelBytes * static_cast<std::size_t>(size.width);
    const int atOnce = static_cast<int>(std::max<std::size_t>(1, kBandBytes / line));
    std::vector<std::uint8_t> band(line * static_cast<std::size_t>(atOnce));
    for (int y = 0; y < size.height; y += atOnce) {
        const WICRect part{0, y, size.width, std::min(atOnce, size.height - y)};
        if (FAILED(source.CopyPixels(&part, static_cast<UINT>(line), static_cast<UINT>(band.size()),
                                     band.data()))) {
            return false;
        }
        for (int i = 0; i < part.Height; ++i) {
            std::memcpy(raster.top + (y + i) * raster.pitch,
                        band.data() + static_cast<std::size_t>(i) * line, line);
        }
    }
    return true;
}

// Wine goes from greys and palettes to 24 bits only by way of 32, which shows when it is to do it.
bool CopyPixels(IWICImagingFactory& factory, IWICBitmapSource& source, ImageSize size,
                const Raster& raster) {
    const auto direct = Converted(factory, source, GUID_WICPixelFormat24bppBGR);
    if (direct && CopyLines(*direct, size, raster)) {
        return true;
    }
    const auto wider = Converted(factory, source, GUID_WICPixelFormat32bppBGRA);
    const auto narrowed = wider ? Converted(factory, *wider, GUID_WICPixelFormat24bppBGR) : nullptr;
    return narrowed && CopyLines(*narrowed, size, raster);
}

}  // namespace

bool DecodeBySystem(std::span<const std::uint8_t> file, const RasterMaker& make) {
    if (DecodePlainBmp(file, make)) {
        return true;
    }
    const std::optional<Claim> claim = ReadClaim(file);
    if (!claim || !Affordable(*claim, file.size())) {
        return false;
    }
    const ComOnThread com;
    const ComPointer<IWICImagingFactory> factory = MakeFactory();
    const ComPointer<IWICBitmapDecoder> decoder =
        factory ? MakeDecoder(*factory, claim->kind, file) : nullptr;
    const auto frame = Made<IWICBitmapFrameDecode>(
        [&](IWICBitmapFrameDecode** f) { return decoder ? decoder->GetFrame(0, f) : E_FAIL; });
    if (!frame || !HasSize(*frame, claim->size)) {
        return false;
    }
    const Raster raster = make(claim->size);
    return raster.top != nullptr && CopyPixels(*factory, *frame, claim->size, raster);
}

}  // namespace nviewlib
