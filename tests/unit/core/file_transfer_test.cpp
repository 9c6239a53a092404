// Carrying a file to another folder.

#include "core/file_transfer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/memory_platform.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kSource = "C:\\From\\file.tga";

class FileTransferTest : public ::testing::Test {
  protected:
    FileTransferTest() {
        os_.files.AddFile(kSource, "the file");
        os_.files.AddFolder("C:\\To\\");
        os_.files.AddFolder("D:\\To\\");
    }

    static FileTransfer To(const std::string& target, bool overwrites = false) {
        return {.source = kSource, .target = target, .overwrites = overwrites};
    }
    bool HasRoomFor(std::uint64_t length, const std::string& target) {
        return HasRoom(os_.Services(), TransferVerb::Copy, To(target), length, "shot");
    }
    OriginalOutcome DeleteOriginal(const FileTransfer& file) {
        return DeleteTransferred(os_.Services(), file, question_);
    }

    const Message question_ = {"Error", "May it go?", MessageIcon::Exclamation,
                               MessageButtons::YesNo, DefaultButton::Second};
    MemoryPlatform os_;
};

TEST_F(FileTransferTest, DrivesAreToldApartWhateverTheirCase) {
    EXPECT_TRUE(IsOnOneDrive(To("c:\\To\\file.tga")));
    EXPECT_FALSE(IsOnOneDrive(To("D:\\To\\file.tga")));
    EXPECT_FALSE(IsOnOneDrive(To("\\\\server\\share\\file.tga")));
    EXPECT_TRUE(IsOnOneDrive(
        {.source = "\\\\Server\\Share\\a\\file.tga", .target = "\\\\server\\share\\b\\file.tga"}));
    EXPECT_FALSE(IsOnOneDrive(
        {.source = "\\\\server\\one\\file.tga", .target = "\\\\server\\two\\file.tga"}));
}

TEST_F(FileTransferTest, OnlyTooLittleSpaceIsTold) {
    os_.files.SetFreeSpace("D:\\", 8);
    EXPECT_TRUE(HasRoomFor(8, "D:\\To\\file.tga"));
    os_.windows.Expect({"Error",
                        "No space on your D drive to copy this shot!\r\n\r\n"
                        "Shot's file size (bytes):\t9\r\nDisk space free (bytes):\t8",
                        MessageIcon::Exclamation});
    EXPECT_FALSE(HasRoomFor(9, "D:\\To\\file.tga"));
}

TEST_F(FileTransferTest, ADriveThatDoesNotSayTakesTheCopy) {
    EXPECT_TRUE(HasRoomFor(8, "X:\\To\\file.tga"));
}

TEST_F(FileTransferTest, OfTheNetworkTheFolderIsAskedFor) {
    EXPECT_TRUE(HasRoomFor(8, "\\\\server\\share\\To\\file.tga"));
    EXPECT_TRUE(os_.log.Has("FreeSpace \\\\server\\share\\To\\"));
}

TEST_F(FileTransferTest, AMoveOnOneDriveNeedsNoSpace) {
    os_.files.SetFreeSpace("C:\\", 0);
    EXPECT_TRUE(HasRoom(os_.Services(), TransferVerb::Move, To("C:\\To\\file.tga"), 9, "shot"));
}

TEST_F(FileTransferTest, ACopyRemembersWhatItWasMadeOf) {
    FileTransfer file = To("D:\\To\\file.tga");
    EXPECT_EQ(CopyToTarget(os_.files, file), CopyOutcome::Whole);
    EXPECT_EQ(os_.files.Contents("D:\\To\\file.tga"), "the file");
    EXPECT_EQ(file.copied.length, 8U);
    EXPECT_EQ(file.copied.lastWrite, os_.files.Info(kSource).Value().lastWrite);
    EXPECT_FALSE(file.leavesOriginal);
}

TEST_F(FileTransferTest, WithoutASourceThereIsNoCopy) {
    os_.files.Remove(kSource);
    FileTransfer file = To("D:\\To\\file.tga");
    EXPECT_EQ(CopyToTarget(os_.files, file), CopyOutcome::Missing);
    EXPECT_THAT(os_.files.Names("D:\\To\\"), IsEmpty());
}

TEST_F(FileTransferTest, AFileThatNobodyAgreedToReplaceStays) {
    os_.files.AddFile("D:\\To\\file.tga", "old");
    FileTransfer file = To("D:\\To\\file.tga");
    EXPECT_EQ(CopyToTarget(os_.files, file), CopyOutcome::Exists);
    EXPECT_EQ(os_.files.Contents("D:\\To\\file.tga"), "old");
    file.overwrites = true;
    EXPECT_EQ(CopyToTarget(os_.files, file), CopyOutcome::Whole);
    EXPECT_EQ(os_.files.Contents("D:\\To\\file.tga"), "the file");
}

TEST_F(FileTransferTest, AMoveOnOneDriveRenames) {
    FileTransfer file = To("C:\\To\\file.tga");
    EXPECT_EQ(MoveToTarget(os_.files, file), CopyOutcome::Whole);
    EXPECT_FALSE(file.leavesOriginal);
    EXPECT_FALSE(os_.files.Exists(kSource));
    EXPECT_EQ(os_.files.Contents("C:\\To\\file.tga"), "the file");
}

TEST_F(FileTransferTest, AMoveOverAFileOrToAnotherDriveCopies) {
    os_.files.AddFile("C:\\To\\file.tga", "old");
    for (const char* target : {"C:\\To\\file.tga", "D:\\To\\file.tga"}) {
        FileTransfer file = To(target, true);
        EXPECT_EQ(MoveToTarget(os_.files, file), CopyOutcome::Whole);
        EXPECT_TRUE(file.leavesOriginal);
        EXPECT_TRUE(os_.files.Exists(kSource));
        EXPECT_EQ(os_.files.Contents(target), "the file");
    }
}

TEST_F(FileTransferTest, AFileThatCannotBeRenamedIsCopied) {
    os_.files.SetWritingDenied("C:\\From\\");
    FileTransfer file = To("C:\\To\\file.tga");
    EXPECT_EQ(MoveToTarget(os_.files, file), CopyOutcome::Whole);
    EXPECT_TRUE(file.leavesOriginal);
    EXPECT_EQ(DeleteOriginal(file), OriginalOutcome::NotDeletable);
    EXPECT_TRUE(os_.files.Exists(kSource));
}

TEST_F(FileTransferTest, TheOriginalOfACopyCanGo) {
    FileTransfer file = To("D:\\To\\file.tga");
    ASSERT_EQ(CopyToTarget(os_.files, file), CopyOutcome::Whole);
    EXPECT_EQ(DeleteOriginal(file), OriginalOutcome::Gone);
    EXPECT_FALSE(os_.files.Exists(kSource));
    EXPECT_EQ(DeleteOriginal(file), OriginalOutcome::Gone);
}

TEST_F(FileTransferTest, AReadOnlyOriginalIsAskedFor) {
    os_.files.SetReadOnly(kSource);
    FileTransfer file = To("D:\\To\\file.tga");
    ASSERT_EQ(CopyToTarget(os_.files, file), CopyOutcome::Whole);
    os_.windows.Expect(question_, Answer::No);
    EXPECT_EQ(DeleteOriginal(file), OriginalOutcome::KeptByUser);
    EXPECT_TRUE(os_.files.Exists(kSource));
    os_.windows.Expect(question_, Answer::Yes);
    EXPECT_EQ(DeleteOriginal(file), OriginalOutcome::Gone);
}

TEST_F(FileTransferTest, AnOriginalThatIsAnotherFileByNowStays) {
    FileTransfer file = To("D:\\To\\file.tga");
    ASSERT_EQ(CopyToTarget(os_.files, file), CopyOutcome::Whole);
    os_.files.AddFile(kSource, "8 bytes!");
    EXPECT_EQ(DeleteOriginal(file), OriginalOutcome::NotDeletable);
    EXPECT_EQ(os_.files.Contents(kSource), "8 bytes!");
}

TEST_F(FileTransferTest, OnlyAnOriginalThatCannotGoIsTold) {
    const Message notDeletable = {"Error", "It stays.", MessageIcon::Critical};
    const auto isGone = [&](const FileTransfer& file) {
        return DeleteTransferredOrTell(os_.Services(), file, question_, notDeletable);
    };
    FileTransfer file = To("D:\\To\\file.tga");
    ASSERT_EQ(CopyToTarget(os_.files, file), CopyOutcome::Whole);
    os_.files.SetLocked(kSource);
    os_.windows.Expect(notDeletable);
    EXPECT_FALSE(isGone(file));
    os_.files.SetLocked(kSource, false);
    os_.files.SetReadOnly(kSource);
    os_.windows.Expect(question_, Answer::No);
    EXPECT_FALSE(isGone(file));
    os_.windows.Expect(question_, Answer::Yes);
    EXPECT_TRUE(isGone(file));
}

TEST_F(FileTransferTest, AFileThatWasCarriedToItselfStays) {
    os_.files.AddDriveFor("S:\\", "C:\\From\\");
    FileTransfer file = To("S:\\file.tga", true);
    ASSERT_EQ(MoveToTarget(os_.files, file), CopyOutcome::Whole);
    EXPECT_EQ(DeleteOriginal(file), OriginalOutcome::Gone);
    EXPECT_EQ(os_.files.Contents(kSource), "the file");
    EXPECT_THAT(os_.files.Names("C:\\From\\"), ElementsAre("file.tga"));
}

}  // namespace
}  // namespace zentar
