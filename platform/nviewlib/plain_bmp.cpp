#include "platform/nviewlib/plain_bmp.h"

#include <cstring>
#include <optional>
#include <utility>

#include "platform/nviewlib/bmp_header.h"
#include "platform/nviewlib/colour.h"

namespace nviewlib {
namespace {

constexpr std::size_t kHeaders = 54;  // BITMAPFILEHEADER and BITMAPINFOHEADER
constexpr std::int64_t kInfoHeader = 40;
constexpr int kBits = 24;

bool IsPlain(const BmpHeader& header) {
    return header.pixelsAt == std::int64_t{kHeaders} && header.infoBytes == kInfoHeader &&
           header.height > 0 && header.bits == kBits && header.compression == 0;
}

}  // namespace

bool DecodePlainBmp(std::span<const std::uint8_t> file, const RasterMaker& make) {
    const std::optional<BmpHeader> header = ReadBmpHeader(file);
    if (!header || !IsPlain(*header) || file.size() < kHeaders ||
        header->width * header->height > kMostPixels) {
        return false;
    }
    const auto [width, height] = std::pair(header->width, header->height);
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
