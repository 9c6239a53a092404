// The size of a Windows bitmap file, from its header (BITMAPFILEHEADER, then BITMAPCOREHEADER or
// BITMAPINFOHEADER or one of its longer forms).

#include <cstdlib>

#include "platform/nviewlib/claim_reader.h"
#include "platform/nviewlib/claimed_size.h"

namespace nviewlib {
namespace {

// Ways of compression.
constexpr std::int64_t kPlain = 0;
constexpr std::int64_t kRuns8 = 1;
constexpr std::int64_t kRuns4 = 2;
constexpr std::int64_t kMasks = 3;
constexpr std::int64_t kMasksWithAlpha = 6;

constexpr std::int64_t kCoreHeader = 12;
constexpr std::int64_t kInfoHeader = 40;
constexpr std::int64_t kMostSide = 0x7FFFFFFF;
constexpr int kMostBits = 32;
// Two bytes say that a pixel comes so often.
constexpr std::int64_t kLongestRun = 255;

struct Header {
    std::int64_t pixelsAt = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
    int bits = 0;  // per pixel
    std::int64_t compression = kPlain;
};

std::int64_t Signed(std::int64_t value) {
    return value > kMostSide ? value - (std::int64_t{1} << 32U) : value;
}

std::optional<Header> ReadHeader(ClaimReader& reader) {
    Header header;
    reader.Skip(8);
    header.pixelsAt = reader.LittleLong();
    const std::int64_t length = reader.LittleLong();
    if (length == kCoreHeader) {
        header.width = reader.LittleWord();
        header.height = reader.LittleWord();
    } else if (length >= kInfoHeader) {
        header.width = Signed(reader.LittleLong());
        // The lines of a negative height stand top down.
        header.height = std::abs(Signed(reader.LittleLong()));
    }
    reader.Skip(2);
    header.bits = reader.LittleWord();
    if (length != kCoreHeader) {
        header.compression = reader.LittleLong();
    }
    const bool whole = !reader.Failed() && header.width > 0 && header.height > 0 &&
                       header.height <= kMostSide && header.bits > 0 && header.bits <= kMostBits;
    return whole ? std::optional<Header>(header) : std::nullopt;
}

}  // namespace

std::optional<Claim> ReadBmpClaim(std::span<const std::uint8_t> file) {
    ClaimReader reader(file);
    if (reader.Byte() != 'B' || reader.Byte() != 'M') {
        return std::nullopt;
    }
    const std::optional<Header> header = ReadHeader(reader);
    if (!header || header->width * header->height > kMostPixels) {
        return std::nullopt;
    }
    const auto there = static_cast<std::int64_t>(file.size()) - header->pixelsAt;
    const std::int64_t bytes =
        (header->width * header->bits + 31) / 32 * 4 * header->height;  // each line ends even
    Claim claim{
        FileKind::Bmp, {static_cast<int>(header->width), static_cast<int>(header->height)}, bytes};
    switch (header->compression) {
        case kPlain:
        case kMasks:
        case kMasksWithAlpha:
            return bytes <= there ? std::optional<Claim>(claim) : std::nullopt;
        case kRuns8:
        case kRuns4:
            return header->width * header->height <= there * kLongestRun
                       ? std::optional<Claim>(claim)
                       : std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace nviewlib
