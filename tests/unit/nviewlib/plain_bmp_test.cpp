// The bitmap files that the program writes itself are decoded, and no others.
#include <gtest/gtest.h>

#include "platform/nviewlib/plain_bmp.h"

namespace nviewlib {
namespace {

using Bytes = std::vector<std::uint8_t>;

void Append(Bytes& bytes, std::uint64_t value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes.push_back(static_cast<std::uint8_t>(value >> (8U * static_cast<unsigned>(i))));
    }
}

// 3 x 2 pixels, numbered from the lower left corner.
Bytes SmallBmp() {
    Bytes bytes = {'B', 'M'};
    Append(bytes, 78, 4);
    Append(bytes, 0, 4);
    Append(bytes, 54, 4);
    Append(bytes, 40, 4);
    Append(bytes, 3, 4);
    Append(bytes, 2, 4);
    Append(bytes, 1, 2);
    Append(bytes, 24, 2);
    bytes.resize(54);
    for (std::uint8_t line = 0; line < 2; ++line) {
        for (std::uint8_t i = 0; i < 9; ++i) {
            bytes.push_back(static_cast<std::uint8_t>(line * 9 + i));
        }
        bytes.resize(bytes.size() + 3);
    }
    return bytes;
}

struct Decoded {
    bool done = false;
    int asked = 0;
    Bytes pixels;  // of three lines of 12 bytes, top down
};

Decoded Decode(const Bytes& file) {
    Decoded decoded;
    decoded.done = DecodePlainBmp(file, [&decoded](ImageSize size) {
        ++decoded.asked;
        decoded.pixels.resize(static_cast<std::size_t>(size.width * size.height * 3));
        return Raster{decoded.pixels.data(), size.width * 3};
    });
    return decoded;
}

TEST(PlainBmp, ItsLowestLineStandsFirst) {
    const Decoded decoded = Decode(SmallBmp());
    EXPECT_TRUE(decoded.done);
    EXPECT_EQ(decoded.pixels,
              (Bytes{9, 10, 11, 12, 13, 14, 15, 16, 17, 0, 1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(PlainBmp, AFileThatIsCutAnywhereIsNone) {
    const Bytes whole = SmallBmp();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const Decoded decoded =
            Decode(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
        EXPECT_FALSE(decoded.done) << length;
        EXPECT_EQ(decoded.asked, 0) << length;
    }
}

TEST(PlainBmp, OtherKindsAreLeftToTheSystem) {
    struct Change {
        std::size_t at;
        std::uint8_t value;
    };
    for (const Change& change : {Change{0, 'b'}, Change{10, 58}, Change{14, 12}, Change{18, 0},
                                 Change{22, 0}, Change{25, 0xFF}, Change{28, 32}, Change{30, 1}}) {
        Bytes file = SmallBmp();
        file[change.at] = change.value;
        EXPECT_EQ(Decode(file).asked, 0) << change.at;
    }
}

TEST(PlainBmp, WhatItsBytesCannotHoldTakesNoMemory) {
    Bytes file = SmallBmp();
    file[20] = 0xFF;
    file[24] = 0xFF;
    EXPECT_EQ(Decode(file).asked, 0);
    file = SmallBmp();
    file[21] = 0x7F;
    file[25] = 0x7F;
    EXPECT_EQ(Decode(file).asked, 0);
}

TEST(PlainBmp, OneOfMorePixelsThanAreDecodedIsNone) {
    Bytes file = SmallBmp();
    file[18] = 0x41;  // 8001
    file[19] = 0x1F;
    file[22] = 0x88;  // 5000
    file[23] = 0x13;
    file.resize(54 + std::size_t{24'004} * 5000);
    EXPECT_EQ(Decode(file).asked, 0);
    file[18] = 0x40;
    EXPECT_TRUE(Decode(file).done);
}

TEST(PlainBmp, WithoutRoomThereIsNoImage) {
    EXPECT_FALSE(DecodePlainBmp(SmallBmp(), [](ImageSize) { return Raster{}; }));
}

}  // namespace
}  // namespace nviewlib
