#include "platform/nviewlib/plain_bmp.h"

#include <cstring>
#include <optional>
#include <utility>

#include "platform/nviewlib/claim_reader.h"
#include "platform/nviewlib/colour.h"

namespace nviewlib {
namespace {

constexpr std::size_t kHeaders = 54;  // BITMAPFILEHEADER and BITMAPINFOHEADER
constexpr std::int64_t kInfoHeader = 40;
constexpr int kSignature = 0x4D42;  // "BM"
constexpr int kBits = 24;
constexpr std::int64_t kMostSide = 0x7FFFFFFF;

// The size that the headers tell; nothing when they tell of another kind of bitmap. A negative
// height, of lines that stand top down, comes out as too large a number.
std::optional<std::pair<std::int64_t, std::int64_t>> ReadPlainSize(
    std::span<const std::uint8_t> file) {
    ClaimReader reader(file);
    const bool isBitmap = reader.LittleWord() == kSignature;
    reader.Skip(8);
    const bool hasPlainHeaders =
        reader.LittleLong() == std::int64_t{kHeaders} && reader.LittleLong() == kInfoHeader;
    const std::int64_t width = reader.LittleLong();
    const std::int64_t height = reader.LittleLong();
    reader.Skip(2);
    const bool isPlain = reader.LittleWord() == kBits && reader.LittleLong() == 0;
    if (!isBitmap || !hasPlainHeaders || !isPlain || file.size() < kHeaders) {
        return std::nullopt;
    }
    return std::pair(width, height);
}

}  // namespace

bool DecodePlainBmp(std::span<const std::uint8_t> file, const RasterMaker& make) {
    const auto [width, height] =
        ReadPlainSize(file).value_or(std::pair<std::int64_t, std::int64_t>());
    if (width < 1 || width > kMostSide || height < 1 || height > kMostSide ||
        width * height > kMostPixels) {
        return false;
    }
    const auto line = static_cast<std::size_t>(width) * kPixelBytes;
    const std::size_t step = (line + 3) / 4 * 4;  // each line ends with a whole word
    if (step * static_cast<std::size_t>(height) > file.size() - kHeaders) {
        return false;
    }
    const Raster raster = make({static_cast<int>(width), static_cast<int>(height)});
    if (raster.top == nullptr) {
        return false;
    }
    const std::uint8_t* from = file.data() + kHeaders;
    for (std::int64_t y = height - 1; y >= 0; --y) {
        std::memcpy(raster.top + y * raster.pitch, from, line);
        from += step;
    }
    return true;
}

}  // namespace nviewlib
