// TGA files that are cut off, or claim what they do not hold.
#include <gtest/gtest.h>

#include "platform/nviewlib/tga_decoder.h"
#include "tests/unit/nviewlib/outcome.h"

namespace nviewlib::testing {
namespace {

constexpr std::size_t kType = 2;
constexpr std::size_t kWidth = 12;
constexpr std::size_t kHeight = 14;
constexpr std::size_t kBits = 16;

std::string With(std::string file, std::size_t at, unsigned low, unsigned high) {
    file.at(at) = static_cast<char>(low);
    file.at(at + 1) = static_cast<char>(high);
    return file;
}

std::string Claim(int type, int bits, unsigned width, unsigned height, std::size_t bytes) {
    TgaKind kind{.type = type, .bits = bits};
    std::string file = MakeTga({1, 1, {{0, 0, 0}}}, kind).substr(0, 18);
    file = With(file, kWidth, width & 0xFFU, width >> 8U);
    return With(file, kHeight, height & 0xFFU, height >> 8U) + std::string(bytes, '\xFF');
}

void ExpectNothingAsked(const std::string& file, const std::string& why) {
    const Outcome outcome = Decode(DecodeTga, file);
    EXPECT_FALSE(outcome.picture) << why;
    EXPECT_EQ(outcome.asked, 0) << why;
}

std::vector<TgaKind> EveryKind() {
    std::vector<TgaKind> kinds;
    for (const int packets : {0, 8}) {
        for (const int bits : {8, 16}) {
            for (const int mapBits : {15, 16, 24, 32}) {
                kinds.push_back({.type = 1 + packets, .bits = bits, .mapBits = mapBits});
            }
            kinds.push_back({.type = 3 + packets, .bits = bits});
        }
        for (const int bits : {8, 15, 16, 24, 32}) {
            kinds.push_back({.type = 2 + packets, .bits = bits});
            kinds.push_back({.type = 2 + packets, .bits = bits, .id = "id", .needlessMap = true});
            kinds.push_back({.type = 2 + packets, .bits = bits, .fromRight = true});
        }
    }
    return kinds;
}

TEST(BrokenTga, IsRefusedWhereverItIsCutOff) {
    for (const TgaKind& kind : EveryKind()) {
        const Picture picture = FewColours(9, 5, 12);
        const std::string whole = MakeTga(picture, kind);
        EXPECT_TRUE(Decode(DecodeTga, whole).picture);
        for (std::size_t length = 0; length < whole.size(); ++length) {
            EXPECT_FALSE(Decode(DecodeTga, whole.substr(0, length)).picture)
                << "type " << kind.type << ", " << kind.bits << " bits, " << length << " of "
                << whole.size();
        }
    }
}

TEST(BrokenTga, AFewBytesThatClaimAHugeImageAskForNoRaster) {
    for (const int type : {1, 2, 3, 9, 10, 11}) {
        ExpectNothingAsked(Claim(type, type % 8 == 2 ? 24 : 8, 16384, 16384, 2),
                           "type " + std::to_string(type));
    }
}

TEST(BrokenTga, ARawImageThatIsOneByteShortAsksForNoRaster) {
    EXPECT_TRUE(Decode(DecodeTga, Claim(2, 24, 100, 100, 30000)).picture);
    ExpectNothingAsked(Claim(2, 24, 100, 100, 29999), "one byte short");
}

TEST(BrokenTga, PacketsThatCannotHoldThePixelsAskForNoRaster) {
    // Eight packets of four bytes, 128 pixels each.
    EXPECT_TRUE(Decode(DecodeTga, Claim(10, 24, 1024, 1, 32)).picture);
    ExpectNothingAsked(Claim(10, 24, 1024, 1, 31), "one byte short");
    ExpectNothingAsked(Claim(10, 24, 1025, 1, 32), "one pixel more");
}

TEST(BrokenTga, PacketsThatCouldHoldThePixelsButDoNotAreRefused) {
    std::string file = Claim(10, 24, 256, 1, 8);
    file[18] = '\x80';  // one pixel only
    const Outcome outcome = Decode(DecodeTga, file);
    EXPECT_FALSE(outcome.picture);
    EXPECT_EQ(outcome.asked, 1);
}

TEST(BrokenTga, AnImageOfMorePixelsThanAreDecodedAsksForNoRaster) {
    // 8,000 x 5,001 in packets of two bytes: the file would hold them.
    const std::size_t packets = (8000U * 5001U + 127) / 128;
    ExpectNothingAsked(Claim(11, 8, 8000, 5001, packets * 2), "40,008,000 pixels");
}

TEST(BrokenTga, AnImageWithoutWidthOrHeightIsRefused) {
    for (const int type : {2, 10}) {
        ExpectNothingAsked(Claim(type, 24, 0, 5, 100), "no width");
        ExpectNothingAsked(Claim(type, 24, 5, 0, 100), "no height");
    }
}

TEST(BrokenTga, UnknownTypesAndDepthsAreRefused) {
    const std::string whole = MakeTga(GameView(4, 4), {.bits = 32});
    for (int type = 0; type < 256; ++type) {
        if (type == 2 || type == 10) {
            continue;
        }
        std::string file = whole;
        file[kType] = static_cast<char>(type);
        ExpectNothingAsked(file, "type " + std::to_string(type));
    }
    for (const auto& [type, known] : std::vector<std::pair<int, std::vector<int>>>{
             {1, {8, 16}}, {2, {8, 15, 16, 24, 32}}, {3, {8, 16}}}) {
        for (int bits = 0; bits < 256; ++bits) {
            std::string file =
                MakeTga(FewColours(4, 4, 2), {.type = type, .bits = 8}) + std::string(200, '\0');
            file[kBits] = static_cast<char>(bits);
            const bool isKnown = std::find(known.begin(), known.end(), bits) != known.end();
            EXPECT_EQ(Decode(DecodeTga, file).picture.has_value(), isKnown)
                << "type " << type << ", " << bits << " bits";
        }
    }
}

TEST(BrokenTga, AMappedImageNeedsAMapThatCanBeRead) {
    const TgaKind kind{.type = 1, .bits = 8};
    const std::string whole = MakeTga(FewColours(4, 4, 2), kind);
    EXPECT_TRUE(Decode(DecodeTga, whole).picture);
    std::string none = whole;
    none[1] = 0;
    ExpectNothingAsked(none, "no map");
    std::string unknown = whole;
    unknown[1] = 2;
    ExpectNothingAsked(unknown, "a map of unknown kind");
    ExpectNothingAsked(With(whole, 5, 0, 0), "a map without entries");
    ExpectNothingAsked(With(whole, 5, 0xFF, 0xFF), "a map longer than the file");
    std::string depth = whole;
    depth[7] = 8;
    ExpectNothingAsked(depth, "entries of eight bits");
}

TEST(BrokenTga, AnIdThatIsLongerThanTheFileIsRefused) {
    std::string file = MakeTga(GameView(2, 2), {});
    file[0] = '\xFF';
    ExpectNothingAsked(file, "id of 255 bytes");
}

TEST(BrokenTga, WithoutRoomForTheRasterNothingIsDecoded) {
    const std::string file = MakeTga(GameView(4, 4), {});
    const std::vector<std::uint8_t> bytes(file.begin(), file.end());
    EXPECT_FALSE(DecodeTga(bytes, [](ImageSize) { return Raster(); }));
}

TEST(BrokenTga, TextAndNoiseAreRefusedOrHarmless) {
    EXPECT_FALSE(Decode(DecodeTga, "").picture);
    EXPECT_FALSE(Decode(DecodeTga, std::string(1000, ' ')).picture);
    std::uint32_t random = 1;
    for (int i = 0; i < 3000; ++i) {
        std::string file(60, '\0');
        for (char& byte : file) {
            random = random * 1664525U + 1013904223U;
            byte = static_cast<char>(random >> 24U);
        }
        file[1] = static_cast<char>(i % 2);
        file[kType] = static_cast<char>(std::vector<int>{1, 2, 3, 9, 10, 11}[i % 6]);
        file = With(file, kWidth, random >> 28U, 0);
        file = With(file, kHeight, (random >> 20U) & 7U, 0);
        file[kBits] = static_cast<char>(std::vector<int>{8, 15, 16, 24, 32}[i % 5]);
        (void)Decode(DecodeTga, file);
    }
}

}  // namespace
}  // namespace nviewlib::testing
