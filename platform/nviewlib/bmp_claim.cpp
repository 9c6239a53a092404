// The size of a Windows bitmap file, from its header.

#include <cstdlib>

#include "platform/nviewlib/bmp_header.h"
#include "platform/nviewlib/claimed_size.h"

namespace nviewlib {
namespace {

// Ways of compression.
constexpr std::int64_t kPlain = 0;
constexpr std::int64_t kRuns8 = 1;
constexpr std::int64_t kRuns4 = 2;
constexpr std::int64_t kMasks = 3;
constexpr std::int64_t kMasksWithAlpha = 6;

// Two bytes say that a pixel comes so often.
constexpr std::int64_t kLongestRun = 255;

}  // namespace

std::optional<Claim> ReadBmpClaim(std::span<const std::uint8_t> file) {
    const std::optional<BmpHeader> header = ReadBmpHeader(file);
    if (!header) {
        return std::nullopt;
    }
    const std::int64_t height = std::abs(header->height);
    const std::int64_t pixels = header->width * height;
    if (pixels > kMostPixels) {
        return std::nullopt;
    }
    const auto there = static_cast<std::int64_t>(file.size()) - header->pixelsAt;
    const std::int64_t bytes =
        (header->width * header->bits + 31) / 32 * 4 * height;  // each line ends even
    Claim claim{FileKind::Bmp, {static_cast<int>(header->width), static_cast<int>(height)}, bytes};
    switch (header->compression) {
        case kPlain:
        case kMasks:
        case kMasksWithAlpha:
            return bytes <= there ? std::optional<Claim>(claim) : std::nullopt;
        case kRuns8:
        case kRuns4:
            return pixels <= there * kLongestRun ? std::optional<Claim>(claim) : std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace nviewlib
