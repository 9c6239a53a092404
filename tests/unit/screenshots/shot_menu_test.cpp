// The popup menu of the screenshot list, in every state.

#include "tests/unit/screenshots/shots_tab_fixture.h"

namespace zentar {
namespace {

using ::testing::UnorderedElementsAreArray;

class ShotMenuTest : public ShotsTabTest {
  protected:
    // The entries of the menu that opened last which could not be picked.
    void ExpectGreyed(const std::vector<int>& greyed) {
        ASSERT_FALSE(form->Popups().empty());
        const PopupShown& popup = form->Popups().back();
        EXPECT_EQ(popup.menuId, IDM_mnuScreenshot);
        EXPECT_EQ(popup.enabled.size(), 17U);
        std::vector<int> found;
        for (const auto& [id, enabled] : popup.enabled) {
            if (!enabled) {
                found.push_back(id);
            }
        }
        EXPECT_THAT(found, UnorderedElementsAreArray(greyed));
    }

    static std::vector<int> With(std::vector<int> some, const std::vector<int>& others) {
        some.insert(some.end(), others.begin(), others.end());
        return some;
    }

    const std::vector<int> pictureCommands_ = {IDM_mnuScreenshotMakeJPEGOnly,
                                               IDM_mnuScreenshotMakeJPEGAndKill,
                                               IDM_mnuScreenshotSetWallpaper};
    const std::vector<int> fileCommands_ = {IDM_mnuScreenshotDelete, IDM_mnuScreenshotRename,
                                            IDM_mnuScreenshotCopy, IDM_mnuScreenshotMove};
    const int full_ = IDM_mnuScreenshotShowFull;
    const int preview_ = IDM_mnuScreenshotDeletePreview;
    const int wallpapers_ = IDM_mnuScreenshotDeleteAllWallpaper;
};

TEST_F(ShotMenuTest, ARightClickSelectsWhatIsUnderThePointerBeforeTheMenuOpens) {
    AddShot("a.tga");
    AddShot("b.tga");
    Refresh();
    Select("a.tga");
    os.log.Clear();
    RightClick("b.tga");
    EXPECT_EQ(Selected(), "b.tga *");
    EXPECT_EQ(Shown(), "b");
    EXPECT_TRUE(
        os.log.Ordered({"lstScreenshots.SetFocus()", "Pump", "lstScreenshots.SelectAtPointer()",
                        "lstScreenshots.click", "Pump", "Form2.ShowPopup(mnuScreenshot)"}));
    EXPECT_EQ(form->FocusedId(), IDC_lstScreenshots);
}

TEST_F(ShotMenuTest, WithNothingSelectedWhatWorksOnAShotIsGreyed) {
    AddShot("a.tga");
    Refresh();
    RightClick("(beside)");
    ExpectGreyed(With(With(pictureCommands_, fileCommands_), {full_, preview_, wallpapers_}));
}

TEST_F(ShotMenuTest, BesideAllEntriesTheSelectedShotStays) {
    AddShot("a.tga");
    Refresh();
    Select("a.tga");
    RightClick("(beside)");
    EXPECT_EQ(Selected(), "a.tga *");
    ExpectGreyed({wallpapers_});
}

TEST_F(ShotMenuTest, ATgaOrPcxInRealModeOffersEverything) {
    AddShot("a.TGA");
    AddShot("b.pcx");
    Refresh();
    RightClick("a.TGA");
    ExpectGreyed({wallpapers_});  // its preview was just made
    RightClick("b.pcx");
    ExpectGreyed({wallpapers_});
}

TEST_F(ShotMenuTest, AJpgIsNeitherConvertedNorMadeTheWallpaperFromTheList) {
    AddShot("a.JPG");
    Refresh();
    RightClick("a.JPG");
    ExpectGreyed(With(pictureCommands_, {wallpapers_}));
}

TEST_F(ShotMenuTest, OnThePictureTheMenuIsAsItStands) {
    AddShot("a.jpg");
    AddShot("b.tga");
    Refresh();
    Select("a.jpg");
    os.log.Clear();
    form->UserRightClick(IDC_imgShotView);
    // As viewing left it: a JPG can be the wallpaper.
    ExpectGreyed({IDM_mnuScreenshotMakeJPEGOnly, IDM_mnuScreenshotMakeJPEGAndKill, wallpapers_});
    EXPECT_FALSE(os.log.Has("Enumerate C:\\Windows\\"));
    Select("b.tga");
    form->UserRightClick(IDC_imgShotView);
    ExpectGreyed({wallpapers_});
}

TEST_F(ShotMenuTest, InPreviewModeThePictureItselfIsOutOfReach) {
    AddShot("a.tga");
    AddPreviewOf("a.tga");
    AddShot("b.tga");
    UsePreviewMode();
    RightClick("a.tga *");
    ExpectGreyed(With(pictureCommands_, {full_, wallpapers_}));
    RightClick("b.tga");
    ExpectGreyed(With(pictureCommands_, {full_, preview_, wallpapers_}));
}

TEST_F(ShotMenuTest, ShiftAtTheSelectionIsAsPreviewMode) {
    AddShot("a.tga");
    Refresh();
    SelectWithShift("a.tga");
    RightClick("a.tga");  // selected already: the key is not looked at again
    ExpectGreyed(With(pictureCommands_, {full_, preview_, wallpapers_}));
}

TEST_F(ShotMenuTest, AShotThatCannotBeDecodedHasDimensionsAndStaysOnOffer) {
    AddFile("a.tga", "no picture");
    Refresh();
    RightClick("a.tga");
    ExpectGreyed({preview_, wallpapers_});
}

TEST_F(ShotMenuTest, WithoutTheLibraryWhatNeedsItIsGreyed) {
    AddShot("a.tga");
    AddPreviewOf("a.tga");
    Refresh();
    Select("a.tga *");
    RemoveLibrary();
    RightClick("a.tga *");
    ExpectGreyed(With(pictureCommands_, {full_, wallpapers_}));
}

TEST_F(ShotMenuTest, ALibraryThatCannotBeUsedIsAsNone) {
    AddShot("a.tga");
    Refresh();
    Select("a.tga");
    os.images.SetBroken();
    RightClick("a.tga *");
    ExpectGreyed(With(pictureCommands_, {full_, wallpapers_}));
}

TEST_F(ShotMenuTest, WallpapersCanBeDeletedWhileThereAreAny) {
    AddShot("a.tga");
    Refresh();
    AddWallpaper("[zentar] OLD.BMP");
    RightClick("a.tga");
    ExpectGreyed({});
    os.files.Remove("C:\\Windows\\[zentar] OLD.BMP");
    AddWallpaper("Zapotec.bmp");
    os.files.AddFolder("C:\\Windows\\[Zentar] folder.bmp\\");
    RightClick("a.tga *");
    ExpectGreyed({wallpapers_});
}

TEST_F(ShotMenuTest, ViewingInEitherModeDecidesAboutTheWallpapersToo) {
    AddShot("a.tga");
    AddShot("b.tga");
    Refresh();
    AddWallpaper("[Zentar] a.bmp");
    Select("a.tga");
    EXPECT_TRUE(MenuEnabled(wallpapers_));
    os.files.Remove("C:\\Windows\\[Zentar] a.bmp");
    SelectWithShift("b.tga");
    EXPECT_FALSE(MenuEnabled(wallpapers_));
}

TEST_F(ShotMenuTest, BeforeAnyRightClickOnlyWhatWorksOnThePictureIsGreyed) {
    for (const int entry : pictureCommands_) {
        EXPECT_FALSE(MenuEnabled(entry));
    }
    EXPECT_FALSE(MenuEnabled(full_));
}

TEST_F(ShotMenuTest, AClickWhileMessagesAreHandledIsWhatTheMenuIsAbout) {
    AddShot("a.tga");
    AddShot("b.jpg");
    Refresh();
    // The last of the four times: after the selection of "a.tga" is complete.
    DuringPumpNumber(4, [this] { Select("b.jpg"); });
    RightClick("a.tga");
    EXPECT_EQ(Selected(), "b.jpg *");
    ExpectGreyed(With(pictureCommands_, {wallpapers_}));
}

TEST_F(ShotMenuTest, TheListGoingMeanwhileLeavesNothingSelected) {
    AddShot("a.tga");
    Refresh();
    DuringPumpNumber(4, [this] { UseMod("rocket"); });
    RightClick("a.tga");
    ExpectGreyed(With(With(pictureCommands_, fileCommands_), {full_, preview_, wallpapers_}));
}

TEST_F(ShotMenuTest, AListMadeNewWhileTheMenuIsOpenLeavesNothingToWorkOn) {
    AddShot("a.tga");
    AddPreviewOf("a.tga");
    Refresh();
    for (const int entry : With(With(pictureCommands_, fileCommands_),
                                {full_, preview_, IDM_mnuScreenshotProperties})) {
        form->SetPopupUser([this, entry](int) {
            Refresh();
            form->UserPickMenu(entry);
        });
        RightClick("a.tga *");
    }
    EXPECT_TRUE(os.windows.Shown().empty());
    EXPECT_THAT(Names(), ::testing::ElementsAre("a.tga", "a.zentar"));
    EXPECT_TRUE(shownFull.empty());
    // Nor is anything of it kept for the next command.
    state.settings.Expert = 1;
    os.windows.Expect({"Done",
                       "Original image size:\t18 bytes.\r\nJPG version size:\t25 bytes.\r\n"
                       "Total bytes saved:\t-7.",
                       MessageIcon::Information},
                      Answer::Ok);
    Pick("a.tga *", IDM_mnuScreenshotMakeJPEGOnly);
    EXPECT_TRUE(Exists("a.tga"));
}

// ---- "Show Shot Properties" ----

TEST_F(ShotMenuTest, ThePropertiesAreShownUnderTheShotsName) {
    os.files.AddFile(PathOf("Shot0001.tga"),
                     PictureFile({640, 480}, "x") + std::string(1'234'567 - 18, ' '),
                     MakeFileTime(2001, 9, 30, 13, 5, 9));
    Refresh();
    os.windows.Expect({"Shot0001.tga",
                       "File size:\t1,234,567 bytes\r\nTaken:\t2001-09-30 13:05:09\r\n"
                       "Dims:\t640 x 480 pixels",
                       MessageIcon::Information});
    Pick("Shot0001.tga", IDM_mnuScreenshotProperties);
}

TEST_F(ShotMenuTest, WithoutASelectionThereAreNoProperties) {
    AddShot("a.tga");
    Refresh();
    Pick("(beside)", IDM_mnuScreenshotProperties);
    EXPECT_TRUE(os.windows.Shown().empty());
}

}  // namespace
}  // namespace zentar
