#include "platform/nviewlib/jpg_encoder.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <utility>

#include "platform/nviewlib/colour.h"
#include "platform/nviewlib/jpg_bits.h"
#include "platform/nviewlib/jpg_block.h"
#include "platform/nviewlib/jpg_tables.h"

namespace nviewlib {
namespace {

constexpr int kLongestSide = 65535;
// Four blocks of brightness and one of each colour difference cover this square.
constexpr std::size_t kUnitSide = 2 * kBlockSide;

// The values of one line of units.
struct Planes {
    explicit Planes(int imageWidth)
        : width((static_cast<std::size_t>(imageWidth) + kUnitSide - 1) / kUnitSide * kUnitSide),
          luma(width * kUnitSide),
          blueness(width / 2 * kBlockSide),
          redness(width / 2 * kBlockSide) {}

    std::size_t width;
    std::vector<float> luma;
    std::vector<float> blueness;
    std::vector<float> redness;
};

// Columns beyond the image repeat its last one.
template <typename Value>
void ReadPixels(const std::uint8_t* line, std::size_t imageWidth, std::size_t width, Value put) {
    for (std::size_t x = 0; x < imageWidth; ++x) {
        put(x, line + kPixelBytes * x);
    }
    for (std::size_t x = imageWidth; x < width; ++x) {
        put(x, line + kPixelBytes * (imageWidth - 1));
    }
}

void ReadLine(const std::uint8_t* line, std::size_t imageWidth, std::size_t y, Planes& planes) {
    float* const luma = planes.luma.data() + y * planes.width;
    float* const blueness = planes.blueness.data() + y / 2 * (planes.width / 2);
    float* const redness = planes.redness.data() + y / 2 * (planes.width / 2);
    if (y % 2 == 0) {
        std::fill_n(blueness, planes.width / 2, 0.0F);
        std::fill_n(redness, planes.width / 2, 0.0F);
    }
    ReadPixels(line, imageWidth, planes.width, [=](std::size_t x, const std::uint8_t* pixel) {
        const float blue = pixel[0];
        const float green = pixel[1];
        const float red = pixel[2];
        luma[x] = 0.299F * red + 0.587F * green + 0.114F * blue - 128.0F;
        // Each is the mean of four pixels.
        blueness[x / 2] += (-0.168736F * red - 0.331264F * green + 0.5F * blue) / 4;
        redness[x / 2] += (0.5F * red - 0.418688F * green - 0.081312F * blue) / 4;
    });
}

Block BlockAt(const std::vector<float>& plane, std::size_t width, std::size_t left,
              std::size_t top) {
    Block block{};
    for (std::size_t y = 0; y < kBlockSide; ++y) {
        std::copy_n(plane.data() + (top + y) * width + left, kBlockSide,
                    block.data() + y * kBlockSide);
    }
    return block;
}

class Encoder {
  public:
    Encoder(ImageSize size, int quality)
        : size_(size),
          lumaDivisors_(ScaledTo(quality, kLumaDivisors)),
          chromaDivisors_(ScaledTo(quality, kChromaDivisors)) {}

    std::vector<std::uint8_t> Encode(const Raster& raster) {
        PutHead();
        PutImage(raster);
        Put({0xFF, 0xD9});  // end of image
        return std::move(bytes_);
    }

  private:
    void Put(std::initializer_list<int> bytes) {
        for (const int byte : bytes) {
            bytes_.push_back(static_cast<std::uint8_t>(byte));
        }
    }

    void PutWord(int word) { Put({word / 256, word % 256}); }

    void PutDivisors(int number, const Divisors& divisors) {
        Put({0xFF, 0xDB, 0, 3 + static_cast<int>(kBlockValues), number});
        for (const std::uint8_t at : kZigZag) {
            bytes_.push_back(divisors[at]);
        }
    }

    void PutCodes(int number, const HuffmanTable& table) {
        Put({0xFF, 0xC4});
        PutWord(static_cast<int>(3 + table.counts.size() + table.symbols.size()));
        Put({number});
        bytes_.insert(bytes_.end(), table.counts.begin(), table.counts.end());
        bytes_.insert(bytes_.end(), table.symbols.begin(), table.symbols.end());
    }

    void PutHead() {
        Put({0xFF, 0xD8});  // start of image
        // JFIF 1.02, pixels as wide as high, no thumbnail.
        Put({0xFF, 0xE0, 0, 16, 'J', 'F', 'I', 'F', 0, 1, 2, 0, 0, 1, 0, 1, 0, 0});
        PutDivisors(0, lumaDivisors_);
        PutDivisors(1, chromaDivisors_);
        Put({0xFF, 0xC0, 0, 17, 8});  // baseline frame of 8 bits a value
        PutWord(size_.height);
        PutWord(size_.width);
        // Three components: number, blocks across and down, divisors.
        Put({3, 1, 0x22, 0, 2, 0x11, 1, 3, 0x11, 1});
        PutCodes(0x00, kLumaFirst);
        PutCodes(0x10, kLumaRest);
        PutCodes(0x01, kChromaFirst);
        PutCodes(0x11, kChromaRest);
        // One scan of all three, each with its codes.
        Put({0xFF, 0xDA, 0, 12, 3, 1, 0x00, 2, 0x11, 3, 0x11, 0, 63, 0});
    }

    void PutImage(const Raster& raster) {
        JpgBlockEncoder luma(lumaDivisors_, kLumaFirst, kLumaRest);
        JpgBlockEncoder blueness(chromaDivisors_, kChromaFirst, kChromaRest);
        JpgBlockEncoder redness(chromaDivisors_, kChromaFirst, kChromaRest);
        JpgBits bits(bytes_);
        Planes planes(size_.width);
        for (int top = 0; top < size_.height; top += static_cast<int>(kUnitSide)) {
            for (std::size_t y = 0; y < kUnitSide; ++y) {
                // Lines below the image repeat its last one.
                const int line = std::min(top + static_cast<int>(y), size_.height - 1);
                ReadLine(raster.top + line * raster.pitch, static_cast<std::size_t>(size_.width), y,
                         planes);
            }
            for (std::size_t left = 0; left < planes.width; left += kUnitSide) {
                for (const std::size_t down : {std::size_t{0}, kBlockSide}) {
                    for (const std::size_t right : {std::size_t{0}, kBlockSide}) {
                        luma.Encode(BlockAt(planes.luma, planes.width, left + right, down), bits);
                    }
                }
                blueness.Encode(BlockAt(planes.blueness, planes.width / 2, left / 2, 0), bits);
                redness.Encode(BlockAt(planes.redness, planes.width / 2, left / 2, 0), bits);
            }
        }
        bits.End();
    }

    ImageSize size_;
    Divisors lumaDivisors_;
    Divisors chromaDivisors_;
    std::vector<std::uint8_t> bytes_;
};

}  // namespace

std::optional<std::vector<std::uint8_t>> EncodeJpg(const Raster& raster, ImageSize size,
                                                   int quality) {
    if (size.width < 1 || size.height < 1 || size.width > kLongestSide ||
        size.height > kLongestSide) {
        return std::nullopt;
    }
    return Encoder(size, quality).Encode(raster);
}

}  // namespace nviewlib
