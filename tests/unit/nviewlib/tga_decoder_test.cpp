// TGA files of every kind show the pixels that were put in.
#include "platform/nviewlib/tga_decoder.h"

#include <gtest/gtest.h>

#include "tests/unit/nviewlib/outcome.h"

namespace nviewlib::testing {
namespace {

std::string Bytes(std::initializer_list<int> values) { return {values.begin(), values.end()}; }

Picture Decoded(const std::string& file) {
    return Decode(DecodeTga, file).picture.value_or(Picture());
}

// The pixels of a file of one line.
std::vector<Rgb> Line(const std::string& file) { return Decoded(file).pixels; }

// A header of one line that is written from the top; the map's fields follow from its length.
std::string Header(int type, int width, int bits, int mapFirst = 0, int mapLength = 0,
                   int mapBits = 0) {
    return Bytes({0, mapLength > 0 ? 1 : 0, type, mapFirst, 0, mapLength, 0, mapBits, 0, 0, 0, 0,
                  width, 0, 1, 0, bits, 0x20});
}

void ShowsItsPixels(const Picture& picture, const TgaKind& kind) {
    for (const bool fromTop : {false, true}) {
        for (const bool fromRight : {false, true}) {
            TgaKind turned = kind;
            turned.fromTop = fromTop;
            turned.fromRight = fromRight;
            EXPECT_EQ(Decoded(MakeTga(picture, turned)), AsTgaHolds(picture, turned))
                << "type " << kind.type << ", " << kind.bits << " bits, map of " << kind.mapBits
                << ", from top " << fromTop << ", from right " << fromRight << ", cross "
                << kind.cross;
        }
    }
}

TEST(TgaDecoder, ShowsColoursOfEachDepthFromEachCorner) {
    for (const int bits : {15, 16, 24, 32}) {
        ShowsItsPixels(GameView(61, 37), {.type = 2, .bits = bits, .alpha = 0x7F});
        for (const bool cross : {false, true}) {
            ShowsItsPixels(GameView(61, 37),
                           {.type = 10, .bits = bits, .cross = cross, .alpha = 0x7F});
        }
    }
}

TEST(TgaDecoder, ShowsGreyOfEachDepthFromEachCorner) {
    for (const int bits : {8, 16}) {
        for (const int type : {3, 11}) {
            ShowsItsPixels(GreyView(61, 37), {.type = type, .bits = bits, .alpha = 0x11});
        }
    }
}

TEST(TgaDecoder, ShowsMappedColoursOfEachDepthFromEachCorner) {
    for (const int mapBits : {15, 16, 24, 32}) {
        for (const int type : {1, 9}) {
            ShowsItsPixels(FewColours(61, 37, 200),
                           {.type = type, .bits = 8, .mapBits = mapBits, .alpha = 0x33});
            ShowsItsPixels(FewColours(61, 37, 700),
                           {.type = type, .bits = 16, .mapBits = mapBits, .alpha = 0x33});
        }
    }
}

TEST(TgaDecoder, ShowsAShotOfTheSizeThatGamesMake) {
    const Picture shot = GameView(640, 480);
    EXPECT_EQ(Decoded(MakeTga(shot, {})), shot);
}

TEST(TgaDecoder, ShowsAnImageOfOnePixel) {
    for (const int type : {2, 10}) {
        ShowsItsPixels({1, 1, {{1, 2, 3}}}, {.type = type});
        ShowsItsPixels({1, 1, {{1, 2, 3}}}, {.type = type, .bits = 32});
    }
}

TEST(TgaDecoder, TakesImagesOfOneColumnAndOfOneLine) {
    for (const int type : {2, 10}) {
        ShowsItsPixels(GameView(1, 300), {.type = type});
        ShowsItsPixels(GameView(300, 1), {.type = type});
    }
}

TEST(TgaDecoder, StretchesFiveBitsOverAllOfTheRange) {
    const std::string file = Header(2, 4, 16) + Bytes({0, 0, 1, 0, 16, 0, 31, 0});
    EXPECT_EQ(Line(file), (std::vector<Rgb>{{0, 0, 0}, {0, 0, 8}, {0, 0, 131}, {0, 0, 255}}));
}

TEST(TgaDecoder, TellsTheFiveBitsOfEachColourApart) {
    const std::string file = Header(2, 4, 16) + Bytes({0x1F, 0, 0xE0, 0x03, 0, 0x7C, 0, 0x80});
    EXPECT_EQ(Line(file), (std::vector<Rgb>{{0, 0, 255}, {0, 255, 0}, {255, 0, 0}, {0, 0, 0}}));
}

TEST(TgaDecoder, CountsIndexesFromTheMapsFirst) {
    ShowsItsPixels(FewColours(61, 37, 100), {.type = 1, .bits = 8, .mapFirst = 100});
    ShowsItsPixels(FewColours(61, 37, 100), {.type = 9, .bits = 16, .mapFirst = 60000});
}

TEST(TgaDecoder, ShowsIndexesOutsideOfTheMapBlack) {
    const std::string file = Header(1, 4, 8, 5, 2, 24) + Bytes({1, 2, 3, 4, 5, 6, 4, 5, 6, 7});
    EXPECT_EQ(Line(file), (std::vector<Rgb>{{0, 0, 0}, {3, 2, 1}, {6, 5, 4}, {0, 0, 0}}));
}

TEST(TgaDecoder, LeavesOutEntriesThatNoIndexCanTell) {
    // The first two of four entries are the colours 254 and 255.
    const std::string file = Header(1, 2, 8, 254, 4, 24) +
                             Bytes({1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4}) + Bytes({254, 255});
    EXPECT_EQ(Line(file), (std::vector<Rgb>{{1, 1, 1}, {2, 2, 2}}));
    // The first is 256, and then 65,281.
    for (const std::size_t upper : {1, 255}) {
        std::string beyond = Header(1, 2, 8, 0, 1, 24) + Bytes({1, 1, 1, 0, 255});
        beyond[3] = upper == 1 ? '\0' : '\1';
        beyond[4] = static_cast<char>(upper);
        EXPECT_EQ(Line(beyond), (std::vector<Rgb>{{0, 0, 0}, {0, 0, 0}}));
    }
}

TEST(TgaDecoder, SkipsTheIdAndAMapThatIsNotUsed) {
    for (const int type : {2, 10}) {
        ShowsItsPixels(GameView(20, 9), {.type = type, .id = std::string(255, 'i')});
        for (const int mapBits : {15, 24, 32}) {
            ShowsItsPixels(FewColours(20, 9, 50), {.type = type,
                                                   .id = "shot",
                                                   .mapBits = mapBits,
                                                   .mapFirst = 3,
                                                   .needlessMap = true});
        }
    }
}

TEST(TgaDecoder, DoesNotReadTheMapsFieldsWhereThereIsNoMap) {
    std::string file = MakeTga(GameView(5, 4), {});
    file[3] = file[4] = file[5] = file[6] = file[7] = '\xFF';
    EXPECT_EQ(Decoded(file), GameView(5, 4));
}

TEST(TgaDecoder, TakesAFileWithAFooter) {
    for (const int type : {2, 10}) {
        ShowsItsPixels(GameView(20, 9), {.type = type, .footer = true});
    }
}

TEST(TgaDecoder, ShowsEightBitsWithoutAMapAsGrey) {
    ShowsItsPixels(GreyView(20, 9), {.type = 2, .bits = 8});
    ShowsItsPixels(GreyView(20, 9), {.type = 10, .bits = 8});
}

TEST(TgaDecoder, DoesNotMindAlphaBits) {
    for (const std::uint8_t alpha : std::vector<std::uint8_t>{0, 1, 0x80, 0xFF}) {
        ShowsItsPixels(GameView(20, 9), {.type = 2, .bits = 32, .alpha = alpha});
        ShowsItsPixels(GameView(20, 9), {.type = 10, .bits = 16, .alpha = alpha});
    }
    std::string told = MakeTga(GameView(20, 9), {.bits = 32});
    told[17] = '\x08';
    EXPECT_EQ(Decoded(told), GameView(20, 9));
}

TEST(TgaDecoder, DoesNotMindTheBitsThatOnceMeantInterlacing) {
    for (const char bits : {'\x40', '\x80'}) {
        std::string file = MakeTga(GameView(20, 9), {});
        file[17] = bits;
        EXPECT_EQ(Decoded(file), GameView(20, 9));
    }
}

TEST(TgaDecoder, GoesOnWithAPacketInTheNextLine) {
    const auto file = [](int count, const std::string& packets) {
        std::string bytes = Header(11, 3, 8) + packets;
        bytes[14] = static_cast<char>(count / 3);
        return bytes;
    };
    const auto grey = [](std::initializer_list<std::uint8_t> values) {
        std::vector<Rgb> pixels;
        for (const std::uint8_t value : values) {
            pixels.push_back({value, value, value});
        }
        return pixels;
    };
    // Repeated over three lines; written out over two; one of each.
    EXPECT_EQ(Line(file(9, Bytes({0x88, 7}))), grey({7, 7, 7, 7, 7, 7, 7, 7, 7}));
    EXPECT_EQ(Line(file(6, Bytes({0x05, 1, 2, 3, 4, 5, 6}))), grey({1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(Line(file(6, Bytes({0x83, 9, 0x01, 5, 6}))), grey({9, 9, 9, 9, 5, 6}));
}

TEST(TgaDecoder, TakesALastPacketThatIsTooLong) {
    EXPECT_EQ(Line(Header(11, 2, 8) + Bytes({0xFF, 7})), (std::vector<Rgb>{{7, 7, 7}, {7, 7, 7}}));
    EXPECT_EQ(Line(Header(11, 2, 8) + Bytes({0x7F, 7, 8})),
              (std::vector<Rgb>{{7, 7, 7}, {8, 8, 8}}));
}

TEST(TgaDecoder, TakesPacketsOfTheGreatestLength) {
    ShowsItsPixels({256, 2, std::vector<Rgb>(512, Rgb{9, 8, 7})}, {.type = 10});
    EXPECT_EQ(MakeTga({256, 1, std::vector<Rgb>(256, Rgb{9, 8, 7})}, {.type = 10}).size(),
              18U + 2 * 4);
}

}  // namespace
}  // namespace nviewlib::testing
