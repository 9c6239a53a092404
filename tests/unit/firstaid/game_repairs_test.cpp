// Repairs of the games' folders and files.
#include "firstaid/game_repairs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/program_info.h"
#include "tests/doubles/faulty_file_system.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kGame = "C:\\Quake2\\";
const std::string kPlayers = kGame + "baseq2\\players\\";
const std::string kStrays = kGame + "Zentar Strays\\";

class GameRepairs : public ::testing::Test {
  protected:
    GameRepairs() { files.AddFile(kGame + "quake2.exe", "game"); }

    void Move() { MoveStrays(files, kGame, kPlayers); }

    MemoryFileSystem files;
};

TEST_F(GameRepairs, AnAutoexecSaysWhatItIsFor) {
    files.AddFolder(kGame + "baseq2\\");
    const std::string path = kGame + "baseq2\\autoexec.cfg";
    EXPECT_TRUE(CreateAutoexec(files, path, "Quake2").Ok());
    EXPECT_EQ(files.Contents(path),
              "// Quake2 AutoExec Config by Zentar v0.99 BETA\r\n"
              "//\r\n"
              "// Enter all your custom Quake2 settings into the lines below.\r\n"
              "// Blank lines are okay if you want to space out your settings.\r\n"
              "// Any line starting with \"//\" is a comment and ignored by Quake2.\r\n"
              "// This config can't be bigger than 8 K or Quake2 will complain.\r\n"
              "// Make sure the last line is blank or Quake2 will complain.\r\n"
              "\r\n");
}

TEST_F(GameRepairs, AnAutoexecIsNeverOverwritten) {
    const std::string path = kGame + "baseq2\\autoexec.cfg";
    files.AddFile(path, "bind x \"y\"");
    EXPECT_EQ(CreateAutoexec(files, path, "Quake2").Error(), FileError::AlreadyExists);
    EXPECT_EQ(files.Contents(path), "bind x \"y\"");
}

TEST_F(GameRepairs, HalfAnAutoexecIsTakenAway) {
    files.AddFolder(kGame + "baseq2\\");
    files.SetFreeSpace("C:\\", 20);
    const std::string path = kGame + "baseq2\\autoexec.cfg";
    EXPECT_EQ(CreateAutoexec(files, path, "Quake2").Error(), FileError::NoSpace);
    EXPECT_FALSE(files.Exists(path));
}

TEST_F(GameRepairs, StraysAreMovedAndFoldersStay) {
    files.AddFile(kPlayers + "grunt.md2", "model");
    files.AddFile(kPlayers + "read me.txt", "text");
    files.AddFile(kPlayers + "male\\tris.md2", "male");
    files.AddFile(kPlayers + "male\\grunt.pcx", "skin");
    Move();
    EXPECT_THAT(files.Names(kPlayers), ElementsAre("male"));
    EXPECT_THAT(files.Names(kPlayers + "male\\"), ElementsAre("grunt.pcx", "tris.md2"));
    EXPECT_THAT(files.Names(kStrays), ElementsAre("Strays Info.txt", "grunt.md2", "read me.txt"));
    EXPECT_EQ(files.Contents(kStrays + "grunt.md2"), "model");
    EXPECT_EQ(files.Contents(kStrays + "Strays Info.txt"),
              "Zentar v0.99 BETA Strays Folder\r\n"
              "Web Site: " +
                  std::string(kWebSite) +
                  "\r\n"
                  "-------------------------------\r\n"
                  "The files found here were moved here from Quake 2's \"players\" folder.\r\n"
                  "This was done to prevent the game crashing or reporting an error when\r\n"
                  "changing your player at the \"Multiplayer\\Player Setup\" menu.  (There\r\n"
                  "should ONLY be folders inside your \"players\" folder, and not files).\r\n"
                  "======================================================================\r\n");
}

TEST_F(GameRepairs, TheNoteIsWrittenAnewAndWithoutStraysToo) {
    files.AddFile(kStrays + "Strays Info.txt", "older and longer than the new one could ever be");
    Move();
    EXPECT_TRUE(files.Contents(kStrays + "Strays Info.txt").starts_with("Zentar v0.99 BETA"));
    EXPECT_THAT(files.Names(kStrays), ElementsAre("Strays Info.txt"));
}

TEST_F(GameRepairs, AStrayNeverOverwritesAnother) {
    files.AddFile(kPlayers + "skin.pcx", "second");
    files.AddFile(kStrays + "SKIN.pcx", "first");
    Move();
    files.AddFile(kPlayers + "skin.pcx", "third");
    files.AddFile(kPlayers + "no extension", "a");
    files.AddFile(kStrays + "no extension", "b");
    Move();
    EXPECT_EQ(files.Contents(kStrays + "skin.pcx"), "first");
    EXPECT_EQ(files.Contents(kStrays + "skin (2).pcx"), "second");
    EXPECT_EQ(files.Contents(kStrays + "skin (3).pcx"), "third");
    EXPECT_EQ(files.Contents(kStrays + "no extension (2)"), "a");
    EXPECT_THAT(files.Names(kPlayers), IsEmpty());
}

TEST_F(GameRepairs, AStrayWithTheNameOfTheNoteStaysWhole) {
    files.AddFile(kPlayers + "Strays Info.txt", "mine");
    Move();
    EXPECT_EQ(files.Contents(kStrays + "Strays Info (2).txt"), "mine");
}

TEST_F(GameRepairs, TheNameOfTheNoteIsItsOwnAlsoWhereItCannotBeWritten) {
    files.AddFile(kPlayers + "strays info.TXT", "mine");
    files.AddFile(kPlayers + "Strays Info.txt.new", "mine, too");
    files.AddFolder(kStrays);
    files.SetFreeSpace("C:\\", 5);
    Move();
    EXPECT_EQ(files.Contents(kStrays + "strays info (2).TXT"), "mine");
    files.SetFreeSpace("C:\\", 5'000);
    Move();
    EXPECT_EQ(files.Contents(kStrays + "strays info (2).TXT"), "mine");
    EXPECT_EQ(files.Contents(kStrays + "Strays Info.txt.new"), "mine, too");
}

// A folder may lead to another drive.
class StraysAcrossDrives : public GameRepairs {
  protected:
    StraysAcrossDrives() { files.AddFile(kStray, "skin"); }

    void MoveThem() { MoveStrays(files, kGame, kLinked); }

    const std::string kLinked = "D:\\players\\";
    const std::string kStray = kLinked + "a.pcx";
};

TEST_F(StraysAcrossDrives, AreCopiedAndTheirOriginalsGo) {
    for (const bool readOnly : {false, true}) {
        files.AddFile(kStray, "skin");
        files.SetReadOnly(kStray, readOnly);
        MoveThem();
        EXPECT_FALSE(files.Exists(kStray));
    }
    EXPECT_EQ(files.Contents(kStrays + "a.pcx"), "skin");
    EXPECT_EQ(files.Contents(kStrays + "a (2).pcx"), "skin");
}

TEST_F(StraysAcrossDrives, StayWhereThereIsNoRoomForACopy) {
    files.SetFreeSpace("C:\\", 2);
    MoveThem();
    EXPECT_EQ(files.Contents(kStray), "skin");
    EXPECT_THAT(files.Names(kStrays), IsEmpty());
}

TEST_F(StraysAcrossDrives, AreNotThereTwiceWhereTheOriginalCannotGo) {
    files.SetWritingDenied(kLinked);
    for (int time = 0; time < 2; ++time) {
        MoveThem();
        EXPECT_EQ(files.Contents(kStray), "skin");
        EXPECT_THAT(files.Names(kStrays), ElementsAre("Strays Info.txt"));
    }
}

// An image viewer, say, lets others read a picture that it shows, but not delete it.
TEST_F(StraysAcrossDrives, StayReadOnlyWhereTheOriginalIsInUse) {
    files.SetReadOnly(kStray);
    FaultyFileSystem faulty(files);
    MoveStrays(faulty, kGame, kLinked);
    const std::vector<std::string>& calls = faulty.Calls();
    const auto deletion = std::find(calls.begin(), calls.end(),
                                    "DeleteOriginal " + kStray + " of " + kStrays + "a.pcx") -
                          calls.begin() + 1;
    files.AddFile(kStray, "skin");
    files.SetReadOnly(kStray);
    files.Remove(kStrays + "a.pcx");
    faulty.Restart();
    faulty.FailAt(static_cast<int>(deletion), FileError::InUse);
    MoveStrays(faulty, kGame, kLinked);
    EXPECT_EQ(files.Contents(kStray), "skin");
    EXPECT_TRUE(files.IsReadOnly(kStray));
    EXPECT_THAT(files.Names(kStrays), ElementsAre("Strays Info.txt"));
}

TEST_F(GameRepairs, WhatCannotBeMovedStays) {
    files.AddFile(kPlayers + "a.txt", "a");
    files.AddFile(kPlayers + "held.txt", "held");
    files.AddFile(kPlayers + "read only.txt", "kept");
    files.SetLocked(kPlayers + "held.txt");
    files.SetReadOnly(kPlayers + "read only.txt");
    Move();
    EXPECT_EQ(files.Contents(kStrays + "a.txt"), "a");
    EXPECT_EQ(files.Contents(kStrays + "read only.txt"), "kept");
    EXPECT_THAT(files.Names(kPlayers), ElementsAre("held.txt"));
    files.AddFile(kPlayers + "b.txt", "b");
    files.SetWritingDenied(kPlayers);
    Move();
    EXPECT_EQ(files.Contents(kPlayers + "b.txt"), "b");
}

TEST_F(GameRepairs, WithoutThePlayersThereIsNothingToMove) {
    Move();
    EXPECT_THAT(files.Names(kStrays), ElementsAre("Strays Info.txt"));
}

TEST_F(GameRepairs, AFileInThePlaceOfTheFolderForStraysKeepsThemWhereTheyAre) {
    files.AddFile(kGame + "Zentar Strays", "in the way");
    files.AddFile(kPlayers + "a.txt", "a");
    Move();
    EXPECT_EQ(files.Contents(kPlayers + "a.txt"), "a");
    EXPECT_EQ(files.Contents(kGame + "Zentar Strays"), "in the way");
}

TEST_F(GameRepairs, EveryModGetsAFolderForScreenshots) {
    for (const char* folder : {"baseq2", "CTF", "Docs", "ZENTAR strays", "save games", "Größe"}) {
        files.AddFolder(kGame + folder + "\\");
    }
    files.AddFile(kGame + "rocket\\scrnshot\\quake00.pcx", "shot");
    files.AddFile(kGame + "xatrix\\scrnshot", "a file in its place");
    CreateScreenshotFolders(files, kGame);
    for (const char* folder : {"baseq2", "CTF", "save games", "Größe"}) {
        EXPECT_THAT(files.Names(kGame + folder + "\\"), ElementsAre("scrnshot")) << folder;
    }
    EXPECT_THAT(files.Names(kGame + "Docs\\"), IsEmpty());
    EXPECT_THAT(files.Names(kGame + "ZENTAR strays\\"), IsEmpty());
    EXPECT_EQ(files.Contents(kGame + "rocket\\scrnshot\\quake00.pcx"), "shot");
    EXPECT_EQ(files.Contents(kGame + "xatrix\\scrnshot"), "a file in its place");
    EXPECT_FALSE(files.Exists(kGame + "quake2.exe\\scrnshot"));
    EXPECT_FALSE(files.Exists(kGame + "scrnshot"));
}

TEST_F(GameRepairs, WithoutTheGameNoFolderIsMade) {
    CreateScreenshotFolders(files, "D:\\Nowhere\\");
    EXPECT_THAT(files.Names("D:\\"), IsEmpty());
}

}  // namespace
}  // namespace zentar
