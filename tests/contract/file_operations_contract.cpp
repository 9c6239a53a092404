// Renaming, replacing, copying, deleting: no file is lost, and each refusal says why.
#include "tests/contract/file_system_contract.h"

namespace zentar {

TEST_P(FileOperationsContract, RenameNeverReplacesAFile) {
    Write(In("a.txt"), "a");
    Write(In("b.txt"), "b");
    ASSERT_TRUE(Succeeded(Files().CreateFolder(In("folder"))));
    EXPECT_TRUE(FailedWith(Files().Rename(In("a.txt"), In("B.TXT")), FileError::AlreadyExists));
    EXPECT_TRUE(FailedWith(Files().Rename(In("a.txt"), In("folder")), FileError::AlreadyExists));
    EXPECT_EQ(Read(In("a.txt")), "a");
    EXPECT_EQ(Read(In("b.txt")), "b");
    EXPECT_TRUE(Succeeded(Files().Rename(In("a.txt"), In("c.txt"))));
    EXPECT_EQ(Read(In("c.txt")), "a");
    EXPECT_FALSE(Exists(In("a.txt")));
}

TEST_P(FileOperationsContract, RenameMovesAFileOrAFolderOnTheSameDrive) {
    ASSERT_TRUE(Succeeded(Files().CreateFolder(In("from"))));
    ASSERT_TRUE(Succeeded(Files().CreateFolder(In("to"))));
    Write(In("from\\a.txt"), "a");
    EXPECT_TRUE(Succeeded(Files().Rename(In("from\\a.txt"), In("to\\b.txt"))));
    EXPECT_EQ(Read(In("to\\b.txt")), "a");
    EXPECT_TRUE(Succeeded(Files().Rename(In("to"), In("moved"))));
    EXPECT_EQ(Read(In("moved\\b.txt")), "a");
}

TEST_P(FileOperationsContract, RenameToWhereThereIsNoFolderLeavesTheFile) {
    Write(In("a.txt"), "a");
    EXPECT_TRUE(FailedWith(Files().Rename(In("a.txt"), In("no\\a.txt")), FileError::NotFound));
    EXPECT_TRUE(FailedWith(Files().Rename(In("no.txt"), In("b.txt")), FileError::NotFound));
    EXPECT_EQ(Read(In("a.txt")), "a");
}

TEST_P(FileOperationsContract, RenameAcrossDrivesIsRefused) {
    if (World().OtherDrive().empty())
        GTEST_SKIP() << "this system has one drive only";
    Write(In("a.txt"), "a");
    const std::string there = World().OtherDrive() + "zentar-contract.txt";
    EXPECT_FALSE(Files().Rename(In("a.txt"), there).Ok());
    EXPECT_EQ(Read(In("a.txt")), "a");
    EXPECT_FALSE(Exists(there));
}

TEST_P(FileOperationsContract, AReadOnlyFileMayBeRenamedAndStaysReadOnly) {
    Write(In("a.txt"), "a");
    World().SetReadOnly(In("a.txt"));
    EXPECT_TRUE(Succeeded(Files().Rename(In("a.txt"), In("b.txt"))));
    EXPECT_TRUE(Files().Info(In("b.txt")).ValueOr({}).readOnly);
}

TEST_P(FileOperationsContract, AReadOnlyFileIsNotDeletedReplacedOrWritten) {
    Write(In("a.txt"), "kept");
    Write(In("new.txt"), "new");
    World().SetReadOnly(In("a.txt"));
    EXPECT_TRUE(Files().Info(In("a.txt")).ValueOr({}).readOnly);
    EXPECT_TRUE(FailedWith(Files().Delete(In("a.txt")), FileError::AccessDenied));
    EXPECT_TRUE(FailedWith(Files().Replace(In("new.txt"), In("a.txt")), FileError::AccessDenied));
    EXPECT_TRUE(
        FailedWith(Files().Copy(In("new.txt"), In("a.txt"), true), FileError::AccessDenied));
    EXPECT_EQ(WriteError(In("a.txt"), WriteMode::Truncate), FileError::AccessDenied);
    EXPECT_EQ(WriteError(In("a.txt"), WriteMode::Append), FileError::AccessDenied);
    EXPECT_EQ(Read(In("a.txt")), "kept");
    EXPECT_EQ(Read(In("new.txt")), "new");
}

TEST_P(FileOperationsContract, AFileWithoutAttributesMayBeDeletedAgain) {
    Write(In("a.txt"), "a");
    World().SetReadOnly(In("a.txt"));
    EXPECT_TRUE(Succeeded(Files().ClearAttributes(In("a.txt"))));
    EXPECT_FALSE(Files().Info(In("a.txt")).ValueOr({}).readOnly);
    EXPECT_TRUE(Succeeded(Files().Delete(In("a.txt"))));
    EXPECT_TRUE(FailedWith(Files().ClearAttributes(In("a.txt")), FileError::NotFound));
}

TEST_P(FileOperationsContract, AReadOnlyFileCanBeReadAndCopied) {
    Write(In("a.txt"), "a");
    World().SetReadOnly(In("a.txt"));
    EXPECT_EQ(Read(In("a.txt")), "a");
    EXPECT_TRUE(Succeeded(Files().Copy(In("a.txt"), In("b.txt"), false)));
    EXPECT_EQ(Read(In("b.txt")), "a");
}

TEST_P(FileOperationsContract, ReplacePutsTheNewFileInThePlaceOfTheOld) {
    Write(In("zentar.ini"), "old");
    Write(In("zentar.ini.tmp"), "new");
    EXPECT_TRUE(Succeeded(Files().Replace(In("zentar.ini.tmp"), In("zentar.ini"))));
    EXPECT_EQ(Read(In("zentar.ini")), "new");
    EXPECT_EQ(Names(World().Folder()), std::vector<std::string>{"zentar.ini"});
}

TEST_P(FileOperationsContract, ReplaceNeedsNoOldFileButANewOne) {
    Write(In("new.txt"), "new");
    EXPECT_TRUE(Succeeded(Files().Replace(In("new.txt"), In("a.txt"))));
    EXPECT_EQ(Read(In("a.txt")), "new");
    EXPECT_TRUE(FailedWith(Files().Replace(In("new.txt"), In("a.txt")), FileError::NotFound));
    EXPECT_EQ(Read(In("a.txt")), "new");
}

TEST_P(FileOperationsContract, AFolderIsNeitherReplacedNorDeletedNorOpened) {
    ASSERT_TRUE(Succeeded(Files().CreateFolder(In("folder"))));
    Write(In("new.txt"), "new");
    EXPECT_TRUE(FailedWith(Files().Replace(In("new.txt"), In("folder")), FileError::AccessDenied));
    EXPECT_TRUE(FailedWith(Files().Delete(In("folder")), FileError::AccessDenied));
    EXPECT_EQ(ReadError(In("folder")), FileError::AccessDenied);
    EXPECT_EQ(WriteError(In("folder"), WriteMode::Truncate), FileError::AccessDenied);
    EXPECT_EQ(WriteError(In("folder"), WriteMode::Append), FileError::AccessDenied);
    EXPECT_FALSE(Files().Copy(In("new.txt"), In("folder"), true).Ok());
    EXPECT_FALSE(Files().Copy(In("folder"), In("copy"), false).Ok());
    EXPECT_EQ(Names(World().Folder()), (std::vector<std::string>{"folder", "new.txt"}));
}

TEST_P(FileOperationsContract, CopyOverwritesOnlyWhenItMay) {
    Write(In("a.txt"), "a");
    Write(In("b.txt"), "longer");
    EXPECT_TRUE(
        FailedWith(Files().Copy(In("a.txt"), In("B.txt"), false), FileError::AlreadyExists));
    EXPECT_EQ(Read(In("b.txt")), "longer");
    EXPECT_TRUE(Succeeded(Files().Copy(In("a.txt"), In("B.TXT"), true)));
    EXPECT_EQ(Names(World().Folder()), (std::vector<std::string>{"a.txt", "b.txt"}));
    EXPECT_EQ(Read(In("b.txt")), "a");
    EXPECT_EQ(Read(In("a.txt")), "a");
}

TEST_P(FileOperationsContract, ACopyHasTheTimeOfItsOriginal) {
    Write(In("a.txt"), "a");
    const FileTime written = Files().Info(In("a.txt")).ValueOr({}).lastWrite;
    EXPECT_TRUE(Succeeded(Files().Copy(In("a.txt"), In("b.txt"), false)));
    EXPECT_EQ(Files().Info(In("b.txt")).ValueOr({}).lastWrite, written);
}

TEST_P(FileOperationsContract, AFileCopiedToItselfIsKept) {
    Write(In("a.txt"), "a");
    EXPECT_FALSE(Files().Copy(In("a.txt"), In("A.TXT"), true).Ok());
    EXPECT_EQ(Read(In("a.txt")), "a");
}

TEST_P(FileOperationsContract, WhatIsMissingIsNotFound) {
    EXPECT_EQ(Files().Info(In("no.txt")).Error(), FileError::NotFound);
    EXPECT_EQ(Files().Info(In("no\\no.txt")).Error(), FileError::NotFound);
    EXPECT_EQ(ReadError(In("no.txt")), FileError::NotFound);
    EXPECT_EQ(ReadError(In("no\\no.txt")), FileError::NotFound);
    EXPECT_EQ(WriteError(In("no\\a.txt"), WriteMode::Truncate), FileError::NotFound);
    EXPECT_TRUE(FailedWith(Files().Delete(In("no.txt")), FileError::NotFound));
    EXPECT_TRUE(FailedWith(Files().Copy(In("no.txt"), In("a.txt"), true), FileError::NotFound));
    EXPECT_TRUE(FailedWith(Files().CreateFolder(In("no\\folder")), FileError::NotFound));
    EXPECT_TRUE(FailedWith(Files().Enumerate(In("no\\"), {}), FileError::NotFound));
}

TEST_P(FileOperationsContract, AFileInTheWayOfAFolderIsNotFound) {
    Write(In("a.txt"), "a");
    EXPECT_EQ(ReadError(In("a.txt\\b.txt")), FileError::NotFound);
    EXPECT_TRUE(FailedWith(Files().Enumerate(In("a.txt\\"), {}), FileError::NotFound));
    EXPECT_FALSE(Files().CreateFolder(In("a.txt\\folder")).Ok());
}

TEST_P(FileOperationsContract, AFolderIsCreatedOnce) {
    EXPECT_TRUE(Succeeded(Files().CreateFolder(In("data\\"))));
    EXPECT_TRUE(FailedWith(Files().CreateFolder(In("Data")), FileError::AlreadyExists));
    Write(In("a.txt"), "a");
    EXPECT_TRUE(FailedWith(Files().CreateFolder(In("a.txt")), FileError::AlreadyExists));
    const Result<FileInfo> info = Files().Info(In("data"));
    ASSERT_TRUE(info.Ok());
    EXPECT_TRUE(info.Value().isFolder);
    EXPECT_EQ(info.Value().length, 0U);
    EXPECT_TRUE(Files().Info(In("data\\")).ValueOr({}).isFolder);
}

TEST_P(FileOperationsContract, ADriveTellsItsFreeSpace) {
    const std::string root = World().Folder().substr(0, 3);
    EXPECT_GT(Files().FreeSpace(root).ValueOr(0), 0U);
    EXPECT_FALSE(Files().FreeSpace("?:\\").Ok());
}

TEST_P(FileOperationsContract, OneFileIsTheSameByEverySpellingOfItsPath) {
    Write(In("a.txt"), "a");
    Write(In("b.txt"), "a");
    ASSERT_TRUE(Succeeded(Files().CreateFolder(In("folder"))));
    const auto same = [this](const std::string& one, const std::string& other) {
        const Result<bool> answer = Files().IsSameFile(In(one), In(other));
        return answer.Ok() && answer.Value();
    };
    EXPECT_TRUE(same("a.txt", "a.txt"));
    EXPECT_TRUE(same("a.txt", "A.TXT"));
    EXPECT_TRUE(same("a.txt", "folder\\..\\a.txt"));
    EXPECT_FALSE(same("a.txt", "b.txt"));
    EXPECT_FALSE(Files().IsSameFile(In("a.txt"), In("gone.txt")).Ok());
    EXPECT_FALSE(Files().IsSameFile(In("gone.txt"), In("a.txt")).Ok());
}

TEST_P(FileOperationsContract, AnOriginalIsDeletedUnlessItIsItsCopy) {
    Write(In("a.txt"), "a");
    Write(In("copy.txt"), "a");
    EXPECT_FALSE(Files().DeleteOriginal(In("a.txt"), In("gone.txt")).Ok());
    EXPECT_FALSE(Files().DeleteOriginal(In("a.txt"), In("A.TXT")).Ok());
    EXPECT_EQ(Read(In("a.txt")), "a");
    EXPECT_TRUE(Succeeded(Files().DeleteOriginal(In("a.txt"), In("copy.txt"))));
    EXPECT_FALSE(Exists(In("a.txt")));
    EXPECT_EQ(Read(In("copy.txt")), "a");
}

}  // namespace zentar
