// Selecting a shot: the picture, its preview image and its properties.

#include "tests/unit/screenshots/shots_tab_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ShotViewingTest : public ShotsTabTest {
  protected:
    const Shot& Current() { return tab->CurrentShot(); }
    BoxPointer ViewPointer() { return View().ShownPointer(); }
};

// ---- Real mode ----

TEST_F(ShotViewingTest, AShotIsShownWholeWithItsProperties) {
    os.files.AddFile(PathOf("Shot0001.TGA"), PictureFile({800, 600}, "duel"),
                     MakeFileTime(2001, 9, 30, 13, 5, 9));
    Refresh();
    Select("Shot0001.TGA");
    EXPECT_EQ(Shown(), "duel");
    EXPECT_EQ(View().Image()->Dimensions(), (Size{800, 600}));
    EXPECT_TRUE(Enabled(IDC_imgShotView));
    EXPECT_EQ(ViewPointer(), BoxPointer::Custom);
    EXPECT_EQ(Current().Name, "Shot0001.TGA");
    EXPECT_EQ(Current().Path, PathOf("Shot0001.TGA"));
    EXPECT_EQ(Current().ShotExtension, ".tga");
    EXPECT_EQ(Current().ShotSizeText, "File size:\t21 bytes");
    EXPECT_EQ(Current().ShotDateText, "Taken:\t2001-09-30 13:05:09");
    EXPECT_EQ(Current().ShotDimsText, "Dims:\t800 x 600 pixels");
    EXPECT_EQ(PreviewCaption(), CaptionColour::Normal);
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

TEST_F(ShotViewingTest, ItsPreviewIsTheWholeShotIn320By240AndTheListTellsOfIt) {
    AddShot("a.tga", {1024, 768});
    AddShot("b.tga");
    Refresh();
    Select("a.tga");
    EXPECT_EQ(Contents("a.zentar"), PictureFile({320, 240}, "a"));
    EXPECT_THAT(Names(), ElementsAre("a.tga", "a.zentar", "b.tga"));
    EXPECT_THAT(Listed(), ElementsAre("a.tga *", "b.tga"));
    EXPECT_EQ(Selected(), "a.tga *");
    EXPECT_EQ(Shown(), "a");
    EXPECT_TRUE(Current().HasPreview);
    EXPECT_EQ(Current().Name, "a.tga");
}

TEST_F(ShotViewingTest, TheMarkerComesWithoutTheListBeingSeenEmpty) {
    AddShot("a.tga");
    Refresh();
    os.log.Clear();
    Select("a.tga");
    EXPECT_FALSE(os.log.Has("lstScreenshots.SetItems(0)"));
    EXPECT_EQ(os.log.Count("lstScreenshots.SetItems(1)"), 1U);
    EXPECT_EQ(os.images.Loaded().size(), 1U);
}

TEST_F(ShotViewingTest, AShotThatHasItsMarkerIsNotListedAnewForNothing) {
    AddShot("a.tga");
    AddPreviewOf("a.tga");
    Refresh();
    os.log.Clear();
    Select("a.tga *");
    tab->lstScreenshots_Click();
    EXPECT_FALSE(os.log.Has("lstScreenshots.SetItems(1)"));
    EXPECT_EQ(os.images.Loaded().size(), 1U);
    EXPECT_EQ(Selected(), "a.tga *");
    EXPECT_EQ(Contents("a.zentar"), PictureFile({320, 240}, "a"));
}

TEST_F(ShotViewingTest, AShotWhoseNameIsTheBeginningOfAnotherStaysSelected) {
    AddShot("a.tga");
    AddShot("a.tga $.jpg");
    Refresh();
    Select("a.tga");
    EXPECT_THAT(Listed(), ElementsAre("a.tga $.jpg", "a.tga *"));
    EXPECT_EQ(Selected(), "a.tga *");
    EXPECT_EQ(tab->CurrentShot().Name, "a.tga");
}

TEST_F(ShotViewingTest, EveryKindOfShotIsReadByWhoKnowsIt) {
    for (const char* name : {"a.tga", "b.PCX", "c.jpg", "d.JPG"}) {
        AddShot(name);
    }
    Refresh();
    for (const char* name : {"a.tga", "b.PCX", "c.jpg", "d.JPG"}) {
        Select(name);
        EXPECT_EQ(Shown(), std::string(name).substr(0, 1));
        EXPECT_TRUE(Exists(std::string(name).substr(0, 1) + ".zentar"));
    }
    EXPECT_THAT(os.images.Loaded(), ElementsAre(PathOf("a.tga"), PathOf("b.PCX")));
}

TEST_F(ShotViewingTest, OnlyAShotThatIsNoJpgCanBeConverted) {
    AddShot("a.tga");
    AddShot("b.jpg");
    AddShot("c.pcx");
    Refresh();
    for (const auto& [entry, convertible] : std::vector<std::pair<std::string, bool>>{
             {"a.tga", true}, {"b.jpg", false}, {"c.pcx", true}}) {
        Select(entry);
        EXPECT_EQ(MenuEnabled(IDM_mnuScreenshotMakeJPEGOnly), convertible) << entry;
        EXPECT_EQ(MenuEnabled(IDM_mnuScreenshotMakeJPEGAndKill), convertible) << entry;
        EXPECT_TRUE(MenuEnabled(IDM_mnuScreenshotSetWallpaper)) << entry;
        EXPECT_TRUE(MenuEnabled(IDM_mnuScreenshotShowFull)) << entry;
    }
}

TEST_F(ShotViewingTest, TheSameEntryTwiceInARowIsLoadedOnce) {
    AddShot("a.tga");
    AddShot("b.tga");
    Refresh();
    Select("a.tga");
    Select("a.tga *");
    tab->lstScreenshots_Click();
    EXPECT_EQ(os.images.Loaded().size(), 1U);
    Select("b.tga");
    Select("a.tga *");
    EXPECT_EQ(os.images.Loaded().size(), 3U);
}

TEST_F(ShotViewingTest, TheBusyImageIsShownWhileTheShotIsLoaded) {
    AddShot("old.tga");
    AddShot("a.tga");
    Refresh();
    Select("old.tga");
    std::vector<std::string> seen;
    os.windows.SetDuringPump([&] {
        seen.push_back(Shown());
        EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Hourglass);
        EXPECT_EQ(Current().ShotSizeText, "File size:\t(Unknown)");
        EXPECT_EQ(Current().ShotDateText, "Taken:\t(Unknown)");
        EXPECT_EQ(Current().ShotDimsText, "Dims:\t(Unknown)");
    });
    os.log.Clear();
    Select("a.tga");
    EXPECT_THAT(seen, ElementsAre("", "busy"));
    EXPECT_TRUE(os.log.Ordered(
        {"imgShotView.SetImage(none)", "Pointer Hourglass", "Pump",
         "ClearAttributes C:\\Windows\\zentar-tmp.gif", "imgShotView.SetImage(picture)", "Pump",
         "NViewLibLoad " + PathOf("a.tga"), "imgShotView.SetImage(picture)", "Pointer Default"}));
}

TEST_F(ShotViewingTest, TheBusyImageIsAGifInTheWindowsFolder) {
    AddShot("a.tga");
    Refresh();
    os.files.AddFile("C:\\Windows\\zentar-tmp.gif", "of another program");
    os.files.SetReadOnly("C:\\Windows\\zentar-tmp.gif");
    Select("a.tga");
    EXPECT_EQ(os.files.Contents("C:\\Windows\\zentar-tmp.gif").substr(0, 4), "GIF8");
    EXPECT_FALSE(os.files.IsReadOnly("C:\\Windows\\zentar-tmp.gif"));
}

TEST_F(ShotViewingTest, AProtectedWindowsFolderKeepsNobodyFromSeeingEither) {
    AddShot("a.tga");
    UsePreviewMode();
    os.files.SetWritingDenied("C:\\Windows\\");
    Select("a.tga");
    EXPECT_EQ(Shown(), "busy");
    EXPECT_FALSE(os.files.Exists("C:\\Windows\\zentar-tmp.gif"));
    UseRealMode();
    Select("a.tga");
    EXPECT_EQ(Shown(), "a");
}

TEST_F(ShotViewingTest, PropertiesOfAShotOfAnyLengthAreGrouped) {
    AddFile("empty.tga", "");
    AddFile("k.tga", std::string(1000, 'x'));
    AddFile("small.tga", std::string(999, 'x'));
    os.files.AddHugeFile(PathOf("huge.tga"), 5'000'000'000, 0, "x");
    Refresh();
    for (const auto& [entry, text] :
         std::vector<std::pair<std::string, std::string>>{{"empty.tga", "0"},
                                                          {"k.tga", "1,000"},
                                                          {"small.tga", "999"},
                                                          {"huge.tga", "5,000,000,000"}}) {
        Select(entry);
        EXPECT_EQ(Current().ShotSizeText, "File size:\t" + text + " bytes");
    }
}

// ---- Shots and previews that cannot be read or written ----

TEST_F(ShotViewingTest, AShotThatCannotBeDecodedLeavesNoPictureAndNoPreview) {
    AddShot("good.tga");
    AddFile("broken.tga", "no picture");
    AddFile("broken.jpg", "no picture");
    AddFile("denied.tga", PictureFile({1, 1}, "x"));
    os.files.SetReadingDenied(PathOf("denied.tga"));
    Refresh();
    for (const char* entry : {"broken.tga", "broken.jpg", "denied.tga"}) {
        Select(IndexOf("good.tga") < 0 ? "good.tga *" : "good.tga");
        Select(entry);
        EXPECT_EQ(Shown(), "") << entry;
        EXPECT_EQ(View().Image(), nullptr) << entry;
        EXPECT_EQ(tab->picShotActual().picture, nullptr) << entry;
        EXPECT_EQ(Current().ShotDimsText, "Dims:\t0 x 0 pixels");
        EXPECT_EQ(Selected(), entry);
    }
    EXPECT_THAT(Names(),
                ElementsAre("broken.jpg", "broken.tga", "denied.tga", "good.tga", "good.zentar"));
    EXPECT_TRUE(os.windows.Shown().empty());
    Press(Key::Enter);
    EXPECT_THAT(shownFull, IsEmpty());
}

TEST_F(ShotViewingTest, TheOldPreviewOfAShotThatBrokeStays) {
    AddFile("a.tga", "no picture any more");
    AddPreviewOf("a.tga", "what-it-was");
    Refresh();
    Select("a.tga *");
    EXPECT_EQ(Contents("a.zentar"), PictureFile({320, 240}, "what-it-was"));
}

TEST_F(ShotViewingTest, AShotThatVanishedIsTakenOutOfTheList) {
    AddShot("a.tga");
    AddShot("b.tga");
    Refresh();
    os.files.Remove(PathOf("a.tga"));
    Select("a.tga");
    EXPECT_THAT(Listed(), ElementsAre("b.tga"));
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Current().Name, "");
    EXPECT_EQ(Shown(), "");
    EXPECT_FALSE(Enabled(IDC_imgShotView));
    Select("b.tga");
    EXPECT_EQ(Shown(), "b");
}

TEST_F(ShotViewingTest, APreviewThatCannotBeWrittenIsLeftOutInSilence) {
    AddShot("a.tga");
    Refresh();
    os.files.SetWritingDenied(state.current.ScreenshotFolder);
    Select("a.tga");
    EXPECT_EQ(Shown(), "a");
    EXPECT_EQ(Selected(), "a.tga");
    EXPECT_THAT(Names(), ElementsAre("a.tga"));
    EXPECT_TRUE(os.windows.Shown().empty());
    // What it was waiting for did not come, and does not swallow the next selection.
    AddShot("b.tga");
    Refresh();
    Select("b.tga");
    EXPECT_EQ(Shown(), "b");
}

TEST_F(ShotViewingTest, APreviewThatAnotherProgramHoldsStaysAsItIs) {
    AddShot("a.tga");
    AddPreviewOf("a.tga");
    os.files.SetLocked(PathOf("a.zentar"));
    Refresh();
    Select("a.tga *");
    EXPECT_EQ(Shown(), "a");
    EXPECT_THAT(Names(), ElementsAre("a.tga", "a.zentar"));
}

TEST_F(ShotViewingTest, AFullDiskLeavesTheOldPreview) {
    AddShot("a.tga");
    AddPreviewOf("a.tga");
    Refresh();
    os.files.SetFreeSpace("C:\\", 3);
    Select("a.tga *");
    EXPECT_EQ(Contents("a.zentar"), PictureFile({320, 240}, "old"));
    EXPECT_THAT(Names(), ElementsAre("a.tga", "a.zentar"));
}

TEST_F(ShotViewingTest, AReadOnlyPreviewIsReplaced) {
    AddShot("a.tga");
    AddPreviewOf("a.tga");
    os.files.SetReadOnly(PathOf("a.zentar"));
    Refresh();
    Select("a.tga *");
    EXPECT_EQ(Contents("a.zentar"), PictureFile({320, 240}, "a"));
    EXPECT_FALSE(os.files.IsReadOnly(PathOf("a.zentar")));
}

TEST_F(ShotViewingTest, WithoutMemoryForAPreviewTheShotIsStillShown) {
    AddShot("a.tga");
    Refresh();
    os.pictures.SetMemoryShort();
    Select("a.tga");
    EXPECT_EQ(Shown(), "a");
    EXPECT_THAT(Names(), ElementsAre("a.tga"));
}

TEST_F(ShotViewingTest, AReadOnlyShotIsViewedAsAnyOther) {
    AddShot("a.tga");
    os.files.SetReadOnly(PathOf("a.tga"));
    Refresh();
    Select("a.tga");
    EXPECT_EQ(Shown(), "a");
    EXPECT_TRUE(os.files.IsReadOnly(PathOf("a.tga")));
}

// ---- The picture itself ----

TEST_F(ShotViewingTest, AClickOnThePictureShowsItInFullSize) {
    AddShot("a.jpg");
    Refresh();
    Select("a.jpg");
    form->UserClick(IDC_imgShotView);
    EXPECT_THAT(shownFull, ElementsAre("a"));
    Pick("a.jpg *", IDM_mnuScreenshotShowFull);
    EXPECT_THAT(shownFull, ElementsAre("a", "a"));
}

TEST_F(ShotViewingTest, WhileTheMenuEntryIsGreyedTheFullSizeIsOutOfReach) {
    AddShot("a.tga");
    Refresh();
    Select("a.tga");
    RemoveLibrary();
    RightClick("a.tga *");
    form->UserClick(IDC_imgShotView);
    Press(Key::Enter);
    EXPECT_EQ(Shown(), "a");
    EXPECT_THAT(shownFull, IsEmpty());
}

TEST_F(ShotViewingTest, AClickOnAPreviewDoesNothing) {
    AddShot("a.tga");
    AddPreviewOf("a.tga");
    Refresh();
    SelectWithShift("a.tga *");
    form->UserClick(IDC_imgShotView);
    UsePreviewMode();
    Select("a.tga *");
    form->UserClick(IDC_imgShotView);
    form->GetMenu(IDM_mnuScreenshotShowFull).SetEnabled(true);  // left so by a right click
    form->UserClick(IDC_imgShotView);
    EXPECT_THAT(shownFull, IsEmpty());
}

// ---- The image library ----

TEST_F(ShotViewingTest, WithoutTheLibraryNothingIsShownButWhy) {
    AddShot("a.tga");
    AddShot("b.jpg");
    AddPreviewOf("b.jpg");
    Refresh();
    Select("a.tga");
    RemoveLibrary();
    const Message missing = Failure(
        "Screenshots cannot currently be viewed.\r\n\r\n"
        "Zentar is missing a required file that is needed for\r\n"
        "screenshot viewing.  This file would have been\r\n"
        "present when you first installed Zentar, so you'll\r\n"
        "need to re-install Zentar over itself to get it back.");
    os.log.Clear();
    os.windows.Expect(missing, Answer::Ok);
    Select("b.jpg *");
    EXPECT_EQ(Shown(), "");
    EXPECT_FALSE(Enabled(IDC_imgShotView));
    EXPECT_EQ(Selected(), "b.jpg *");
    EXPECT_EQ(Current().Name, "b.jpg");
    EXPECT_EQ(Current().ShotDimsText, "Dims:\t(Unknown)");
    EXPECT_FALSE(os.log.Has("Pump"));
    UsePreviewMode();
    os.windows.Expect(missing, Answer::Ok);
    Select("b.jpg *");
    // The list works on.
    state.settings.Expert = 1;
    Pick("b.jpg *", IDM_mnuScreenshotDelete);
    EXPECT_THAT(Names(), ElementsAre("a.tga", "a.zentar"));
}

}  // namespace
}  // namespace zentar
