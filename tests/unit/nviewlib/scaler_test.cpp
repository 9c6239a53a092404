// Images in other sizes.
#include "platform/nviewlib/scaler.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/unit/nviewlib/canvas.h"
#include "tests/unit/nviewlib/image_maker.h"

namespace nviewlib {
namespace {

using testing::Canvas;
using testing::Direction;
using testing::Picture;

// How much of the pixel `at` lies between two places.
double Covered(int at, double start, double end) {
    return std::max(0.0, std::min(end, at + 1.0) - std::max(start, static_cast<double>(at)));
}

// Each byte of the raster as a function of its place.
template <typename Value>
void Fill(const Raster& raster, ImageSize size, Value value) {
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            for (int channel = 0; channel < 3; ++channel) {
                raster.top[y * raster.pitch + x * 3 + channel] =
                    static_cast<std::uint8_t>(value(x, y, channel));
            }
        }
    }
}

int Chequered(int x, int y, int channel) { return (x * 37 + y * 91 + channel * 53) % 256; }

double MeanOf(ImageSize from, ImageSize to, int x, int y, int channel) {
    const double across = static_cast<double>(from.width) / to.width;
    const double down = static_cast<double>(from.height) / to.height;
    double sum = 0;
    for (int row = 0; row < from.height; ++row) {
        for (int column = 0; column < from.width; ++column) {
            sum += Covered(column, x * across, (x + 1) * across) *
                   Covered(row, y * down, (y + 1) * down) * Chequered(column, row, channel);
        }
    }
    return sum / (across * down);
}

TEST(Scaler, EachPixelOfASmallerImageIsTheMeanOfThoseThatItCovers) {
    constexpr ImageSize kFrom = {23, 17};
    Canvas from(Direction::BottomUp);
    const Raster image = from.Maker()(kFrom);
    Fill(image, kFrom, Chequered);
    for (const ImageSize size : {ImageSize{1, 1}, {5, 4}, {11, 17}, {22, 16}, {23, 17}}) {
        Canvas to(Direction::TopDown);
        Scale(image, kFrom, to.Maker()(size), size);
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x) {
                for (int channel = 0; channel < 3; ++channel) {
                    // Shares count in 256ths.
                    EXPECT_NEAR(to.Line(y)[static_cast<std::size_t>(x * 3 + channel)],
                                MeanOf(kFrom, size, x, y, channel), 3)
                        << size.width << "x" << size.height << " at " << x << "," << y;
                }
            }
        }
    }
}

TEST(Scaler, InItsOwnSizeAnImageStaysAsItIs) {
    constexpr ImageSize kSize = {9, 5};
    Canvas from(Direction::TopDown);
    const Raster image = from.Maker()(kSize);
    Fill(image, kSize, Chequered);
    Canvas to(Direction::BottomUp);
    Scale(image, kSize, to.Maker()(kSize), kSize);
    EXPECT_TRUE(to.SameLines(from));
}

TEST(Scaler, AnyImageOfOneColourKeepsItInAnySizeAndNothingElseIsWritten) {
    for (int side = 1; side < 40; side += 3) {
        for (int other = 1; other < 90; other += 4) {
            const ImageSize fromSize = {side, 40 - side};
            const ImageSize size = {other, 90 - other};
            Canvas from(Direction::TopDown);
            const Raster image = from.Maker()(fromSize);
            Fill(image, fromSize, [](int /*x*/, int /*y*/, int channel) { return 255 - channel; });
            Canvas to(Direction::BottomUp);
            Scale(image, fromSize, to.Maker()(size), size);
            const Picture drawn = to.Drawn();
            EXPECT_TRUE(std::all_of(drawn.pixels.begin(), drawn.pixels.end(),
                                    [](const auto& rgb) {
                                        return rgb == testing::Rgb{253, 254, 255};
                                    }))
                << side << " to " << other;
            EXPECT_TRUE(to.OutsideUntouched());
        }
    }
}

}  // namespace
}  // namespace nviewlib
