// JPEG files are whole, of the quality asked for, and look as what they were made of.
#include "platform/nviewlib/jpg_encoder.h"

#include <gtest/gtest.h>
#ifndef _WIN32
#include <unistd.h>
#endif

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/nviewlib/claimed_size.h"
#include "platform/nviewlib/jpg_bits.h"
#include "platform/nviewlib/jpg_tables.h"
#include "tests/unit/nviewlib/real_images.h"

namespace nviewlib {
namespace {

struct Canvas {
    explicit Canvas(ImageSize s)
        : size(s),
          pixels(static_cast<std::size_t>(s.width) * static_cast<std::size_t>(s.height) * 3) {}
    Raster TopDown() { return {pixels.data(), std::ptrdiff_t{size.width} * 3}; }
    Raster BottomUp() {
        return {pixels.data() + std::ptrdiff_t{size.width} * 3 * (size.height - 1),
                -std::ptrdiff_t{size.width} * 3};
    }
    ImageSize size;
    std::vector<std::uint8_t> pixels;
};

Canvas Smooth(ImageSize size) {
    Canvas canvas(size);
    std::size_t at = 0;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            canvas.pixels[at++] = static_cast<std::uint8_t>((x + y) / 2);
            canvas.pixels[at++] = static_cast<std::uint8_t>(y);
            canvas.pixels[at++] = static_cast<std::uint8_t>(x);
        }
    }
    return canvas;
}

std::vector<std::uint8_t> Encoded(Canvas& canvas, int quality) {
    return EncodeJpg(canvas.TopDown(), canvas.size, quality).value();
}

}  // namespace

TEST(JpgEncoder, WritesAWholeFileOfTheImagesSize) {
    for (const ImageSize size :
         {ImageSize{1, 1}, ImageSize{16, 16}, ImageSize{17, 15}, ImageSize{200, 3}}) {
        Canvas canvas = Smooth(size);
        const std::vector<std::uint8_t> bytes = Encoded(canvas, 80);
        const std::optional<Claim> claim = ReadClaim(bytes);
        ASSERT_TRUE(claim);
        EXPECT_EQ(claim->size, size);
        EXPECT_EQ(bytes[bytes.size() - 2], 0xFF);
        EXPECT_EQ(bytes.back(), 0xD9);
    }
}

TEST(JpgEncoder, DividesByTheTablesOfTheQuality) {
    const auto first = [](int quality) {
        Canvas canvas = Smooth({8, 8});
        // Behind both starts and the JFIF segment, and the head of the table itself.
        return static_cast<int>(Encoded(canvas, quality)[2 + 18 + 5]);
    };
    EXPECT_EQ(first(50), 16);
    EXPECT_EQ(first(80), 6);
    EXPECT_EQ(first(100), 1);
    EXPECT_EQ(first(10), 80);
    EXPECT_EQ(first(0), 255);
}

TEST(JpgEncoder, ABetterQualityTakesMoreBytes) {
    Canvas canvas = Smooth({120, 90});
    std::size_t before = 0;
    for (const int quality : {0, 20, 50, 80, 95, 100}) {
        const std::size_t now = Encoded(canvas, quality).size();
        EXPECT_GE(now, before);
        before = now;
    }
}

TEST(JpgEncoder, TheOrderOfTheLinesInMemoryDoesNotMatter) {
    Canvas canvas = Smooth({40, 30});
    const std::vector<std::uint8_t> topDown = Encoded(canvas, 80);
    for (int y = 0; y < 15; ++y) {
        std::swap_ranges(canvas.pixels.begin() + y * 120, canvas.pixels.begin() + (y + 1) * 120,
                         canvas.pixels.begin() + (29 - y) * 120);
    }
    EXPECT_EQ(EncodeJpg(canvas.BottomUp(), canvas.size, 80).value(), topDown);
}

TEST(JpgEncoder, AnImageThatNoFileCanHoldIsNone) {
    std::uint8_t pixel[3]{};
    for (const ImageSize size : {ImageSize{0, 1}, ImageSize{1, 0}, ImageSize{65'536, 1}}) {
        EXPECT_FALSE(EncodeJpg({pixel, 3}, size, 80));
    }
}

TEST(JpgEncoder, TheExtremesOfAllPatternsHaveCodes) {
    // Black and white in every pattern of the transform, which gives the largest values there are.
    for (const int quality : {1, 100}) {
        for (unsigned u = 0; u < 64; ++u) {
            Canvas canvas({16, 16});
            for (unsigned i = 0; i < 256; ++i) {
                const bool white = ((i * (u % 8 + 1) / 8 + i / 16 * (u / 8 + 1) / 8) & 1U) != 0;
                std::fill_n(canvas.pixels.begin() + i * 3, 3, white ? 255 : 0);
            }
            EXPECT_GT(Encoded(canvas, quality).size(), 600U);
        }
    }
    for (const HuffmanTable& table : {kLumaRest, kChromaRest}) {
        const HuffmanCodes codes = CodesOf(table);
        for (unsigned zeros = 0; zeros < 16; ++zeros) {
            for (unsigned count = 1; count <= 10; ++count) {
                EXPECT_GT(codes[zeros * 16 + count].length, 0);
            }
        }
    }
}

TEST(JpgEncoder, ABitOfOnesInTheDataIsNoMarker) {
    std::vector<std::uint8_t> bytes;
    JpgBits bits(bytes);
    bits.Put(0xFF, 8);
    bits.Put(0x5, 3);
    bits.End();
    EXPECT_EQ(bytes, (std::vector<std::uint8_t>{0xFF, 0x00, 0xBF}));
}

#ifndef _WIN32
TEST(JpgEncoder, AnotherDecoderShowsTheImage) {
    if (std::system("command -v convert >/dev/null 2>&1") != 0) {
        GTEST_SKIP() << "ImageMagick is not installed";
    }
    const std::filesystem::path folder = std::filesystem::temp_directory_path();
    const std::string name = (folder / ("zentar-encoder-" + std::to_string(::getpid()))).string();
    for (const ImageSize size : {ImageSize{200, 150}, ImageSize{33, 17}, ImageSize{1, 1}}) {
        Canvas canvas = Smooth(size);
        const std::vector<std::uint8_t> bytes = Encoded(canvas, 90);
        std::ofstream(name + ".jpg", std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
        const std::string command = "convert " + name + ".jpg -depth 8 bgr:" + name + ".bgr";
        ASSERT_EQ(std::system(command.c_str()), 0);
        const std::string shown = testing::Slurp(name + ".bgr");
        ASSERT_EQ(shown.size(), canvas.pixels.size());
        for (std::size_t i = 0; i < shown.size(); ++i) {
            ASSERT_LE(std::abs(static_cast<std::uint8_t>(shown[i]) - canvas.pixels[i]), 12) << i;
        }
    }
    std::filesystem::remove(name + ".jpg");
    std::filesystem::remove(name + ".bgr");
}
#endif

}  // namespace nviewlib
