// The lines of a console, whatever ends them and however long they are.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/memory_file_system.h"
#include "transcripts/console_lines.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kPath = "C:\\qconsole.log";

class ConsoleLinesTest : public ::testing::Test {
  protected:
    std::vector<std::string> LinesOf(const std::string& bytes) {
        files.AddFile(kPath, bytes);
        const auto file = files.OpenForReading(kPath);
        ConsoleLines lines(*file.Value());
        std::vector<std::string> all;
        while (const auto line = lines.Next()) {
            all.emplace_back(*line);
        }
        return all;
    }

    MemoryFileSystem files;
};

TEST_F(ConsoleLinesTest, CarriageReturnAndLineFeedEachEndOne) {
    EXPECT_THAT(LinesOf("a\nb\rc\r\nd\n"), ElementsAre("a", "b", "c", "", "d"));
    EXPECT_THAT(LinesOf("\n\n"), ElementsAre("", ""));
}

TEST_F(ConsoleLinesTest, WhatHasNoEndIsNone) {
    EXPECT_THAT(LinesOf("a\nb"), ElementsAre("a"));
    EXPECT_THAT(LinesOf("all one"), IsEmpty());
    EXPECT_THAT(LinesOf(""), IsEmpty());
}

TEST_F(ConsoleLinesTest, AllBytesAreText) {
    EXPECT_THAT(LinesOf(std::string("a\0b\xFF\n", 5)), ElementsAre(std::string("a\0b\xFF", 4)));
}

TEST_F(ConsoleLinesTest, LinesThatNoGameWritesArePassedOver) {
    const std::string longest(ConsoleLines::kLongest, 'x');
    EXPECT_THAT(LinesOf("a\n" + longest + "\nb\n"), ElementsAre("a", longest, "b"));
    EXPECT_THAT(LinesOf("a\n" + longest + "x\nb\n"), ElementsAre("a", "b"));
    EXPECT_THAT(LinesOf("a\n" + std::string(3'000'000, 'x') + "\rb\n"), ElementsAre("a", "b"));
    EXPECT_THAT(LinesOf(std::string(3'000'000, 'x')), IsEmpty());
}

TEST_F(ConsoleLinesTest, BlocksMayEndAnywhere) {
    std::string bytes;
    std::vector<std::string> expected;
    for (std::size_t length = 0; length < 1500; ++length) {
        expected.emplace_back(length, static_cast<char>('a' + length % 26));
        bytes += expected.back() + (length % 3 == 0 ? "\r" : "\n");
    }
    EXPECT_EQ(LinesOf(bytes), expected);
}

TEST_F(ConsoleLinesTest, AHugeFileOfOneLineTakesNoMemory) {
    files.AddHugeFile(kPath, std::uint64_t{1} << 30U, (std::uint64_t{1} << 30U) - 8, "\nlast\n");
    const auto file = files.OpenForReading(kPath);
    ConsoleLines lines(*file.Value());
    EXPECT_EQ(lines.Next(), "last");
    EXPECT_EQ(lines.Next(), std::nullopt);
}

}  // namespace
}  // namespace zentar
