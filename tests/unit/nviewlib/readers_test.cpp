// What reads pixels and lines stays within the bytes it was given, also for who asks for more.
#include <gtest/gtest.h>

#include <array>

#include "platform/nviewlib/byte_reader.h"
#include "platform/nviewlib/pcx_lines.h"
#include "platform/nviewlib/tga_readers.h"

namespace nviewlib {
namespace {

TEST(TgaReaders, EndWithTheirBytes) {
    const std::vector<std::uint8_t> bytes = {1, 7, 8};
    std::array<std::uint8_t, 6> to{};
    TgaRawReader<TgaGrey8> raw(bytes, {});
    EXPECT_TRUE(raw.Read(to.data(), 2));
    EXPECT_FALSE(raw.Read(to.data(), 2));
    EXPECT_TRUE(raw.Read(to.data(), 1));
    EXPECT_FALSE(raw.Read(to.data(), 1));
    TgaPacketReader<TgaGrey8> packets(bytes, {});
    EXPECT_TRUE(packets.Read(to.data(), 2));
    EXPECT_EQ(to, (std::array<std::uint8_t, 6>{7, 7, 7, 8, 8, 8}));
    EXPECT_FALSE(packets.Read(to.data(), 1));
}

TEST(ByteReader, BehindTheEndThereIsNothing) {
    const std::vector<std::uint8_t> bytes = {1, 2, 3};
    ByteReader reader(bytes, 5);
    EXPECT_FALSE(reader.Failed());
    reader.Skip(1);
    EXPECT_TRUE(reader.Failed());
    EXPECT_EQ(reader.At(), bytes.size());
    EXPECT_EQ(ByteReader(bytes, 5).Byte(), 0);
}

TEST(PcxLines, EndWithTheirBytes) {
    const std::vector<std::uint8_t> bytes = {1, 2, 3, 4, 5};
    for (const bool runLength : {false, true}) {
        const PcxHeader header{.size = {2, 3}, .runLength = runLength, .planeBytes = 2};
        PcxLines lines(header, bytes);
        for (const std::uint8_t first : std::vector<std::uint8_t>{1, 3}) {
            const std::uint8_t* const line = lines.Next();
            ASSERT_NE(line, nullptr);
            EXPECT_EQ(line[0], first);
            EXPECT_EQ(line[1], first + 1);
            EXPECT_EQ(lines.Position(), static_cast<std::size_t>(first) + 1);
        }
        EXPECT_EQ(lines.Next(), nullptr);
    }
}

}  // namespace
}  // namespace nviewlib
