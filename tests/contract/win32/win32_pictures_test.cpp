// What pictures look like once the system decoded, stretched or encoded them.
#include <windows.h>

#include <gtest/gtest.h>

#include "platform/pictures.h"
#include "platform/win32/win32_bitmap.h"
#include "tests/contract/win32/picture_files.h"
#include "tests/contract/win32/the_platform.h"

namespace zentar {
namespace {

Pictures& System() { return ThePlatform().Services().pictures; }

// Two pixels side by side, blue and red, in a GIF file.
std::string TwoPixelGif() {
    using namespace std::string_literals;
    return "GIF89a\2\0\1\0\x80\0\0"s + "\0\0\xFF\xFF\0\0"s + ",\0\0\0\0\2\0\1\0\0"s +
           "\2\2\x44\x0A\0;"s;
}

}  // namespace

TEST(Win32Pictures, ABitmapFileShowsEveryPixel) {
    const BitmapPtr picture = System().Decode(BmpOf({33, 21}));
    ASSERT_NE(picture, nullptr);
    for (int y = 0; y < 21; ++y) {
        for (int x = 0; x < 33; ++x)
            ASSERT_EQ(PixelOf(picture, x, y), Pattern(x, y)) << x << "," << y;
    }
}

TEST(Win32Pictures, AGifShowsItsColours) {
    const BitmapPtr picture = System().Decode(TwoPixelGif());
    ASSERT_NE(picture, nullptr);
    ASSERT_EQ(picture->Dimensions(), (Size{2, 1}));
    EXPECT_EQ(PixelOf(picture, 0, 0), RGB(0, 0, 255));
    EXPECT_EQ(PixelOf(picture, 1, 0), RGB(255, 0, 0));
}

TEST(Win32Pictures, AnEncodedPictureIsTheFileThatItCameFrom) {
    const std::string bytes = BmpOf({33, 21});
    const BitmapPtr picture = System().Decode(bytes);
    ASSERT_NE(picture, nullptr);
    const Result<std::string> encoded = System().EncodeBmp(*picture);
    ASSERT_TRUE(encoded.Ok());
    ASSERT_EQ(encoded.Value().size(), bytes.size());
    // The header may say how many bytes of pixels there are, or leave it.
    EXPECT_EQ(encoded.Value().substr(0, 34), bytes.substr(0, 34));
    EXPECT_EQ(encoded.Value().substr(38), bytes.substr(38));
}

TEST(Win32Pictures, ASmallerPictureIsTheMeanOfWhatItCovers) {
    const auto chequered = [](int x, int y) -> COLORREF {
        return (x + y) % 2 == 0 ? RGB(200, 0, 100) : RGB(0, 100, 200);
    };
    const BitmapPtr picture = System().Decode(BmpOf({64, 48}, chequered));
    ASSERT_NE(picture, nullptr);
    const BitmapPtr small = System().Stretch(*picture, {16, 12});
    ASSERT_NE(small, nullptr);
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 16; ++x)
            ASSERT_EQ(PixelOf(small, x, y), RGB(100, 50, 150)) << x << "," << y;
    }
    // Also where a pixel covers others in part.
    const BitmapPtr odd = System().Stretch(*picture, {15, 11});
    ASSERT_NE(odd, nullptr);
    for (int y = 0; y < 11; ++y) {
        for (int x = 0; x < 15; ++x)
            ASSERT_LE(Distance(PixelOf(odd, x, y), RGB(100, 50, 150)), 12) << x << "," << y;
    }
}

TEST(Win32Pictures, APictureKeepsItsSidesAndColoursInAnySize) {
    const auto halves = [](int x, int /*y*/) -> COLORREF {
        return x < 1000 ? RGB(255, 0, 0) : RGB(0, 0, 255);
    };
    const BitmapPtr picture = System().Decode(BmpOf({2000, 3}, halves));
    ASSERT_NE(picture, nullptr);
    for (const Size size : {Size{320, 240}, Size{2, 1}, Size{2000, 3}, Size{4000, 9}}) {
        const BitmapPtr stretched = System().Stretch(*picture, size);
        ASSERT_NE(stretched, nullptr);
        for (int y = 0; y < size.height; ++y) {
            EXPECT_EQ(PixelOf(stretched, 0, y), RGB(255, 0, 0));
            EXPECT_EQ(PixelOf(stretched, size.width / 2 - 1, y) & 0xFF00U, 0U);
            EXPECT_EQ(PixelOf(stretched, size.width - 1, y), RGB(0, 0, 255));
        }
    }
}

TEST(Win32Pictures, ALargerPictureRunsSmoothlyFromColourToColour) {
    const BitmapPtr picture =
        System().Decode(BmpOf({2, 1}, [](int x, int) -> COLORREF { return RGB(x * 200, 0, 0); }));
    ASSERT_NE(picture, nullptr);
    const BitmapPtr large = System().Stretch(*picture, {100, 2});
    ASSERT_NE(large, nullptr);
    int before = 0;
    for (int x = 0; x < 100; ++x) {
        const int red = GetRValue(PixelOf(large, x, 1));
        EXPECT_GE(red, before);
        EXPECT_LE(red, before + 5);
        before = red;
    }
    EXPECT_EQ(before, 200);
}

TEST(Win32Pictures, StretchingToNothingGivesNothing) {
    const BitmapPtr picture = System().Decode(BmpOf({4, 4}));
    ASSERT_NE(picture, nullptr);
    for (const Size size : {Size{0, 0}, Size{0, 5}, Size{5, -1}})
        EXPECT_EQ(System().Stretch(*picture, size), nullptr);
}

TEST(Win32Pictures, BitmapsAreGivenBack) {
    const int before = UniqueBitmap::Live();
    {
        const BitmapPtr picture = System().Decode(BmpOf({64, 48}));
        const BitmapPtr small = System().Stretch(*picture, {10, 10});
        EXPECT_EQ(UniqueBitmap::Live(), before + 2);
    }
    EXPECT_EQ(UniqueBitmap::Live(), before);
}

}  // namespace zentar
