// PCX files that are cut off, or claim what they do not hold.
#include <gtest/gtest.h>

#include "platform/nviewlib/pcx_decoder.h"
#include "tests/unit/nviewlib/outcome.h"

namespace nviewlib::testing {
namespace {

constexpr std::size_t kEncoding = 2;
constexpr std::size_t kBits = 3;
constexpr std::size_t kLeft = 4;
constexpr std::size_t kRight = 8;
constexpr std::size_t kBottom = 10;
constexpr std::size_t kPlanes = 65;
constexpr std::size_t kPlaneBytes = 66;

std::string WithWord(std::string file, std::size_t at, unsigned value) {
    file[at] = static_cast<char>(value & 0xFFU);
    file[at + 1] = static_cast<char>(value >> 8U);
    return file;
}

std::string WithByte(std::string file, std::size_t at, int value) {
    return file.replace(at, 1, 1, static_cast<char>(value));
}

// A file of true colours with lines of so many bytes a plane, and then that many bytes.
std::string Claim(unsigned width, unsigned height, unsigned planeBytes, int encoding,
                  std::size_t bytes) {
    std::string file = MakePcx({1, 1, {{0, 0, 0}}}, {.planes = 3, .encoding = encoding});
    file = WithWord(file.substr(0, kPcxLinesAt), kRight, width - 1);
    file = WithWord(file, kBottom, height - 1);
    return WithWord(file, kPlaneBytes, planeBytes) + std::string(bytes, '\xFF');
}

void ExpectNothingAsked(const std::string& file, const std::string& why) {
    const Outcome outcome = Decode(DecodePcx, file);
    EXPECT_FALSE(outcome.picture) << why;
    EXPECT_EQ(outcome.asked, 0) << why;
}

std::vector<PcxKind> EveryKind() {
    std::vector<PcxKind> kinds;
    for (const int encoding : {0, 1}) {
        for (const int planes : {1, 2, 3, 4}) {
            kinds.push_back({.bits = 1, .planes = planes, .encoding = encoding});
        }
        kinds.push_back({.bits = 2, .encoding = encoding});
        kinds.push_back({.bits = 4, .encoding = encoding});
        kinds.push_back({.encoding = encoding});
        kinds.push_back({.planes = 3, .encoding = encoding});
        kinds.push_back({.planes = 4, .encoding = encoding});
        kinds.push_back({.encoding = encoding, .cross = true});
        kinds.push_back({.encoding = encoding, .padding = 3});
    }
    return kinds;
}

TEST(BrokenPcx, IsRefusedWhereverItIsCutOff) {
    for (const PcxKind& kind : EveryKind()) {
        const Picture picture = FewColours(9, 5, kind.bits * kind.planes == 1 ? 2 : 4);
        const std::string whole = MakePcx(picture, kind);
        EXPECT_TRUE(Decode(DecodePcx, whole).picture);
        for (std::size_t length = 0; length < whole.size(); ++length) {
            EXPECT_FALSE(Decode(DecodePcx, whole.substr(0, length)).picture)
                << kind.bits << " bits, " << kind.planes << " planes, encoding " << kind.encoding
                << ", " << length << " of " << whole.size();
        }
    }
}

TEST(BrokenPcx, AnImageWithoutItsPaletteIsRefused) {
    std::string file = MakePcx(FewColours(40, 40, 256), {});
    file.resize(file.size() - kPcxPaletteBytes);
    ExpectNothingAsked(file, "no palette");
    file = MakePcx(FewColours(40, 40, 256), {});
    file[file.size() - kPcxPaletteBytes] = 13;
    ExpectNothingAsked(file, "no palette's mark");
}

TEST(BrokenPcx, LinesThatRunIntoThePaletteAreRefused) {
    const std::string whole = MakePcx(FewColours(40, 40, 256), {.encoding = 0});
    const std::string head = whole.substr(0, kPcxLinesAt + 1599);
    ExpectNothingAsked(head + whole.substr(whole.size() - kPcxPaletteBytes), "one byte short");
}

TEST(BrokenPcx, AFewBytesThatClaimAHugeImageAskForNoRaster) {
    for (const int encoding : {0, 1}) {
        for (const int planes : {1, 3}) {
            ExpectNothingAsked(WithByte(Claim(6000, 6000, 6000, encoding, 1000), kPlanes, planes),
                               "huge");
        }
    }
}

TEST(BrokenPcx, LinesShorterThanTheWidthAskForNoRaster) {
    EXPECT_TRUE(Decode(DecodePcx, Claim(4, 2, 4, 0, 24)).picture);
    ExpectNothingAsked(Claim(5, 2, 4, 0, 24), "one pixel more than a line holds");
    ExpectNothingAsked(Claim(65535, 600, 1, 1, 400), "wide, and lines of three bytes");
    const std::string bits = MakePcx(FewColours(16, 2, 2), {.bits = 1});
    EXPECT_TRUE(Decode(DecodePcx, bits).picture);
    ExpectNothingAsked(WithWord(bits, kRight, 16), "17 bits in two bytes");
    ExpectNothingAsked(WithWord(bits, kPlaneBytes, 0), "lines of no bytes");
}

TEST(BrokenPcx, BytesThatCannotHoldTheLinesAskForNoRaster) {
    // 630 bytes are ten runs of 63.
    EXPECT_TRUE(Decode(DecodePcx, Claim(210, 1, 210, 1, 20)).picture);
    ExpectNothingAsked(Claim(210, 1, 210, 1, 19), "one byte short");
    ExpectNothingAsked(Claim(211, 1, 211, 1, 20), "one pixel more");
    EXPECT_TRUE(Decode(DecodePcx, Claim(10, 1, 10, 0, 30)).picture);
    ExpectNothingAsked(Claim(10, 1, 10, 0, 29), "one byte short, without runs");
}

TEST(BrokenPcx, RunsThatCouldHoldTheLinesButDoNotAreRefused) {
    std::string file = Claim(210, 1, 210, 1, 20);
    file[kPcxLinesAt] = '\xC1';
    const Outcome outcome = Decode(DecodePcx, file);
    EXPECT_FALSE(outcome.picture);
    EXPECT_EQ(outcome.asked, 1);
}

TEST(BrokenPcx, AnImageOfMorePixelsThanAreDecodedAsksForNoRaster) {
    std::string file = MakePcx(FewColours(8, 1, 2), {.bits = 1}).substr(0, kPcxLinesAt);
    file = WithWord(WithWord(file, kRight, 7999), kBottom, 4999);
    file = WithWord(file, kPlaneBytes, 1000);
    file += std::string(1000 * 5001 / 63 * 2 + 2, '\xFF');
    const auto asks = [](const std::string& bytes) {
        int asked = 0;
        (void)DecodePcx(std::vector<std::uint8_t>(bytes.begin(), bytes.end()), [&](ImageSize) {
            ++asked;
            return Raster();
        });
        return asked;
    };
    EXPECT_EQ(asks(file), 1) << "40,000,000 pixels";
    EXPECT_EQ(asks(WithWord(file, kBottom, 5000)), 0) << "8,000 pixels more";
}

TEST(BrokenPcx, AnImageThatEndsBeforeItBeginsIsRefused) {
    const std::string whole = MakePcx(FewColours(4, 4, 4), {.left = 10, .top = 10});
    ExpectNothingAsked(WithWord(whole, kRight, 9), "no width");
    ExpectNothingAsked(WithWord(whole, kBottom, 9), "no height");
    ExpectNothingAsked(WithWord(whole, kLeft, 65535), "begins at the far end");
}

TEST(BrokenPcx, UnknownMakersEncodingsAndPlanesAreRefused) {
    const std::string whole = MakePcx(FewColours(4, 4, 4), {}) + std::string(800, '\x0C');
    EXPECT_TRUE(Decode(DecodePcx, whole).picture);
    for (int value = 0; value < 256; ++value) {
        const std::string why = std::to_string(value);
        EXPECT_EQ(Decode(DecodePcx, WithByte(whole, 0, value)).asked, value == 10) << why;
        EXPECT_EQ(Decode(DecodePcx, WithByte(whole, kEncoding, value)).asked, value <= 1) << why;
        const bool bits = value == 1 || value == 2 || value == 4 || value == 8;
        EXPECT_EQ(Decode(DecodePcx, WithByte(whole, kBits, value)).asked, bits) << why;
        const bool planes = value == 1 || value == 3 || value == 4;
        EXPECT_EQ(Decode(DecodePcx, WithByte(whole, kPlanes, value)).asked, planes) << why;
    }
    for (const auto& [bits, planes] :
         std::vector<std::pair<int, int>>{{1, 0}, {1, 5}, {2, 2}, {2, 4}, {4, 2}, {4, 4}, {8, 2}}) {
        ExpectNothingAsked(WithByte(WithByte(whole, kBits, bits), kPlanes, planes),
                           std::to_string(bits) + " x " + std::to_string(planes));
    }
}

TEST(BrokenPcx, WithoutRoomForTheRasterNothingIsDecoded) {
    const std::string file = MakePcx(FewColours(4, 4, 4), {});
    const std::vector<std::uint8_t> bytes(file.begin(), file.end());
    EXPECT_FALSE(DecodePcx(bytes, [](ImageSize) { return Raster(); }));
}

TEST(BrokenPcx, TextAndNoiseAreRefusedOrHarmless) {
    EXPECT_FALSE(Decode(DecodePcx, "").picture);
    EXPECT_FALSE(Decode(DecodePcx, std::string(1000, '\n')).picture);
    std::uint32_t random = 1;
    for (int i = 0; i < 3000; ++i) {
        std::string file = MakePcx(FewColours(7, 3, 2), EveryKind()[i % 22]);
        for (std::size_t at = kPcxLinesAt; at < std::min<std::size_t>(file.size(), 180); ++at) {
            random = random * 1664525U + 1013904223U;
            file[at] = static_cast<char>(random >> 24U);
        }
        file = WithByte(file, kRight, static_cast<int>(random >> 28U));
        (void)Decode(DecodePcx, file);
    }
}

}  // namespace
}  // namespace nviewlib::testing
