#include "platform/nviewlib/claimed_size.h"

#include "platform/nviewlib/colour.h"

namespace nviewlib {
namespace {

// The file, what the decoder takes, and the image. The program itself needs the rest of the half
// gigabyte that it may take.
constexpr std::int64_t kMostBytes = std::int64_t{480} << 20U;

}  // namespace

std::optional<Claim> ReadClaim(std::span<const std::uint8_t> file) {
    std::optional<Claim> claim = ReadJpgClaim(file);
    if (!claim) {
        claim = ReadBmpClaim(file);
    }
    return claim ? claim : ReadGifClaim(file);
}

bool Affordable(const Claim& claim, std::size_t fileBytes) {
    const std::int64_t pixels = std::int64_t{claim.size.width} * claim.size.height;
    if (pixels < 1 || pixels > kMostPixels) {
        return false;
    }
    // The decoded lines come by way of a buffer that holds at least one of them.
    const std::int64_t image = (pixels + claim.size.width) * std::int64_t{kPixelBytes};
    return image + claim.decoderBytes + static_cast<std::int64_t>(fileBytes) <= kMostBytes;
}

}  // namespace nviewlib
