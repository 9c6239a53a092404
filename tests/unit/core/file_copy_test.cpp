// Copying files whole or not at all.

#include "core/file_copy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/faulty_file_system.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;

const std::string kFrom = "C:\\from.dm2";
const std::string kTo = "D:\\to.dm2";

class FileCopyTest : public ::testing::Test {
  protected:
    FileCopyTest() { files_.AddFile(kFrom, "the demo"); }

    CopyOutcome Copy(Existing existing, std::uint64_t length = 8) {
        return CopyFileWhole(files_, kFrom, kTo, length, existing);
    }

    MemoryFileSystem files_;
};

TEST_F(FileCopyTest, TheCopyHasTheBytesAndNothingElseIsLeft) {
    EXPECT_EQ(Copy(Existing::Keep), CopyOutcome::Whole);
    EXPECT_EQ(files_.Contents(kTo), "the demo");
    EXPECT_THAT(files_.Names("D:\\"), ElementsAre("to.dm2"));
}

TEST_F(FileCopyTest, AFileThatIsThereIsKeptOrReplaced) {
    files_.AddFile(kTo, "old");
    EXPECT_EQ(Copy(Existing::Keep), CopyOutcome::Exists);
    EXPECT_EQ(files_.Contents(kTo), "old");
    EXPECT_EQ(Copy(Existing::Replace), CopyOutcome::Whole);
    EXPECT_EQ(files_.Contents(kTo), "the demo");
}

TEST_F(FileCopyTest, ACopyOfAnotherLengthIsDeletedAndTheOldFileStays) {
    files_.AddFile(kTo, "old");
    EXPECT_EQ(Copy(Existing::Replace, 9), CopyOutcome::Partial);
    EXPECT_EQ(files_.Contents(kTo), "old");
    EXPECT_THAT(files_.Names("D:\\"), ElementsAre("to.dm2"));
}

TEST_F(FileCopyTest, WithoutRoomThereIsNoCopyAndTheOldFileStays) {
    files_.AddFile(kTo, "old");
    files_.SetFreeSpace("D:\\", 4);
    EXPECT_NE(Copy(Existing::Replace), CopyOutcome::Whole);
    EXPECT_EQ(files_.Contents(kTo), "old");
    EXPECT_THAT(files_.Names("D:\\"), ElementsAre("to.dm2"));
}

TEST_F(FileCopyTest, AnUnfinishedCopyOfACrashIsInNobodysWay) {
    files_.AddFile("D:\\zentar-copy.tmp", "half");
    files_.SetReadOnly("D:\\zentar-copy.tmp");
    EXPECT_EQ(Copy(Existing::Keep), CopyOutcome::Whole);
    EXPECT_THAT(files_.Names("D:\\"), ElementsAre("to.dm2"));
}

TEST_F(FileCopyTest, AReadOnlyFilesCopyIsReadOnly) {
    files_.SetReadOnly(kFrom);
    EXPECT_EQ(Copy(Existing::Keep), CopyOutcome::Whole);
    EXPECT_TRUE(files_.IsReadOnly(kTo));
}

TEST_F(FileCopyTest, TheCopyIsOnTheDiskBeforeItGetsItsName) {
    FaultyFileSystem watched(files_);
    EXPECT_EQ(CopyFileWhole(watched, kFrom, kTo, 8, Existing::Keep), CopyOutcome::Whole);
    const std::vector<std::string>& calls = watched.Calls();
    const auto flush = std::find(calls.begin(), calls.end(), "Flush D:\\zentar-copy.tmp");
    const auto rename =
        std::find(calls.begin(), calls.end(), "Rename D:\\zentar-copy.tmp -> D:\\to.dm2");
    ASSERT_NE(flush, calls.end());
    EXPECT_LT(flush, rename);
}

TEST_F(FileCopyTest, TheUnfinishedCopyOfAnotherZentarIsNotTaken) {
    files_.AddFile("D:\\zentar-copy.tmp", "anything");
    files_.SetLocked("D:\\zentar-copy.tmp");
    EXPECT_EQ(Copy(Existing::Keep), CopyOutcome::Missing);
    EXPECT_FALSE(files_.Exists(kTo));
    EXPECT_TRUE(files_.Exists("D:\\zentar-copy.tmp"));
}

TEST_F(FileCopyTest, KilledAtAnyCallTheOldFileOrTheNewOneIsThereWhole) {
    FaultyFileSystem sound(files_);
    EXPECT_EQ(CopyFileWhole(sound, kFrom, kTo, 8, Existing::Replace), CopyOutcome::Whole);
    for (int call = 1; call <= sound.CallCount(); ++call) {
        MemoryFileSystem disk;
        disk.AddFile(kFrom, "the demo");
        disk.AddFile(kTo, "old");
        FaultyFileSystem faulty(disk);
        faulty.KillAt(call, Unflushed::Lost);
        CopyFileWhole(faulty, kFrom, kTo, 8, Existing::Replace);
        EXPECT_EQ(disk.Contents(kFrom), "the demo");
        const std::string there = disk.Contents(kTo);
        EXPECT_TRUE(there == "old" || there == "the demo") << faulty.CallName(call);
    }
}

TEST(HoldSameBytesTest, ComparesEveryByte) {
    MemoryFileSystem files;
    const std::string large(200'000, 'x');
    files.AddFile("C:\\a", large);
    files.AddFile("C:\\b", large);
    files.AddFile("C:\\longer", large + "x");
    files.AddFile("C:\\other", large.substr(1) + "y");
    files.AddFile("C:\\empty", "");
    const auto same = [&](const char* one, const char* other) {
        return HoldSameBytes(files, one, other).ValueOr(false);
    };
    EXPECT_TRUE(same("C:\\a", "C:\\b"));
    EXPECT_FALSE(same("C:\\a", "C:\\longer"));
    EXPECT_FALSE(same("C:\\longer", "C:\\a"));
    EXPECT_FALSE(same("C:\\a", "C:\\other"));
    EXPECT_FALSE(same("C:\\a", "C:\\empty"));
    EXPECT_FALSE(HoldSameBytes(files, "C:\\a", "C:\\gone").Ok());
}

}  // namespace
}  // namespace zentar
