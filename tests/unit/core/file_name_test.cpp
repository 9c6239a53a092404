#include "core/file_name.h"

#include <gtest/gtest.h>

#include "core/messages.h"
#include "tests/doubles/scripted_services.h"

namespace zentar {
namespace {

TEST(FileNameTest, EachOfTheNineCharactersIsIllegal) {
    for (const char c : std::string(R"("\/:?*<>|)")) {
        EXPECT_TRUE(HoldsIllegalCharacter(std::string("a") + c)) << c;
    }
    EXPECT_FALSE(HoldsIllegalCharacter("100% [q2dm1] & 'x' {y} Größe ^_-+=;,."));
    EXPECT_FALSE(HoldsIllegalCharacter(""));
}

TEST(FileNameTest, TheUserIsToldOfEachOccurrence) {
    ScriptedWindows windows;
    EXPECT_TRUE(ValidateFileName(windows, "duel"));
    windows.Expect(messages::IllegalCharacters());
    EXPECT_FALSE(ValidateFileName(windows, "a:b"));
    windows.Expect(messages::IllegalCharacters());
    windows.Expect(messages::IllegalCharacters());
    EXPECT_FALSE(ValidateFileName(windows, "a??"));
}

TEST(FileNameTest, APathIsAFolderAndAName) {
    EXPECT_EQ(FolderOf("C:\\Games\\duel.dm2"), "C:\\Games\\");
    EXPECT_EQ(FileNameOf("C:\\Games\\duel.dm2"), "duel.dm2");
    EXPECT_EQ(FolderOf("D:/Remote/duel.dm2"), "D:/Remote/");
    EXPECT_EQ(FileNameOf("D:/Remote\\x/duel.dm2"), "duel.dm2");
    EXPECT_EQ(FolderOf("duel.dm2"), "");
    EXPECT_EQ(FileNameOf("C:\\Games\\"), "");
}

TEST(FileNameTest, DrivesAreToldApartByLetterOrShare) {
    EXPECT_EQ(DriveOf("C:\\Games\\"), "c:");
    EXPECT_EQ(DriveOf("c:/games"), "c:");
    EXPECT_EQ(DriveOf("D:"), "d:");
    EXPECT_EQ(DriveOf("\\\\Server\\Share\\demos\\"), "\\\\server\\share");
    EXPECT_EQ(DriveOf("\\\\server\\other\\demos\\"), "\\\\server\\other");
    EXPECT_EQ(DriveOf("\\\\server\\share"), "\\\\server\\share");
    EXPECT_EQ(DriveOf("\\\\server"), "\\\\server");
    EXPECT_EQ(DriveOf(""), "");
}

}  // namespace
}  // namespace zentar
