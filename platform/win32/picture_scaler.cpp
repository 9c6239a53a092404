#include "platform/win32/picture_scaler.h"

#include <new>

#include "platform/nviewlib/scaler.h"

namespace zentar {
namespace {

nviewlib::ImageSize ImageSizeOf(Size size) { return {size.width, size.height}; }

}  // namespace

std::shared_ptr<const Win32Bitmap> ScalePicture(const Win32Bitmap& picture, Size size) {
    try {
        const std::shared_ptr<Win32Bitmap> scaled = Win32Bitmap::Make(size);
        if (scaled) {
            nviewlib::Scale(picture.Pixels(), ImageSizeOf(picture.Dimensions()), scaled->Pixels(),
                            ImageSizeOf(size));
        }
        return scaled;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}  // namespace zentar
