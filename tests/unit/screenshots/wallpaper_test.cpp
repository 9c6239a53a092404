// The desktop wallpaper.

#include "tests/unit/screenshots/shots_tab_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kPath = "C:\\Windows\\[Zentar] Shot0001.bmp";

class WallpaperTest : public ShotsTabTest {
  protected:
    WallpaperTest() {
        AddShot("Shot0001.pcx", {800, 600}, "duel");
        Refresh();
        Select("Shot0001.pcx");
        os.log.Clear();
    }

    void Set() { Pick("Shot0001.pcx *", IDM_mnuScreenshotSetWallpaper); }
    void DeleteAll() { Pick("Shot0001.pcx *", IDM_mnuScreenshotDeleteAllWallpaper); }
    std::string Wallpaper() { return os.files.Contents(kPath); }

    const Message overwrite_ = Confirm("Really overwrite the existing wallpaper with this name?");
    const Message deleteAll_ = Confirm("Really delete all Zentar-created wallpaper?");
    const Message notSet_ = Failure(
        "This screenshot couldn't be set as the system wallpaper.\r\n\r\n"
        "Your Windows folder may be protected, or its drive may be full.");
    const std::string bytes_ = PictureFile({800, 600}, "duel");
};

TEST_F(WallpaperTest, TheWholeShotIsSavedInTheWindowsFolderAndSet) {
    Set();
    EXPECT_EQ(Wallpaper(), bytes_);
    EXPECT_EQ(os.shell.wallpaper, kPath);
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
    EXPECT_TRUE(os.log.Ordered({"Form2.ShowPopup(mnuScreenshot)", "Pointer Hourglass", "Pump",
                                "Replace " + kPath + ".zentar-new -> " + kPath,
                                "SetWallpaper " + kPath, "Pointer Default"}));
    EXPECT_EQ(Shown(), "duel");
    EXPECT_TRUE(MenuEnabled(IDM_mnuScreenshotDeleteAllWallpaper));
}

TEST_F(WallpaperTest, SettingItTwiceAsksBeforeOverwriting) {
    Set();
    os.files.AddFile(kPath, "mine");
    os.windows.Expect(overwrite_, Answer::No);
    os.log.Clear();
    Set();
    EXPECT_EQ(Wallpaper(), "mine");
    EXPECT_FALSE(os.log.Has("SetWallpaper " + kPath));
    os.windows.Expect(overwrite_, Answer::Yes);
    Set();
    EXPECT_EQ(Wallpaper(), bytes_);
}

TEST_F(WallpaperTest, InExpertModeItIsOverwrittenAtOnceAlsoWhenReadOnly) {
    state.settings.Expert = 1;
    os.files.AddFile(kPath, "old");
    os.files.SetReadOnly(kPath);
    Set();
    EXPECT_EQ(Wallpaper(), bytes_);
}

TEST_F(WallpaperTest, AJpgIsMadeTheWallpaperFromItsPicture) {
    AddShot("b.jpg", {8, 8}, "photo");
    Refresh();
    Select("b.jpg");
    PickOnPicture(IDM_mnuScreenshotSetWallpaper);
    EXPECT_EQ(os.files.Contents("C:\\Windows\\[Zentar] b.bmp"), PictureFile({8, 8}, "photo"));
}

TEST_F(WallpaperTest, AProtectedWindowsFolderTakesItFromAnAdministrator) {
    os.files.SetWritingDenied("C:\\Windows\\");
    std::string copied;
    os.shell.copyElevated = [&](const std::string& from, const std::string& to) {
        copied = os.files.Contents(from);
        EXPECT_EQ(from, "C:\\Temp\\zentar-wallpaper.bmp");
        EXPECT_EQ(to, kPath);
        return Status();
    };
    Set();
    EXPECT_EQ(copied, bytes_);
    EXPECT_EQ(os.shell.wallpaper, kPath);
    EXPECT_THAT(Names("C:\\Temp\\"), IsEmpty());
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
}

TEST_F(WallpaperTest, AUserWhoDeclinesThatIsToldThatItIsNotSet) {
    os.files.SetWritingDenied("C:\\Windows\\");
    os.windows.Expect(notSet_, Answer::Ok);
    Set();
    EXPECT_EQ(os.shell.wallpaper, "");
    EXPECT_THAT(Names("C:\\Temp\\"), IsEmpty());
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(WallpaperTest, AFullDiskIsToldOfWithoutAskingForAnAdministrator) {
    os.shell.temporaryFolder = "D:\\";
    os.files.SetFreeSpace("C:\\", 3);
    os.windows.Expect(notSet_, Answer::Ok);
    Set();
    EXPECT_FALSE(os.files.Exists(kPath));
    EXPECT_FALSE(os.log.Has("CopyElevated D:\\zentar-wallpaper.bmp " + kPath));
}

TEST_F(WallpaperTest, ASystemThatRefusesTheWallpaperIsToldOf) {
    os.shell.wallpaperAnswer = FileError::Other;
    os.windows.Expect(notSet_, Answer::Ok);
    Set();
    EXPECT_EQ(Wallpaper(), bytes_);
    EXPECT_TRUE(MenuEnabled(IDM_mnuScreenshotDeleteAllWallpaper));
}

TEST_F(WallpaperTest, AShotWithoutAPictureIsNotSet) {
    AddFile("0.tga", "no picture");
    Refresh();
    os.windows.Expect(notSet_, Answer::Ok);
    Pick("0.tga", IDM_mnuScreenshotSetWallpaper);
    EXPECT_FALSE(os.files.Exists("C:\\Windows\\[Zentar] 0.bmp"));
}

TEST_F(WallpaperTest, AnotherShotClickedMeanwhileDoesNotBecomeTheWallpaper) {
    AddShot("other.tga");
    Refresh();
    Select("Shot0001.pcx *");
    form->SetPopupUser([this](int) {
        DuringPumpNumber(1, [this] { Select("other.tga"); });
        form->UserPickMenu(IDM_mnuScreenshotSetWallpaper);
    });
    RightClick("Shot0001.pcx *");
    EXPECT_EQ(Wallpaper(), bytes_);
    EXPECT_EQ(os.shell.wallpaper, kPath);
    EXPECT_EQ(Shown(), "other");
}

// ---- Delete Wallpaper Images ----

class DeleteWallpapers : public WallpaperTest {
  protected:
    DeleteWallpapers() {
        AddWallpaper("[Zentar] a.bmp");
        AddWallpaper("[ZENTAR] b.BMP");
        AddWallpaper("[Zentar] c.jpg");
        AddWallpaper("Zapotec.bmp");
        os.files.AddFolder("C:\\Windows\\[Zentar] folder.bmp\\");
        os.shell.wallpaper = "C:\\Windows\\[Zentar] a.bmp";
    }
    std::vector<std::string> Bitmaps() {
        std::vector<std::string> found;
        for (const std::string& name : Names("C:\\Windows\\")) {
            if (name.find("ini") == std::string::npos && name != "nviewlib.dll" &&
                name != "zentar-tmp.gif") {
                found.push_back(name);
            }
        }
        return found;
    }
};

TEST_F(DeleteWallpapers, AllThatTheProgramMadeGoAndTheDesktopIsNotTouched) {
    os.files.SetReadOnly("C:\\Windows\\[Zentar] a.bmp");
    os.windows.Expect(deleteAll_, Answer::Yes);
    os.log.Clear();
    DeleteAll();
    EXPECT_THAT(Bitmaps(), ElementsAre("Zapotec.bmp", "[Zentar] c.jpg", "[Zentar] folder.bmp"));
    EXPECT_EQ(os.shell.wallpaper, "C:\\Windows\\[Zentar] a.bmp");
    EXPECT_FALSE(MenuEnabled(IDM_mnuScreenshotDeleteAllWallpaper));
    EXPECT_FALSE(os.log.Has("DeleteElevated 0"));
}

TEST_F(DeleteWallpapers, NoKeepsThem) {
    os.windows.Expect(deleteAll_, Answer::No);
    DeleteAll();
    EXPECT_EQ(Bitmaps().size(), 5U);
}

TEST_F(DeleteWallpapers, InExpertModeNobodyIsAsked) {
    state.settings.Expert = 1;
    DeleteAll();
    EXPECT_EQ(Bitmaps().size(), 3U);
}

TEST_F(DeleteWallpapers, WhatTheUserMayNotDeleteAnAdministratorDeletes) {
    state.settings.Expert = 1;
    os.files.SetWritingDenied("C:\\Windows\\");
    std::vector<std::string> deleted;
    os.shell.deleteElevated = [&](const std::vector<std::string>& paths) {
        deleted = paths;
        for (const std::string& path : paths) {
            os.files.Remove(path);
        }
        return Status();
    };
    DeleteAll();
    EXPECT_THAT(deleted, ::testing::UnorderedElementsAre("C:\\Windows\\[Zentar] a.bmp",
                                                         "C:\\Windows\\[ZENTAR] b.BMP"));
    EXPECT_FALSE(MenuEnabled(IDM_mnuScreenshotDeleteAllWallpaper));
}

TEST_F(DeleteWallpapers, AUserWhoDeclinesThatKeepsThem) {
    state.settings.Expert = 1;
    os.files.SetWritingDenied("C:\\Windows\\");
    DeleteAll();
    EXPECT_EQ(Bitmaps().size(), 5U);
    EXPECT_TRUE(MenuEnabled(IDM_mnuScreenshotDeleteAllWallpaper));
}

TEST_F(DeleteWallpapers, OneThatAProgramHoldsStaysAndTheOthersGo) {
    state.settings.Expert = 1;
    os.files.SetLocked("C:\\Windows\\[Zentar] a.bmp");
    DeleteAll();
    EXPECT_EQ(Bitmaps().size(), 4U);
    EXPECT_TRUE(MenuEnabled(IDM_mnuScreenshotDeleteAllWallpaper));
    EXPECT_FALSE(os.log.Has("DeleteElevated 1"));
}

}  // namespace
}  // namespace zentar
