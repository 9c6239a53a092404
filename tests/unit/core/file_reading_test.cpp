#include "core/file_reading.h"

#include <gtest/gtest.h>

#include "tests/doubles/faulty_file_system.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

const std::string kPath = "C:\\shot.jpg";

class FileReadingTest : public ::testing::Test {
  protected:
    MemoryFileSystem files_;
};

TEST_F(FileReadingTest, AFileIsReadWholeWhateverItsBytes) {
    const std::string bytes("\0\x1A\r\n\xFF", 5);
    files_.AddFile(kPath, bytes);
    const Result<std::string> read = ReadWholeFile(files_, kPath, 5);
    ASSERT_TRUE(read.Ok());
    EXPECT_EQ(read.Value(), bytes);
}

TEST_F(FileReadingTest, AnEmptyFileIsNoFailure) {
    files_.AddFile(kPath, "");
    const Result<std::string> read = ReadWholeFile(files_, kPath, 0);
    ASSERT_TRUE(read.Ok());
    EXPECT_EQ(read.Value(), "");
}

TEST_F(FileReadingTest, ALongerOneThanWantedIsLeftAlone) {
    files_.AddHugeFile(kPath, 40'000'000'000, 0, "x");
    const Result<std::string> read = ReadWholeFile(files_, kPath, 1000);
    ASSERT_FALSE(read.Ok());
    EXPECT_EQ(read.Error(), FileError::NoSpace);
    EXPECT_EQ(files_.Reads(kPath).reads, 0);
}

TEST_F(FileReadingTest, WhyItCannotBeReadIsTold) {
    EXPECT_EQ(ReadWholeFile(files_, kPath, 1000).Error(), FileError::NotFound);
    files_.AddFile(kPath, "x");
    files_.SetLocked(kPath);
    EXPECT_EQ(ReadWholeFile(files_, kPath, 1000).Error(), FileError::InUse);
    files_.SetLocked(kPath, false);
    FaultyFileSystem faulty(files_);
    for (int call = 1; call <= 3; ++call) {
        faulty.Restart();
        faulty.FailAt(call, FileError::AccessDenied);
        const Result<std::string> read = ReadWholeFile(faulty, kPath, 1000);
        ASSERT_FALSE(read.Ok()) << faulty.CallName(call);
        EXPECT_EQ(read.Error(), FileError::AccessDenied);
    }
}

// Gives less than its length, as a file that another program cuts meanwhile.
class ShrinkingFile : public ReadableFile {
  public:
    Result<std::size_t> ReadAt(std::uint64_t /*offset*/, std::span<std::byte> into) override {
        into[0] = std::byte{'x'};
        return std::size_t{1};
    }
    Result<std::uint64_t> Length() override { return std::uint64_t{10}; }
};

class ShrinkingFiles : public MemoryFileSystem {
  public:
    Result<std::unique_ptr<ReadableFile>> OpenForReading(const std::string& /*path*/) override {
        return std::unique_ptr<ReadableFile>(std::make_unique<ShrinkingFile>());
    }
};

TEST_F(FileReadingTest, OfAFileThatIsCutMeanwhileThereIsWhatWasLeft) {
    ShrinkingFiles shrinking;
    EXPECT_EQ(ReadWholeFile(shrinking, kPath, 1000).Value(), "x");
}

}  // namespace
}  // namespace zentar
