// Bytes in the middle of a file.
#include "tests/contract/file_system_contract.h"

namespace zentar {

TEST_P(FileOverwriteContract, OnlyTheseBytesChange) {
    Write(In("a.exe"), "0123456789");
    EXPECT_TRUE(Succeeded(Files().Overwrite(In("a.exe"), 3, std::string(4, '\0'))));
    EXPECT_EQ(Read(In("a.exe")), "012" + std::string(4, '\0') + "789");
    EXPECT_TRUE(Succeeded(Files().Overwrite(In("a.exe"), 0, "AB")));
    EXPECT_TRUE(Succeeded(Files().Overwrite(In("a.exe"), 9, "Z")));
    EXPECT_TRUE(Succeeded(Files().Overwrite(In("a.exe"), 5, "")));
    EXPECT_EQ(Read(In("a.exe")), "AB2" + std::string(4, '\0') + "78Z");
}

TEST_P(FileOverwriteContract, WhatGoesBeyondTheEndMakesTheFileLonger) {
    Write(In("a.exe"), "0123");
    EXPECT_TRUE(Succeeded(Files().Overwrite(In("a.exe"), 3, "xyz")));
    EXPECT_EQ(Read(In("a.exe")), "012xyz");
    EXPECT_TRUE(Succeeded(Files().Overwrite(In("a.exe"), 6, "!")));
    EXPECT_EQ(Read(In("a.exe")), "012xyz!");
    EXPECT_TRUE(FailedWith(Files().Overwrite(In("a.exe"), 8, "?"), FileError::Other));
    EXPECT_EQ(Read(In("a.exe")), "012xyz!");
}

TEST_P(FileOverwriteContract, AFileThatIsNotThereIsNotMade) {
    EXPECT_TRUE(FailedWith(Files().Overwrite(In("none.exe"), 0, "x"), FileError::NotFound));
    EXPECT_TRUE(FailedWith(Files().Overwrite(In("none\\a.exe"), 0, "x"), FileError::NotFound));
    EXPECT_TRUE(Names(World().Folder()).empty());
}

TEST_P(FileOverwriteContract, AProtectedOrHeldFileStays) {
    Write(In("a.exe"), "theirs");
    World().SetReadOnly(In("a.exe"));
    EXPECT_TRUE(FailedWith(Files().Overwrite(In("a.exe"), 0, "x"), FileError::AccessDenied));
    EXPECT_TRUE(Succeeded(Files().ClearAttributes(In("a.exe"))));
    World().Lock(In("a.exe"));
    EXPECT_TRUE(FailedWith(Files().Overwrite(In("a.exe"), 0, "x"), FileError::InUse));
    World().Unlock(In("a.exe"));
    EXPECT_EQ(Read(In("a.exe")), "theirs");
    EXPECT_TRUE(Succeeded(Files().CreateFolder(In("folder"))));
    EXPECT_TRUE(FailedWith(Files().Overwrite(In("folder"), 0, "x"), FileError::AccessDenied));
}

TEST_P(FileOverwriteContract, BeyondFourGigabytesToo) {
    constexpr std::uint64_t kLength = (std::uint64_t{4} << 30U) + 100;
    World().MakeHugeFile(In("huge.exe"), kLength, "the tail");
    EXPECT_TRUE(Succeeded(Files().Overwrite(In("huge.exe"), kLength - 4, "TAIL")));
    const auto file = Files().OpenForReading(In("huge.exe"));
    ASSERT_TRUE(file.Ok());
    std::string tail(8, '\0');
    EXPECT_EQ(file.Value()->ReadAt(kLength - 8, std::as_writable_bytes(std::span(tail))).ValueOr(0),
              8U);
    EXPECT_EQ(tail, "the TAIL");
    EXPECT_EQ(Files().Info(In("huge.exe")).ValueOr({}).length, kLength);
}

}  // namespace zentar
