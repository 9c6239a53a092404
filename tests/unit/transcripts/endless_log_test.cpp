// Logs of a size that no console ever had, read without holding them in memory.
#include <algorithm>

#include <gtest/gtest.h>

#include "tests/doubles/memory_file_system.h"
#include "transcripts/name_scan.h"

namespace zentar {
namespace {

constexpr std::uint64_t kHuge = 100'000'000;
constexpr std::size_t kMostAtOnce = std::size_t{1024} * 1024;

// A line of letters without end, and a last line behind it.
class EndlessLine : public ReadableFile {
  public:
    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
        EXPECT_EQ(offset, read_) << "each byte is read once, in order";
        largest_ = std::max(largest_, into.size());
        const std::uint64_t length = kHuge + kEnd.size();
        const auto count = static_cast<std::size_t>(
            std::min<std::uint64_t>(into.size(), length - std::min(offset, length)));
        std::fill_n(into.begin(), count, static_cast<std::byte>('x'));
        for (std::uint64_t at = std::max(offset, kHuge); at < offset + count; ++at) {
            into[static_cast<std::size_t>(at - offset)] =
                static_cast<std::byte>(kEnd[static_cast<std::size_t>(at - kHuge)]);
        }
        read_ += count;
        return count;
    }
    Result<std::uint64_t> Length() override { return kHuge + kEnd.size(); }

    std::uint64_t BytesRead() const { return read_; }
    std::size_t Largest() const { return largest_; }

  private:
    static constexpr std::string_view kEnd = ": hi\nBob: hi\n";
    std::uint64_t read_ = 0;
    std::size_t largest_ = 0;
};

TEST(EndlessLog, ALineOfAHundredMegabytesIsPassedOverInPieces) {
    EndlessLine file;
    ConsoleLines lines(file);
    EXPECT_EQ(ScanForNames(lines, true), (std::vector<std::string>{"Bob"}));
    EXPECT_FALSE(lines.Failed());
    EXPECT_EQ(file.BytesRead(), kHuge + 13);
    EXPECT_LE(file.Largest(), kMostAtOnce);
}

// Gives one line again and again, as long as somebody asks.
class EndlessFile : public ReadableFile {
  public:
    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
        constexpr std::string_view kLine = "Bob: hi\r\n";
        for (std::size_t i = 0; i < into.size(); ++i) {
            into[i] = static_cast<std::byte>(kLine[(offset + i) % kLine.size()]);
        }
        reads_ += into.size();
        if (reads_ > kHuge / 20) {
            return FileError::Other;
        }
        return into.size();
    }
    Result<std::uint64_t> Length() override { return FileError::Other; }

  private:
    std::uint64_t reads_ = 0;
};

TEST(EndlessLog, AFileWithoutEndIsReadUntilItFails) {
    EndlessFile file;
    ConsoleLines lines(file);
    EXPECT_EQ(ScanForNames(lines, false), (std::vector<std::string>{"Bob"}));
    EXPECT_TRUE(lines.Failed());
}

// Gives one byte at a time.
class SlowFile : public ReadableFile {
  public:
    explicit SlowFile(std::string bytes) : bytes_(std::move(bytes)) {}
    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
        if (offset >= bytes_.size()) {
            return std::size_t{0};
        }
        into[0] = static_cast<std::byte>(bytes_[static_cast<std::size_t>(offset)]);
        return std::size_t{1};
    }
    Result<std::uint64_t> Length() override { return bytes_.size(); }

  private:
    std::string bytes_;
};

TEST(EndlessLog, BlocksMayBeOfOneByte) {
    SlowFile file("Bob: hi\r\nAnn: yo\nCarl: no end");
    ConsoleLines lines(file);
    EXPECT_EQ(ScanForNames(lines, false), (std::vector<std::string>{"Bob", "Ann"}));
}

}  // namespace
}  // namespace zentar
