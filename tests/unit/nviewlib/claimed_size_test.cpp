// A file that claims more than it can hold is told before a decoder takes memory for it.
#include "platform/nviewlib/claimed_size.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace nviewlib {
namespace {

using namespace std::string_literals;

std::optional<Claim> ClaimIn(const std::string& bytes) {
    return ReadClaim({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
}

void Put(std::string& bytes, std::size_t at, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> (8 * i));
    }
}

std::string Word(int word) {
    return {static_cast<char>(word / 256), static_cast<char>(word % 256)};
}

struct JpgForm {
    char frame = '\xC0';
    int width = 16;
    int height = 8;
    std::string samplings = "\x22\x11\x11"s;
    int inScan = 3;
    std::size_t dataBytes = 1000;
    std::string before{};  // the frame
};

std::string Jpg(const JpgForm& form = {}) {
    std::string bytes = "\xFF\xD8\xFF\xE0"s + Word(4) + "ab" + form.before;
    bytes += "\xFF"s + form.frame + Word(8 + 3 * static_cast<int>(form.samplings.size())) + '\x08' +
             Word(form.height) + Word(form.width) + static_cast<char>(form.samplings.size());
    for (const char sampling : form.samplings) {
        bytes += "\1"s + sampling + "\0"s;
    }
    bytes += "\xFF\xDA"s + Word(6 + 2 * form.inScan) + static_cast<char>(form.inScan) +
             std::string(static_cast<std::size_t>(2 * form.inScan + 3), '\0');
    return bytes + std::string(form.dataBytes, '\x55') + "\xFF\xD9"s;
}

std::string Bmp(std::uint32_t width, std::uint32_t height, std::uint32_t bits,
                std::size_t pixelBytes, std::uint32_t compression = 0) {
    std::string bytes(54, '\0');
    bytes[0] = 'B';
    bytes[1] = 'M';
    Put(bytes, 10, 54, 4);
    Put(bytes, 14, 40, 4);
    Put(bytes, 18, width, 4);
    Put(bytes, 22, height, 4);
    Put(bytes, 28, bits, 2);
    Put(bytes, 30, compression, 4);
    return bytes + std::string(pixelBytes, '\0');
}

// A GIF file of one image a size, each with so many bytes of data.
std::string Gif(ImageSize screen, const std::vector<ImageSize>& images, std::size_t dataBytes) {
    std::string bytes("GIF89a\0\0\0\0\0\0\0", 13);
    Put(bytes, 6, static_cast<std::uint32_t>(screen.width), 2);
    Put(bytes, 8, static_cast<std::uint32_t>(screen.height), 2);
    for (const ImageSize& image : images) {
        bytes += "!\xF9\4\0\0\0\0\0"s;
        std::string descriptor(10, '\0');
        descriptor[0] = ',';
        Put(descriptor, 5, static_cast<std::uint32_t>(image.width), 2);
        Put(descriptor, 7, static_cast<std::uint32_t>(image.height), 2);
        bytes += descriptor + '\2';
        for (std::size_t left = dataBytes; left > 0; left -= std::min<std::size_t>(left, 255)) {
            const std::size_t now = std::min<std::size_t>(left, 255);
            bytes += static_cast<char>(now) + std::string(now, '\1');
        }
        bytes += '\0';
    }
    return bytes + ';';
}

}  // namespace

TEST(ClaimedSize, OfAJpgIsInItsFrame) {
    const std::optional<Claim> claim = ClaimIn(Jpg());
    ASSERT_TRUE(claim);
    EXPECT_EQ(claim->kind, FileKind::Jpg);
    EXPECT_EQ(claim->size, (ImageSize{16, 8}));
    EXPECT_EQ(claim->decoderBytes, 16 * 8 * 3);
    EXPECT_EQ(ClaimIn(Jpg({.samplings = "\x11"s, .inScan = 1}))->decoderBytes, 16 * 8);
}

TEST(ClaimedSize, OfAJpgThatComesInPartsCountsAllItsCoefficients) {
    // A unit of 16 x 16 pixels has six blocks of 64 coefficients of two bytes.
    constexpr std::int64_t kBytes = 16 * 8 * 3 + 6 * 64 * 2;
    EXPECT_EQ(ClaimIn(Jpg({.frame = '\xC2'}))->decoderBytes, kBytes);
    EXPECT_EQ(ClaimIn(Jpg({.inScan = 1}))->decoderBytes, kBytes);
}

TEST(ClaimedSize, OfAJpgIsFoundBehindWhateverStandsBefore) {
    for (const std::string& before :
         {"\xFF\xFE"s + Word(6) + "\xFF\xC0\xFF\xD8"s, "junk between"s, "\xFF\xFF\xFF\x01"s,
          "\xFF\x00\x12"s, "\xFF\xD0"s, "\xFF\xC4"s + Word(2) + "\xFF\xCC"s + Word(3) + "x"}) {
        const std::optional<Claim> claim = ClaimIn(Jpg({.before = before}));
        ASSERT_TRUE(claim) << before.size();
        EXPECT_EQ(claim->size, (ImageSize{16, 8}));
    }
}

TEST(ClaimedSize, OfAJpgMustFitItsBytes) {
    // Each block of 8 x 8 takes at least a bit.
    EXPECT_TRUE(ClaimIn(Jpg({.width = 800, .height = 640, .samplings = "\x11"s, .inScan = 1})));
    EXPECT_FALSE(ClaimIn(Jpg({.width = 8000, .height = 640, .samplings = "\x11"s, .inScan = 1})));
    EXPECT_FALSE(ClaimIn(Jpg({.width = 65'500, .height = 65'500})));
    EXPECT_FALSE(ClaimIn(Jpg({.width = 0})));
    EXPECT_FALSE(ClaimIn(Jpg({.height = 0})));
}

TEST(ClaimedSize, OfAJpgThatNoDecoderKnowsIsNone) {
    for (const char frame : {'\xC3', '\xC5', '\xC9', '\xCF'}) {
        EXPECT_FALSE(ClaimIn(Jpg({.frame = frame})));
    }
    EXPECT_FALSE(ClaimIn(Jpg({.samplings = "\x11\x11\x11\x11\x11"s})));
    EXPECT_FALSE(ClaimIn(Jpg({.samplings = "\x51"s, .inScan = 1})));
    EXPECT_FALSE(ClaimIn(Jpg({.samplings = "\x10"s, .inScan = 1})));
    EXPECT_FALSE(ClaimIn(Jpg({.before = "\xFF\xD9"s})));
    EXPECT_FALSE(ClaimIn(Jpg({.before = "\xFF\xE1\0\1"s})));
    const std::string two = "\xFF\xC0"s + Word(11) + "\x08" + Word(8) + Word(8) + "\1\1\x11\0"s;
    EXPECT_FALSE(ClaimIn(Jpg({.before = two})));
}

TEST(ClaimedSize, OfABmpIsInItsHeader) {
    const std::optional<Claim> claim = ClaimIn(Bmp(5, 3, 24, 48));
    ASSERT_TRUE(claim);
    EXPECT_EQ(claim->kind, FileKind::Bmp);
    EXPECT_EQ(claim->size, (ImageSize{5, 3}));
    EXPECT_EQ(claim->decoderBytes, 48);
    EXPECT_EQ(ClaimIn(Bmp(5, static_cast<std::uint32_t>(-3), 24, 48))->size, (ImageSize{5, 3}));
    EXPECT_EQ(ClaimIn(Bmp(40, 3, 1, 24))->size, (ImageSize{40, 3}));
    EXPECT_TRUE(ClaimIn(Bmp(5, 3, 16, 36, 3)));
}

TEST(ClaimedSize, OfAnOldBmpIsInItsShortHeader) {
    std::string bytes(26 + 12, '\0');
    bytes[0] = 'B';
    bytes[1] = 'M';
    Put(bytes, 10, 26, 4);
    Put(bytes, 14, 12, 4);
    Put(bytes, 18, 3, 2);
    Put(bytes, 20, 1, 2);
    Put(bytes, 24, 24, 2);
    ASSERT_TRUE(ClaimIn(bytes));
    EXPECT_EQ(ClaimIn(bytes)->size, (ImageSize{3, 1}));
}

TEST(ClaimedSize, OfABmpMustFitItsBytes) {
    EXPECT_FALSE(ClaimIn(Bmp(5, 3, 24, 47)));
    EXPECT_FALSE(ClaimIn(Bmp(26'843'546, 1, 24, 1000)));
    EXPECT_FALSE(ClaimIn(Bmp(0x7FFFFFFF, 0x7FFFFFFF, 32, 1000)));
    EXPECT_FALSE(ClaimIn(Bmp(0xFFFFFFFF, 1, 24, 1000)));
    EXPECT_FALSE(ClaimIn(Bmp(1, 0x80000000, 24, 1000)));
    EXPECT_FALSE(ClaimIn(Bmp(0, 3, 24, 48)));
    EXPECT_FALSE(ClaimIn(Bmp(5, 3, 0, 48)));
    EXPECT_FALSE(ClaimIn(Bmp(5, 3, 64, 480)));
    std::string behind = Bmp(5, 3, 24, 48);
    Put(behind, 10, 0xFFFFFFFF, 4);
    EXPECT_FALSE(ClaimIn(behind));
    EXPECT_TRUE(ClaimIn(Bmp(100, 100, 8, 100, 1)));
    EXPECT_FALSE(ClaimIn(Bmp(1000, 100, 8, 100, 1)));
    EXPECT_FALSE(ClaimIn(Bmp(5, 3, 24, 48, 4)));
}

TEST(ClaimedSize, OfAGifIsThatOfItsFirstImage) {
    const std::optional<Claim> claim = ClaimIn(Gif({300, 200}, {{320, 240}, {10, 20}}, 300));
    ASSERT_TRUE(claim);
    EXPECT_EQ(claim->kind, FileKind::Gif);
    EXPECT_EQ(claim->size, (ImageSize{320, 240}));
    EXPECT_EQ(claim->decoderBytes, 300 * 200 + 320 * 240 + 10 * 20);
    EXPECT_FALSE(ClaimIn(Gif({300, 200}, {}, 0)));
    EXPECT_FALSE(ClaimIn(Gif({300, 200}, {{0, 240}}, 300)));
}

TEST(ClaimedSize, OfAGifMustFitItsBytes) {
    EXPECT_TRUE(ClaimIn(Gif({1, 1}, {{1000, 1000}}, 300)));
    EXPECT_FALSE(ClaimIn(Gif({1, 1}, {{1000, 1000}}, 100)));
    EXPECT_FALSE(ClaimIn(Gif({1, 1}, std::vector<ImageSize>(10, {1000, 1000}), 200)));
}

TEST(ClaimedSize, OfAFileThatEndsAnywhereIsHarmless) {
    for (const std::string& whole :
         {Jpg({.dataBytes = 9}), Bmp(5, 3, 24, 48), Gif({3, 2}, {{3, 2}, {1, 1}}, 4)}) {
        for (std::size_t length = 0; length < whole.size(); ++length) {
            // In a buffer of its own, so that the sanitizers see each byte beyond.
            const std::vector<std::uint8_t> part(whole.begin(), whole.begin() + length);
            static_cast<void>(ReadClaim(part));
        }
    }
    EXPECT_FALSE(ClaimIn(""));
    EXPECT_FALSE(ClaimIn("no image at all"));
}

TEST(ClaimedSize, IsAffordableWithinTheLimits) {
    const auto affordable = [](int width, int height, std::int64_t decoder, std::size_t file) {
        return Affordable({FileKind::Jpg, {width, height}, decoder}, file);
    };
    EXPECT_TRUE(affordable(8000, 5000, 0, 0));
    EXPECT_FALSE(affordable(8000, 5001, 0, 0));
    EXPECT_FALSE(affordable(65'535, 65'535, 0, 0));
    EXPECT_FALSE(affordable(0, 0, 0, 0));
    EXPECT_TRUE(affordable(8000, 5000, std::int64_t{300} << 20U, std::size_t{60} << 20U));
    EXPECT_FALSE(affordable(8000, 5000, std::int64_t{300} << 20U, std::size_t{100} << 20U));
    // One line that is the whole image is also in the buffer that it comes by.
    EXPECT_TRUE(affordable(8000, 5000, 160'000'000, 160'000'054));
    EXPECT_FALSE(affordable(40'000'000, 1, 160'000'000, 160'000'054));
}

}  // namespace nviewlib
