#include "platform/nviewlib/scaler.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/nviewlib/colour.h"

namespace nviewlib {
namespace {

// Shares count in 256ths, so that a sum of bytes by shares fits 16 bits, of which the processor
// adds eight at a time.
constexpr int kWhole = 256;
constexpr std::uint32_t kHalfOfBoth = kWhole * kWhole / 2;

// Which of the pixels of a line, or lines of a picture, make up one of the result, and with what
// shares, which sum up to the whole.
struct Mix {
    std::size_t first = 0;
    std::span<const std::uint16_t> shares;
};

class Mixes {
  public:
    Mixes(int from, int to) {
        shares_.reserve(2 * static_cast<std::size_t>(std::max(from, to)) + 2);
        parts_.reserve(static_cast<std::size_t>(to));
        const double ratio = static_cast<double>(from) / to;
        for (int i = 0; i < to; ++i) {
            if (ratio >= 1) {
                AddMean(i * ratio, std::min<double>((i + 1) * ratio, from));
            } else {
                AddBlend((i + 0.5) * ratio - 0.5, from);
            }
        }
    }

    Mix operator[](std::size_t index) const {
        const Part& part = parts_[index];
        return {part.first, {shares_.data() + part.at, part.count}};
    }

  private:
    struct Part {
        std::size_t first;
        std::size_t at;
        std::size_t count;
    };

    // What lies between two places on the line. Rounding the sums keeps their total exact.
    void AddMean(double start, double end) {
        const auto first = static_cast<std::size_t>(start);
        const auto last = static_cast<std::size_t>(std::ceil(end));
        parts_.push_back({first, shares_.size(), last - first});
        int given = 0;
        for (std::size_t i = first; i < last; ++i) {
            const double covered = std::min(static_cast<double>(i + 1), end) - start;
            const int sum = i + 1 == last
                                ? kWhole
                                : static_cast<int>(std::lround(covered / (end - start) * kWhole));
            shares_.push_back(static_cast<std::uint16_t>(sum - given));
            given = sum;
        }
    }

    // The two whose middles lie around a place.
    void AddBlend(double place, int from) {
        const double within = std::clamp(place, 0.0, static_cast<double>(from - 1));
        const auto first = static_cast<std::size_t>(within);
        const int second =
            static_cast<int>(std::lround((within - static_cast<double>(first)) * kWhole));
        const bool two = second > 0;
        parts_.push_back({first, shares_.size(), two ? std::size_t{2} : std::size_t{1}});
        shares_.push_back(static_cast<std::uint16_t>(kWhole - second));
        if (two) {
            shares_.push_back(static_cast<std::uint16_t>(second));
        }
    }

    std::vector<Part> parts_;
    std::vector<std::uint16_t> shares_;
};

void AddLine(const std::uint8_t* line, std::uint16_t share, std::span<std::uint16_t> sums) {
    std::uint16_t* const to = sums.data();
    for (std::size_t i = 0; i < sums.size(); ++i) {
        to[i] = static_cast<std::uint16_t>(to[i] + line[i] * share);
    }
}

void MixLines(const Raster& raster, const Mix& mix, std::span<std::uint16_t> sums) {
    std::fill(sums.begin(), sums.end(), std::uint16_t{0});
    const std::uint8_t* line = raster.top + static_cast<std::ptrdiff_t>(mix.first) * raster.pitch;
    for (const std::uint16_t share : mix.shares) {
        AddLine(line, share, sums);
        line += raster.pitch;
    }
}

void MixPixels(std::span<const std::uint16_t> sums, const Mix& mix, std::uint8_t* to) {
    std::uint32_t blue = kHalfOfBoth;
    std::uint32_t green = kHalfOfBoth;
    std::uint32_t red = kHalfOfBoth;
    const std::uint16_t* from = sums.data() + kPixelBytes * mix.first;
    for (const std::uint16_t share : mix.shares) {
        blue += std::uint32_t{from[0]} * share;
        green += std::uint32_t{from[1]} * share;
        red += std::uint32_t{from[2]} * share;
        from += kPixelBytes;
    }
    to[0] = static_cast<std::uint8_t>(blue / (kWhole * kWhole));
    to[1] = static_cast<std::uint8_t>(green / (kWhole * kWhole));
    to[2] = static_cast<std::uint8_t>(red / (kWhole * kWhole));
}

}  // namespace

void Scale(const Raster& from, ImageSize fromSize, const Raster& to, ImageSize toSize) {
    const Mixes across(fromSize.width, toSize.width);
    const Mixes down(fromSize.height, toSize.height);
    std::vector<std::uint16_t> sums(kPixelBytes * static_cast<std::size_t>(fromSize.width));
    std::uint8_t* line = to.top;
    for (int y = 0; y < toSize.height; ++y) {
        MixLines(from, down[static_cast<std::size_t>(y)], sums);
        std::uint8_t* pixel = line;
        for (int x = 0; x < toSize.width; ++x) {
            MixPixels(sums, across[static_cast<std::size_t>(x)], pixel);
            pixel += kPixelBytes;
        }
        line += to.pitch;
    }
}

}  // namespace nviewlib
