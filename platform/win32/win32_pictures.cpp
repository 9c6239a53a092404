#include "platform/win32/win32_pictures.h"

#include <windows.h>

#include <cstring>
#include <new>

#include "platform/nviewlib/win32/image_file.h"
#include "platform/nviewlib/win32/imaging_component.h"
#include "platform/win32/picture_scaler.h"
#include "platform/win32/win32_bitmap.h"

namespace zentar {
namespace {

// What the image library reads, the program reads as well.
static_assert(kLongestPictureFile == nviewlib::kLongestFile);

std::string BmpFile(const Win32Bitmap& bitmap) {
    const Size size = bitmap.Dimensions();
    const nviewlib::Raster pixels = bitmap.Pixels();
    const std::size_t bytes = bitmap.Pitch() * static_cast<std::size_t>(size.height);
    BITMAPFILEHEADER file{};
    BITMAPINFOHEADER info{};
    file.bfType = 0x4D42;  // "BM"
    file.bfOffBits = sizeof file + sizeof info;
    file.bfSize = static_cast<DWORD>(file.bfOffBits + bytes);
    info.biSize = sizeof info;
    info.biWidth = size.width;
    info.biHeight = size.height;
    info.biPlanes = 1;
    info.biBitCount = 24;
    info.biSizeImage = static_cast<DWORD>(bytes);
    std::string encoded(file.bfSize, '\0');
    std::memcpy(encoded.data(), &file, sizeof file);
    std::memcpy(encoded.data() + sizeof file, &info, sizeof info);
    // The lines stand in the file as they do in memory.
    std::memcpy(encoded.data() + file.bfOffBits, pixels.top + pixels.pitch * (size.height - 1),
                bytes);
    return encoded;
}

}  // namespace

BitmapPtr Win32Pictures::Decode(std::string_view file) {
    session_.ole.Need();
    try {
        std::shared_ptr<Win32Bitmap> bitmap;
        const bool decoded = nviewlib::DecodeBySystem(
            {reinterpret_cast<const std::uint8_t*>(file.data()), file.size()},
            [&bitmap](nviewlib::ImageSize size) {
                bitmap = Win32Bitmap::Make({size.width, size.height});
                return bitmap ? bitmap->Pixels() : nviewlib::Raster{};
            });
        return decoded ? bitmap : nullptr;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

BitmapPtr Win32Pictures::Stretch(const Bitmap& picture, Size size) {
    return ScalePicture(Win32Bitmap::Of(picture), size);
}

Result<std::string> Win32Pictures::EncodeBmp(const Bitmap& picture) {
    try {
        return BmpFile(Win32Bitmap::Of(picture));
    } catch (const std::bad_alloc&) {
        return FileError::Other;
    }
}

}  // namespace zentar
