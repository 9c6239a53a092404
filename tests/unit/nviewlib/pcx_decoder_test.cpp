// PCX files of every kind show the pixels that were put in.
#include "platform/nviewlib/pcx_decoder.h"

#include <gtest/gtest.h>

#include "tests/unit/nviewlib/outcome.h"

namespace nviewlib::testing {
namespace {

constexpr std::size_t kPaletteAt = 16;

std::string Bytes(std::initializer_list<int> values) { return {values.begin(), values.end()}; }

Picture Decoded(const std::string& file) {
    return Decode(DecodePcx, file).picture.value_or(Picture());
}

// As it is, with runs, with runs that cross lines, and with lines longer than needed.
void ShowsItsPixels(const Picture& picture, const PcxKind& kind) {
    for (const int encoding : {0, 1}) {
        for (const bool cross : {false, true}) {
            for (const int padding : {0, 1, 7}) {
                PcxKind one = kind;
                one.encoding = encoding;
                one.cross = cross;
                one.padding = padding;
                EXPECT_EQ(Decoded(MakePcx(picture, one)), picture)
                    << kind.bits << " bits, " << kind.planes << " planes, encoding " << encoding
                    << ", cross " << cross << ", padding " << padding << ", width "
                    << picture.width;
            }
        }
    }
}

// An 8 bit file of grey indexes, with such bytes as its lines.
std::string Indexed(int width, int height, const std::string& lines) {
    Picture grey{16, 16, {}};
    for (int i = 0; i < 256; ++i) {
        const auto value = static_cast<std::uint8_t>(i);
        grey.pixels.push_back({value, value, value});
    }
    std::string file = MakePcx(grey, {});
    const std::string palette = file.substr(file.size() - kPcxPaletteBytes);
    file = file.substr(0, kPcxLinesAt);
    file[8] = static_cast<char>(width - 1);
    file[10] = static_cast<char>(height - 1);
    file[66] = static_cast<char>(width);
    return file + lines + palette;
}

std::vector<Rgb> Grey(std::initializer_list<int> values) {
    std::vector<Rgb> pixels;
    for (const int value : values) {
        const auto grey = static_cast<std::uint8_t>(value);
        pixels.push_back({grey, grey, grey});
    }
    return pixels;
}

TEST(PcxDecoder, ShowsUpTo16ColoursInEachKindOfPlanes) {
    for (const int width : {1, 7, 8, 9, 61}) {
        for (const int planes : {1, 2, 3, 4}) {
            ShowsItsPixels(FewColours(width, 12, 1 << planes), {.bits = 1, .planes = planes});
        }
        ShowsItsPixels(FewColours(width, 12, 4), {.bits = 2});
        ShowsItsPixels(FewColours(width, 12, 16), {.bits = 4});
    }
}

TEST(PcxDecoder, Shows256Colours) {
    for (const int width : {1, 2, 61, 320}) {
        ShowsItsPixels(FewColours(width, 37, 256), {});
    }
}

TEST(PcxDecoder, ShowsTrueColoursAndLeavesAlphaOut) {
    for (const int width : {1, 2, 61, 320}) {
        ShowsItsPixels(GameView(width, 37), {.planes = 3});
        ShowsItsPixels(GameView(width, 37), {.planes = 4});
    }
}

TEST(PcxDecoder, ShowsAShotAsTheGamesWriteIt) {
    // Single bytes only, and "grey" before a palette of colours.
    const Picture shot = FewColours(360, 400, 256);
    EXPECT_EQ(Decoded(MakePcx(shot, {.paletteType = 2, .realRuns = false})), shot);
}

TEST(PcxDecoder, DoesNotMindTheVersion) {
    for (const int version : {0, 2, 3, 4, 5, 255}) {
        ShowsItsPixels(FewColours(20, 9, 256), {.version = version});
        ShowsItsPixels(FewColours(20, 9, 16), {.bits = 4, .version = version});
    }
}

TEST(PcxDecoder, TakesImagesThatDoNotBeginAtTheCorner) {
    ShowsItsPixels(FewColours(20, 9, 256), {.left = 300, .top = 1000});
    ShowsItsPixels(FewColours(20, 9, 256), {.left = 65516, .top = 65527});
}

TEST(PcxDecoder, ShowsBlackAndWhiteWhereThePaletteIsEmpty) {
    std::string file = MakePcx({2, 1, {{9, 9, 9}, {1, 2, 3}}}, {.bits = 1});
    EXPECT_EQ(Decoded(file).pixels, (std::vector<Rgb>{{9, 9, 9}, {1, 2, 3}}));
    for (const char same : {'\0', '\xFF'}) {
        file.replace(kPaletteAt, 48, 48, same);
        EXPECT_EQ(Decoded(file).pixels, Grey({0, 255}));
    }
}

TEST(PcxDecoder, ShowsThePaletteAsItIsWhereThereAreMoreThanTwoColours) {
    std::string file = MakePcx({3, 1, Grey({1, 2, 3})}, {.bits = 2});
    file.replace(kPaletteAt, 6, 6, 7);
    EXPECT_EQ(Decoded(file).pixels, Grey({7, 7, 3}));
}

TEST(PcxDecoder, GoesOnWithARunInTheNextLineAndPlane) {
    EXPECT_EQ(Decoded(Indexed(2, 3, Bytes({0xC6, 7}))).pixels, Grey({7, 7, 7, 7, 7, 7}));
    EXPECT_EQ(Decoded(Indexed(2, 3, Bytes({1, 0xC4, 7, 2}))).pixels, Grey({1, 7, 7, 7, 7, 2}));
    // Two pixels of the same red, green and blue: one run over three planes.
    EXPECT_EQ(MakePcx({2, 1, Grey({50, 50})}, {.planes = 3, .cross = true}).size(),
              kPcxLinesAt + 2);
}

TEST(PcxDecoder, TakesRunsOfEveryLength) {
    for (int count = 1; count <= 63; ++count) {
        std::string lines = Bytes({0xC0 + count, 200});
        for (int rest = count; rest < 70; ++rest) {
            lines += Bytes({0xC1, 210});
        }
        const Picture picture = Decoded(Indexed(70, 1, lines));
        ASSERT_EQ(picture.pixels.size(), 70U);
        for (int x = 0; x < 70; ++x) {
            EXPECT_EQ(picture.pixels[static_cast<std::size_t>(x)].red, x < count ? 200 : 210);
        }
    }
}

TEST(PcxDecoder, SkipsRunsOfNoLength) {
    EXPECT_EQ(Decoded(Indexed(2, 1, Bytes({0xC0, 9, 5, 0xC0, 9, 6}))).pixels, Grey({5, 6}));
}

TEST(PcxDecoder, TakesALastRunThatIsTooLong) {
    EXPECT_EQ(Decoded(Indexed(2, 2, Bytes({0xFF, 7}))).pixels, Grey({7, 7, 7, 7}));
}

TEST(PcxDecoder, TakesBytesBetweenTheLinesAndThePalette) {
    EXPECT_EQ(Decoded(Indexed(2, 1, Bytes({5, 6, 0, 0, 0}))).pixels, Grey({5, 6}));
}

TEST(PcxDecoder, FindsThePaletteAlsoWhereMoreFollows) {
    for (const int encoding : {0, 1}) {
        const Picture picture = FewColours(20, 9, 256);
        const std::string behind(200, '\x1A');
        EXPECT_EQ(Decoded(MakePcx(picture, {.encoding = encoding, .behind = behind})), picture);
    }
}

}  // namespace
}  // namespace nviewlib::testing
