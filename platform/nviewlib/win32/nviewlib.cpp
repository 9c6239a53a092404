#include "platform/nviewlib/win32/nviewlib.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/nviewlib/colour.h"
#include "platform/nviewlib/jpg_encoder.h"
#include "platform/nviewlib/pcx_decoder.h"
#include "platform/nviewlib/tga_decoder.h"
#include "platform/nviewlib/win32/dib.h"
#include "platform/nviewlib/win32/image_file.h"
#include "platform/nviewlib/win32/imaging_component.h"

namespace nviewlib {
namespace {

// The image as its file has it. It is decoded once more when it is to be written as a JPG, which
// happens to few: to keep every image's pixels would take more memory, and time.
struct CurrentImage {
    FileBytes file;
    std::string path;
    ImageSize size;  // 0 x 0 without an image
};
CurrentImage current;

bool EndsIn(std::string_view path, std::string_view lowerCase) {
    if (path.size() < lowerCase.size()) {
        return false;
    }
    const std::string_view end = path.substr(path.size() - lowerCase.size());
    return std::equal(end.begin(), end.end(), lowerCase.begin(), [](char one, char other) {
        return (one >= 'A' && one <= 'Z' ? one + ('a' - 'A') : one) == other;
    });
}

// What the system decodes is known by its first bytes, whatever the file's name. The other two
// kinds are not: there the name says which to try first.
bool Decode(std::span<const std::uint8_t> file, std::string_view path, const RasterMaker& make) {
    if (DecodeBySystem(file, make)) {
        return true;
    }
    if (EndsIn(path, ".pcx")) {
        return DecodePcx(file, make) || DecodeTga(file, make);
    }
    return DecodeTga(file, make) || DecodePcx(file, make);
}

HBITMAP Load(std::string_view path) {
    Dib dib;
    ImageSize size;
    const RasterMaker make = [&](ImageSize claimed) {
        dib = Dib();  // of a decoder that gave up
        dib = MakeDib(claimed);
        size = claimed;
        return dib.pixels;
    };
    if (!current.file.Read(path) || !Decode(current.file.All(), path, make)) {
        return nullptr;
    }
    current.path = path;
    current.size = size;
    return dib.bitmap.release();
}

bool SaveAsJpg(int quality, std::string_view path) {
    if (current.size == ImageSize() || quality < 0 || quality > 100) {
        return false;
    }
    std::unique_ptr<std::uint8_t[]> bytes;
    Raster pixels;
    const RasterMaker make = [&](ImageSize size) {
        const std::size_t line = kPixelBytes * static_cast<std::size_t>(size.width);
        bytes.reset();
        bytes = std::make_unique_for_overwrite<std::uint8_t[]>(
            line * static_cast<std::size_t>(size.height));
        pixels = {bytes.get(), static_cast<std::ptrdiff_t>(line)};
        return pixels;
    };
    if (!Decode(current.file.All(), current.path, make)) {
        return false;
    }
    const auto jpg = EncodeJpg(pixels, current.size, quality);
    return jpg && WriteImageFile(path, *jpg);
}

}  // namespace
}  // namespace nviewlib

extern "C" {

HBITMAP NViewLibLoad(const char* path, int /*progress*/) {
    nviewlib::current.size = {};
    try {
        return path == nullptr ? nullptr : nviewlib::Load(path);
    } catch (...) {
        // Out of memory.
        return nullptr;
    }
}

int GetWidth() { return nviewlib::current.size.width; }

int GetHeight() { return nviewlib::current.size.height; }

int NViewLibSaveAsJPG(int quality, const char* path) {
    try {
        return path != nullptr && nviewlib::SaveAsJpg(quality, path) ? 1 : 0;
    } catch (...) {
        // Out of memory.
        return 0;
    }
}

}  // extern "C"
