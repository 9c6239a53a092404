// The lines of a console, whatever ends them and however long they are.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

#include "core/console_lines.h"
#include "tests/doubles/memory_file_system.h"

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

// Notes where in memory a file is read to.
class WatchedFile : public ReadableFile {
  public:
    explicit WatchedFile(ReadableFile& file) : file_(file) {}

    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
        const auto begin = reinterpret_cast<std::uintptr_t>(into.data());
        lowest_ = std::min(lowest_, begin);
        highest_ = std::max(highest_, begin + into.size());
        return file_.ReadAt(offset, into);
    }
    Result<std::uint64_t> Length() override { return file_.Length(); }

    std::uintptr_t Room() const { return highest_ - lowest_; }

  private:
    ReadableFile& file_;
    std::uintptr_t lowest_ = UINTPTR_MAX;
    std::uintptr_t highest_ = 0;
};

TEST_F(ConsoleLinesTest, AHugeFileOfOneLineTakesNoMemory) {
    files.AddHugeFile(kPath, std::uint64_t{1} << 30U, (std::uint64_t{1} << 30U) - 8, "\nlast\n");
    const auto file = files.OpenForReading(kPath);
    WatchedFile watched(*file.Value());
    ConsoleLines lines(watched);
    EXPECT_EQ(lines.Next(), "last");
    EXPECT_EQ(lines.Next(), std::nullopt);
    EXPECT_LE(watched.Room(), std::uintptr_t{1} << 20U);
}

}  // namespace
}  // namespace zentar
