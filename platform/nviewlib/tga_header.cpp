#include "platform/nviewlib/tga_header.h"

#include "platform/nviewlib/byte_reader.h"

namespace nviewlib {

namespace {

// The header's fields, by their offsets.
constexpr std::size_t kIdLength = 0;
constexpr std::size_t kMapType = 1;
constexpr std::size_t kImageType = 2;
constexpr std::size_t kMapFirst = 3;
constexpr std::size_t kMapLength = 5;
constexpr std::size_t kMapBits = 7;
constexpr std::size_t kWidth = 12;
constexpr std::size_t kHeight = 14;
constexpr std::size_t kPixelBits = 16;
constexpr std::size_t kDescriptor = 17;
constexpr std::size_t kHeaderBytes = 18;

constexpr unsigned kMapped = 1;
constexpr unsigned kTrueColour = 2;
constexpr unsigned kGrey = 3;
constexpr unsigned kRunLength = 8;  // added to the type

constexpr unsigned kFromRight = 0x10;
constexpr unsigned kFromTop = 0x20;

std::optional<TgaPixel> ColourOf(unsigned bits) {
    switch (bits) {
        case 15:
        case 16:
            return TgaPixel::Colour16;
        case 24:
            return TgaPixel::Colour24;
        case 32:
            return TgaPixel::Colour32;
        default:
            return std::nullopt;
    }
}

std::optional<TgaPixel> PixelOf(unsigned type, unsigned bits) {
    switch (type) {
        case kMapped:
            return bits == 8    ? std::optional(TgaPixel::Index8)
                   : bits == 16 ? std::optional(TgaPixel::Index16)
                                : std::nullopt;
        case kTrueColour:
            // Eight bits are too few for a colour, so they are grey.
            return bits == 8 ? TgaPixel::Grey8 : ColourOf(bits);
        case kGrey:
            return bits == 8    ? std::optional(TgaPixel::Grey8)
                   : bits == 16 ? std::optional(TgaPixel::Grey16)
                                : std::nullopt;
        default:
            return std::nullopt;
    }
}

// A map may stand in an image of any type; only a mapped one needs it to be one we can read.
bool ReadMap(std::span<const std::uint8_t> file, bool needed, TgaHeader* header) {
    header->map.at = kHeaderBytes + file[kIdLength];
    header->pixelsAt = header->map.at;
    // Where there is no map, its other fields may hold anything.
    if (file[kMapType] == 0) {
        return !needed;
    }
    const unsigned bits = file[kMapBits];
    header->map.first = WordAt(file, kMapFirst);
    header->map.length = WordAt(file, kMapLength);
    header->pixelsAt += header->map.length * ((bits + 7) / 8);
    if (!needed) {
        return true;
    }
    const std::optional<TgaPixel> entry = ColourOf(bits);
    header->map.entry = entry.value_or(TgaPixel::Colour24);
    return entry && header->map.length > 0;
}

}  // namespace

std::size_t BytesOf(TgaPixel pixel) {
    switch (pixel) {
        case TgaPixel::Grey8:
        case TgaPixel::Index8:
            return 1;
        case TgaPixel::Grey16:
        case TgaPixel::Colour16:
        case TgaPixel::Index16:
            return 2;
        case TgaPixel::Colour24:
            return 3;
        case TgaPixel::Colour32:
            break;
    }
    return 4;
}

std::optional<TgaHeader> ReadTgaHeader(std::span<const std::uint8_t> file) {
    if (file.size() < kHeaderBytes) {
        return std::nullopt;
    }
    const unsigned type = file[kImageType] & ~kRunLength;
    const std::optional<TgaPixel> pixel = PixelOf(type, file[kPixelBits]);
    TgaHeader header;
    if (!pixel || file[kMapType] > 1 || !ReadMap(file, type == kMapped, &header) ||
        header.pixelsAt > file.size()) {
        return std::nullopt;
    }
    header.size = {static_cast<int>(WordAt(file, kWidth)), static_cast<int>(WordAt(file, kHeight))};
    header.pixel = *pixel;
    header.runLength = (file[kImageType] & kRunLength) != 0;
    // The other bits are the number of alpha bits, which do not matter here, and interlacing, which
    // no longer is in the format and is set by mistake where it is set.
    header.fromTop = (file[kDescriptor] & kFromTop) != 0;
    header.fromRight = (file[kDescriptor] & kFromRight) != 0;
    return header;
}

}  // namespace nviewlib
