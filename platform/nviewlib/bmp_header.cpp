#include "platform/nviewlib/bmp_header.h"

#include <cstdlib>

#include "platform/nviewlib/byte_reader.h"

namespace nviewlib {
namespace {

constexpr std::int64_t kCoreHeader = 12;
constexpr std::int64_t kInfoHeader = 40;
constexpr std::int64_t kMostSide = 0x7FFFFFFF;
constexpr int kMostBits = 32;

std::int64_t Signed(std::int64_t value) {
    return value > kMostSide ? value - (std::int64_t{1} << 32U) : value;
}

}  // namespace

std::optional<BmpHeader> ReadBmpHeader(std::span<const std::uint8_t> file) {
    ByteReader reader(file);
    if (reader.Byte() != 'B' || reader.Byte() != 'M') {
        return std::nullopt;
    }
    BmpHeader header;
    reader.Skip(8);
    header.pixelsAt = reader.LittleLong();
    header.infoBytes = reader.LittleLong();
    if (header.infoBytes == kCoreHeader) {
        header.width = reader.LittleWord();
        header.height = reader.LittleWord();
    } else if (header.infoBytes >= kInfoHeader) {
        header.width = Signed(reader.LittleLong());
        header.height = Signed(reader.LittleLong());
    }
    reader.Skip(2);
    header.bits = reader.LittleWord();
    if (header.infoBytes != kCoreHeader) {
        header.compression = reader.LittleLong();
    }
    const bool whole = !reader.Failed() && header.width > 0 && header.height != 0 &&
                       std::abs(header.height) <= kMostSide && header.bits > 0 &&
                       header.bits <= kMostBits;
    return whole ? std::optional<BmpHeader>(header) : std::nullopt;
}

}  // namespace nviewlib
