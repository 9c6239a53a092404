// The size of a JPEG file, from its frame header; see ITU-T Recommendation T.81, appendix B.

#include <algorithm>

#include "platform/nviewlib/byte_reader.h"
#include "platform/nviewlib/claimed_size.h"
#include "platform/nviewlib/jpg_tables.h"

namespace nviewlib {
namespace {

// The second bytes of markers.
constexpr std::uint8_t kTemporary = 0x01;
constexpr std::uint8_t kBaselineFrame = 0xC0;
constexpr std::uint8_t kProgressiveFrame = 0xC2;
constexpr std::uint8_t kHuffmanTables = 0xC4;
constexpr std::uint8_t kExtensions = 0xC8;
constexpr std::uint8_t kArithmeticTables = 0xCC;
constexpr std::uint8_t kLastFrame = 0xCF;
constexpr std::uint8_t kFirstRestart = 0xD0;
constexpr std::uint8_t kLastRestart = 0xD7;
constexpr std::uint8_t kStartOfImage = 0xD8;
constexpr std::uint8_t kEndOfImage = 0xD9;
constexpr std::uint8_t kStartOfScan = 0xDA;

constexpr int kMostComponents = 4;
constexpr int kMostSampling = 4;
constexpr int kSide = static_cast<int>(kBlockSide);
constexpr std::int64_t kCoefficientBytes = 2 * kBlockValues;

struct Frame {
    ImageSize size;
    int components = 0;
    bool progressive = false;
    std::int64_t blocks = 0;  // of 8 x 8 values, of all components
};

int CeilDivide(int value, int by) { return (value + by - 1) / by; }

// Moves behind the next marker. Between two of them there may be anything but the byte that begins
// one.
std::uint8_t NextMarker(ByteReader& file) {
    std::uint8_t byte = 0;
    do {
        while (!file.Failed() && byte != 0xFF) {
            byte = file.Byte();
        }
        while (!file.Failed() && byte == 0xFF) {
            byte = file.Byte();
        }
    } while (!file.Failed() && byte == 0);
    return byte;
}

bool IsFrame(std::uint8_t marker) {
    return marker >= kBaselineFrame && marker <= kLastFrame && marker != kHuffmanTables &&
           marker != kExtensions && marker != kArithmeticTables;
}

bool StandsAlone(std::uint8_t marker) {
    return marker == kTemporary || (marker >= kFirstRestart && marker <= kLastRestart);
}

std::optional<Frame> ReadFrame(ByteReader segment, std::uint8_t marker) {
    Frame frame;
    frame.progressive = marker == kProgressiveFrame;
    const int bitsPerValue = segment.Byte();
    frame.size.height = segment.BigWord();
    frame.size.width = segment.BigWord();
    frame.components = segment.Byte();
    if (bitsPerValue != 8 || frame.components < 1 || frame.components > kMostComponents) {
        return std::nullopt;
    }
    int across = 1;
    int down = 1;
    int perUnit = 0;  // blocks
    for (int i = 0; i < frame.components; ++i) {
        segment.Skip(1);
        const int sampling = segment.Byte();
        const int horizontal = sampling >> 4U;
        const int vertical = sampling & 0xF;
        if (horizontal < 1 || horizontal > kMostSampling || vertical < 1 ||
            vertical > kMostSampling) {
            return std::nullopt;
        }
        across = std::max(across, horizontal);
        down = std::max(down, vertical);
        perUnit += horizontal * vertical;
        segment.Skip(1);
    }
    frame.blocks = std::int64_t{CeilDivide(frame.size.width, kSide * across)} *
                   CeilDivide(frame.size.height, kSide * down) * perUnit;
    return segment.Failed() || frame.blocks == 0 ? std::nullopt : std::optional<Frame>(frame);
}

// A block takes at least a bit. The decoder keeps the whole image, and, when its components come
// one after the other, all coefficients.
std::optional<Claim> ClaimOf(const Frame& frame, int componentsInScan, std::size_t fileBytes) {
    if (frame.blocks > static_cast<std::int64_t>(fileBytes) * 8) {
        return std::nullopt;
    }
    const bool whole = frame.progressive || componentsInScan != frame.components;
    const std::int64_t pixels = std::int64_t{frame.size.width} * frame.size.height;
    return Claim{FileKind::Jpg, frame.size,
                 pixels * frame.components + (whole ? frame.blocks * kCoefficientBytes : 0)};
}

}  // namespace

std::optional<Claim> ReadJpgClaim(std::span<const std::uint8_t> file) {
    ByteReader reader(file);
    if (reader.Byte() != 0xFF || reader.Byte() != kStartOfImage) {
        return std::nullopt;
    }
    std::optional<Frame> frame;
    while (!reader.Failed()) {
        const std::uint8_t marker = NextMarker(reader);
        if (StandsAlone(marker)) {
            continue;
        }
        const ByteReader segment(file, reader.At() + 2);
        const int length = reader.BigWord();
        if (reader.Failed() || length < 2 || marker == kEndOfImage || marker == kStartOfImage) {
            return std::nullopt;
        }
        if (marker == kStartOfScan) {
            return frame ? ClaimOf(*frame, reader.Byte(), file.size()) : std::nullopt;
        }
        if (IsFrame(marker)) {
            // A second one, or a kind of coding that no decoder of the system knows.
            if (frame || marker > kProgressiveFrame) {
                return std::nullopt;
            }
            frame = ReadFrame(segment, marker);
            if (!frame) {
                return std::nullopt;
            }
        }
        reader.Skip(static_cast<std::size_t>(length) - 2);
    }
    return std::nullopt;
}

}  // namespace nviewlib
