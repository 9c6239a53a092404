// What is written to a file is what is read from it.
#include <array>

#include "tests/contract/file_system_contract.h"

namespace zentar {

TEST_P(FileContentsContract, AFileHoldsTheBytesThatWereWritten) {
    std::string bytes;
    for (int value = 0; value < 256; ++value)
        bytes += static_cast<char>(value);
    Write(In("all.bin"), bytes);
    EXPECT_EQ(Read(In("all.bin")), bytes);
    const Result<FileInfo> info = Files().Info(In("all.bin"));
    ASSERT_TRUE(info.Ok());
    EXPECT_EQ(info.Value().length, 256U);
    EXPECT_FALSE(info.Value().isFolder);
    EXPECT_FALSE(info.Value().readOnly);
}

TEST_P(FileContentsContract, TruncateLeavesNothingOfALongerFile) {
    Write(In("a.txt"), "a long text");
    Write(In("a.txt"), "short");
    EXPECT_EQ(Read(In("a.txt")), "short");
}

TEST_P(FileContentsContract, OpeningToTruncateEmptiesTheFileAtOnce) {
    Write(In("a.txt"), "text");
    const auto file = Files().OpenForWriting(In("a.txt"), WriteMode::Truncate);
    ASSERT_TRUE(file.Ok());
    EXPECT_EQ(Read(In("a.txt")), "");
}

TEST_P(FileContentsContract, AppendWritesBehindWhatIsThereAndCreatesWhatIsNot) {
    Write(In("q3config.cfg"), "seta name \"a\"\n", WriteMode::Append);
    Write(In("q3config.cfg"), "seta name \"b\"\n", WriteMode::Append);
    EXPECT_EQ(Read(In("q3config.cfg")), "seta name \"a\"\nseta name \"b\"\n");
}

TEST_P(FileContentsContract, CreateNewNeverTouchesWhatIsThere) {
    Write(In("a.txt"), "old");
    ASSERT_TRUE(Succeeded(Files().CreateFolder(In("folder"))));
    EXPECT_EQ(WriteError(In("A.TXT"), WriteMode::CreateNew), FileError::AlreadyExists);
    EXPECT_EQ(WriteError(In("folder"), WriteMode::CreateNew), FileError::AlreadyExists);
    EXPECT_EQ(Read(In("a.txt")), "old");
    Write(In("b.txt"), "new", WriteMode::CreateNew);
    EXPECT_EQ(Read(In("b.txt")), "new");
}

TEST_P(FileContentsContract, SeveralWritesStandInTheirOrder) {
    const auto file = Files().OpenForWriting(In("a.txt"), WriteMode::Truncate);
    ASSERT_TRUE(file.Ok());
    EXPECT_TRUE(Succeeded(file.Value()->Write("one ")));
    EXPECT_TRUE(Succeeded(file.Value()->Write("")));
    EXPECT_TRUE(Succeeded(file.Value()->Flush()));
    EXPECT_TRUE(Succeeded(file.Value()->Write("two")));
    EXPECT_TRUE(Succeeded(file.Value()->Close()));
    EXPECT_EQ(Read(In("a.txt")), "one two");
}

TEST_P(FileContentsContract, AFileThatIsDroppedIsClosed) {
    {
        const auto file = Files().OpenForWriting(In("a.txt"), WriteMode::Truncate);
        ASSERT_TRUE(file.Ok());
        EXPECT_TRUE(Succeeded(file.Value()->Write("text")));
    }
    EXPECT_EQ(Read(In("a.txt")), "text");
    EXPECT_TRUE(Succeeded(Files().Delete(In("a.txt"))));
}

TEST_P(FileContentsContract, NothingIsWrittenToAClosedFile) {
    const auto file = Files().OpenForWriting(In("a.txt"), WriteMode::Truncate);
    ASSERT_TRUE(file.Ok());
    EXPECT_TRUE(Succeeded(file.Value()->Close()));
    EXPECT_FALSE(file.Value()->Write("late").Ok());
    EXPECT_EQ(Read(In("a.txt")), "");
}

TEST_P(FileContentsContract, ReadingStopsAtTheEndOfTheFile) {
    Write(In("a.txt"), "0123456789");
    const auto file = Files().OpenForReading(In("a.txt"));
    ASSERT_TRUE(file.Ok());
    std::array<char, 8> bytes{};
    const auto into = std::as_writable_bytes(std::span(bytes));
    EXPECT_EQ(file.Value()->ReadAt(4, into).ValueOr(99), 6U);
    EXPECT_EQ(std::string_view(bytes.data(), 6), "456789");
    EXPECT_EQ(file.Value()->ReadAt(10, into).ValueOr(99), 0U);
    EXPECT_EQ(file.Value()->ReadAt(1000, into).ValueOr(99), 0U);
    EXPECT_EQ(file.Value()->ReadAt(0, into.first(0)).ValueOr(99), 0U);
    EXPECT_EQ(file.Value()->ReadAt(2, into).ValueOr(99), 8U);
    EXPECT_EQ(std::string_view(bytes.data(), 8), "23456789");
}

TEST_P(FileContentsContract, AFileOfFiveGigabytesHasItsLengthAndItsEnd) {
    constexpr std::uint64_t kLength = 5'368'709'127;
    World().MakeHugeFile(In("huge.dm2"), kLength, "the end");
    EXPECT_EQ(Files().Info(In("huge.dm2")).ValueOr({}).length, kLength);
    const auto file = Files().OpenForReading(In("huge.dm2"));
    ASSERT_TRUE(file.Ok());
    EXPECT_EQ(file.Value()->Length().ValueOr(0), kLength);
    std::string bytes(16, 'x');
    const auto into = std::as_writable_bytes(std::span(bytes));
    EXPECT_EQ(file.Value()->ReadAt(kLength - 9, into).ValueOr(99), 9U);
    EXPECT_EQ(bytes, std::string("\0\0the endxxxxxxx", 16));
    EXPECT_EQ(file.Value()->ReadAt(4'294'967'296, into).ValueOr(99), 16U);
    EXPECT_EQ(bytes, std::string(16, '\0'));
}

TEST_P(FileContentsContract, AFileMayBeWrittenRenamedOrDeletedWhileItIsRead) {
    Write(In("a.txt"), "0123456789");
    const auto file = Files().OpenForReading(In("a.txt"));
    ASSERT_TRUE(file.Ok());
    Write(In("a.txt"), "ABC", WriteMode::Append);
    EXPECT_EQ(file.Value()->Length().ValueOr(0), 13U);
    EXPECT_TRUE(Succeeded(Files().Rename(In("a.txt"), In("b.txt"))));
    EXPECT_TRUE(Succeeded(Files().Delete(In("b.txt"))));
    std::array<char, 3> bytes{};
    EXPECT_EQ(file.Value()->ReadAt(10, std::as_writable_bytes(std::span(bytes))).ValueOr(0), 3U);
    EXPECT_EQ(std::string_view(bytes.data(), 3), "ABC");
}

TEST_P(FileContentsContract, ADeletedFileIsGoneOnceNobodyReadsIt) {
    Write(In("a.txt"), "text");
    {
        const auto file = Files().OpenForReading(In("a.txt"));
        ASSERT_TRUE(file.Ok());
        EXPECT_TRUE(Succeeded(Files().Delete(In("a.txt"))));
    }
    EXPECT_FALSE(Exists(In("a.txt")));
    EXPECT_TRUE(Names(World().Folder()).empty());
}

TEST_P(FileContentsContract, AFileBeingWrittenCanBeReadButNotWrittenTwiceMovedOrDeleted) {
    const auto file = Files().OpenForWriting(In("a.txt"), WriteMode::Truncate);
    ASSERT_TRUE(file.Ok());
    EXPECT_TRUE(Succeeded(file.Value()->Write("so far")));
    Write(In("new.txt"), "new");
    EXPECT_EQ(Read(In("a.txt")), "so far");
    EXPECT_EQ(WriteError(In("a.txt"), WriteMode::Append), FileError::InUse);
    EXPECT_TRUE(FailedWith(Files().Delete(In("a.txt")), FileError::InUse));
    EXPECT_TRUE(FailedWith(Files().Rename(In("a.txt"), In("b.txt")), FileError::InUse));
    EXPECT_FALSE(Files().Replace(In("new.txt"), In("a.txt")).Ok());
    EXPECT_EQ(Read(In("new.txt")), "new");
}

TEST_P(FileContentsContract, AFileThatAnotherProgramHoldsIsInUse) {
    Write(In("a.txt"), "theirs");
    Write(In("new.txt"), "ours");
    World().Lock(In("a.txt"));
    EXPECT_TRUE(Exists(In("a.txt")));
    EXPECT_EQ(ReadError(In("a.txt")), FileError::InUse);
    EXPECT_EQ(WriteError(In("a.txt"), WriteMode::Truncate), FileError::InUse);
    EXPECT_EQ(WriteError(In("a.txt"), WriteMode::Append), FileError::InUse);
    EXPECT_TRUE(FailedWith(Files().Delete(In("a.txt")), FileError::InUse));
    EXPECT_TRUE(FailedWith(Files().Rename(In("a.txt"), In("b.txt")), FileError::InUse));
    EXPECT_TRUE(FailedWith(Files().Copy(In("a.txt"), In("c.txt"), false), FileError::InUse));
    EXPECT_TRUE(FailedWith(Files().Copy(In("new.txt"), In("a.txt"), true), FileError::InUse));
    EXPECT_FALSE(Files().Replace(In("new.txt"), In("a.txt")).Ok());
    World().Unlock(In("a.txt"));
    EXPECT_EQ(Read(In("a.txt")), "theirs");
    EXPECT_EQ(Read(In("new.txt")), "ours");
    EXPECT_FALSE(Exists(In("c.txt")));
}

TEST_P(FileContentsContract, WritingChangesTheTimeAndReadingDoesNot) {
    Write(In("a.txt"), "text");
    const FileTime written = Files().Info(In("a.txt")).ValueOr({}).lastWrite;
    EXPECT_GT(written, 0x01D0'0000'0000'0000U);  // a moment after the year 2014
    EXPECT_EQ(Read(In("a.txt")), "text");
    EXPECT_EQ(Files().Info(In("a.txt")).ValueOr({}).lastWrite, written);
    Write(In("a.txt"), "more", WriteMode::Append);
    EXPECT_GE(Files().Info(In("a.txt")).ValueOr({}).lastWrite, written);
}

}  // namespace zentar
