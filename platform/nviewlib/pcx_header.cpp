#include "platform/nviewlib/pcx_header.h"

#include <utility>

#include "platform/nviewlib/byte_reader.h"

namespace nviewlib {

namespace {

// The header's fields, by their offsets. The version is not looked at, since what is read here
// stands in files of all versions; nor is the kind of palette, since games write "grey" (2) before
// one of colours.
constexpr std::size_t kManufacturer = 0;
constexpr std::size_t kEncoding = 2;
constexpr std::size_t kBits = 3;
constexpr std::size_t kLeft = 4;
constexpr std::size_t kTop = 6;
constexpr std::size_t kRight = 8;
constexpr std::size_t kBottom = 10;
constexpr std::size_t kPalette = 16;
constexpr std::size_t kPlanes = 65;
constexpr std::size_t kPlaneBytes = 66;

constexpr unsigned kZsoft = 10;
constexpr unsigned kRunLength = 1;  // 0: the bytes as they are

// Four planes of eight bits are red, green, blue and alpha.
bool IsKnown(unsigned bits, unsigned planes) {
    switch (bits) {
        case 1:
            return planes >= 1 && planes <= 4;
        case 2:
        case 4:
            return planes == 1;
        case 8:
            return planes == 1 || planes == 3 || planes == 4;
        default:
            return false;
    }
}

bool SameColour(Colour one, Colour other) {
    return one.blue == other.blue && one.green == other.green && one.red == other.red;
}

void ReadPalette(std::span<const std::uint8_t> file, PcxHeader* header) {
    std::size_t at = kPalette;
    for (Colour& colour : header->palette) {
        colour = {file[at + 2], file[at + 1], file[at]};
        at += 3;
    }
    // Programs that know only black and white leave the palette empty.
    if (header->bits * header->planes == 1 && SameColour(header->palette[0], header->palette[1])) {
        header->palette[0] = {0, 0, 0};
        header->palette[1] = {255, 255, 255};
    }
}

}  // namespace

std::optional<PcxHeader> ReadPcxHeader(std::span<const std::uint8_t> file) {
    if (file.size() < kPcxHeaderBytes || file[kManufacturer] != kZsoft ||
        file[kEncoding] > kRunLength || !IsKnown(file[kBits], file[kPlanes])) {
        return std::nullopt;
    }
    PcxHeader header;
    header.size.width =
        static_cast<int>(WordAt(file, kRight)) - static_cast<int>(WordAt(file, kLeft)) + 1;
    header.size.height =
        static_cast<int>(WordAt(file, kBottom)) - static_cast<int>(WordAt(file, kTop)) + 1;
    header.runLength = file[kEncoding] == kRunLength;
    header.bits = file[kBits];
    header.planes = file[kPlanes];
    header.planeBytes = WordAt(file, kPlaneBytes);
    // Lines too short for the width have no pixels for its rest.
    if (header.size.width < 1 || header.size.height < 1 ||
        std::cmp_less(header.planeBytes * 8, std::int64_t{header.size.width} * file[kBits])) {
        return std::nullopt;
    }
    ReadPalette(file, &header);
    return header;
}

}  // namespace nviewlib
