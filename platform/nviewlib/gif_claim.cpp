// The size of a GIF file's first image, and of all of them, since a decoder may keep all; see
// "Graphics Interchange Format, Version 89a".

#include <string_view>

#include "platform/nviewlib/byte_reader.h"
#include "platform/nviewlib/claimed_size.h"

namespace nviewlib {
namespace {

constexpr int kExtension = 0x21;
constexpr int kImage = 0x2C;
constexpr unsigned kHasColours = 0x80;
// The longest string that one code of twelve bits stands for, rounded up.
constexpr std::int64_t kMostPixelsPerByte = 4096;

bool BeginsWith(ByteReader& reader, std::string_view text) {
    for (const char c : text) {
        if (reader.Byte() != static_cast<std::uint8_t>(c)) {
            return false;
        }
    }
    return true;
}

void SkipColours(ByteReader& reader, unsigned flags) {
    if ((flags & kHasColours) != 0) {
        reader.Skip(std::size_t{3} << ((flags & 7U) + 1));
    }
}

void SkipBlocks(ByteReader& reader) {
    for (std::uint8_t length = reader.Byte(); length != 0; length = reader.Byte()) {
        reader.Skip(length);
    }
}

ImageSize ReadImage(ByteReader& reader) {
    reader.Skip(4);
    const int width = reader.LittleWord();
    const int height = reader.LittleWord();
    SkipColours(reader, reader.Byte());
    reader.Skip(1);
    SkipBlocks(reader);
    return {width, height};
}

std::int64_t Area(ImageSize size) { return std::int64_t{size.width} * size.height; }

}  // namespace

std::optional<Claim> ReadGifClaim(std::span<const std::uint8_t> file) {
    ByteReader reader(file);
    if (!BeginsWith(reader, "GIF8")) {
        return std::nullopt;
    }
    reader.Skip(2);
    const int screenWidth = reader.LittleWord();
    const int screenHeight = reader.LittleWord();
    const std::uint8_t flags = reader.Byte();
    reader.Skip(2);
    SkipColours(reader, flags);
    Claim claim{FileKind::Gif, {}, Area({screenWidth, screenHeight})};
    // Whatever does not begin a block ends the file, as its trailer does.
    for (int block = reader.Byte(); block == kExtension || block == kImage; block = reader.Byte()) {
        if (block == kExtension) {
            reader.Skip(1);
            SkipBlocks(reader);
            continue;
        }
        const ImageSize size = ReadImage(reader);
        claim.decoderBytes += Area(size);
        if (claim.size == ImageSize{}) {
            claim.size = size;
        }
    }
    const bool possible =
        Area(claim.size) > 0 && claim.decoderBytes - Area({screenWidth, screenHeight}) <=
                                    static_cast<std::int64_t>(file.size()) * kMostPixelsPerByte;
    return possible ? std::optional<Claim>(claim) : std::nullopt;
}

}  // namespace nviewlib
