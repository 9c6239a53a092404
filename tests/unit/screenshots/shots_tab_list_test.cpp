// The list of screenshots: what a refresh shows, and what the keys do.

#include "tests/unit/screenshots/shots_tab_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ShotsTabList : public ShotsTabTest {
  protected:
    SystemColour Background() { return form->GetListBox(IDC_lstScreenshots).Background(); }
};

// ---- Refresh ----

TEST_F(ShotsTabList, TheShotsAreShownInAlphabeticalOrderAndCounted) {
    for (const char* name : {"shot0002.tga", "Alpha.jpg", "shot0001.tga", "beta.pcx"}) {
        AddShot(name);
    }
    AddPreviewOf("shot0001.tga");
    AddFile("notes.txt", "no shot");
    Refresh();
    EXPECT_THAT(Listed(), ElementsAre("Alpha.jpg", "beta.pcx", "shot0001.tga *", "shot0002.tga"));
    EXPECT_EQ(Text(IDC_labNumShots), "Total: 4  (tga=2,  jpg=1,  pcx=1).");
    EXPECT_EQ(Selected(), "");
}

TEST_F(ShotsTabList, AnEmptyFolderGreysTheList) {
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_EQ(Text(IDC_labNumShots), "Total: 0  (tga=0,  jpg=0,  pcx=0).");
    EXPECT_EQ(Background(), SystemColour::ButtonFace);
    EXPECT_FALSE(Enabled(IDC_lstScreenshots));
    EXPECT_FALSE(Enabled(IDC_labNumShots));
    EXPECT_FALSE(Enabled(IDC_imgShotView));
    EXPECT_EQ(Shown(), "");
}

TEST_F(ShotsTabList, ShotsMakeItWhiteAgain) {
    AddShot("a.tga");
    Refresh();
    EXPECT_EQ(Background(), SystemColour::Window);
    EXPECT_TRUE(Enabled(IDC_lstScreenshots));
    EXPECT_TRUE(Enabled(IDC_labNumShots));
}

TEST_F(ShotsTabList, AMissingFolderIsAsAnEmptyOneAndIsNotLookedInto) {
    AddShot("a.tga");
    Refresh();
    state.current.ScreenshotFolder = "C:\\Quake2\\gone\\scrnshot\\";
    os.log.Clear();
    Refresh();
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_EQ(Text(IDC_labNumShots), "Total: 0  (tga=0,  jpg=0,  pcx=0).");
    EXPECT_EQ(Background(), SystemColour::ButtonFace);
    EXPECT_FALSE(Enabled(IDC_lstScreenshots));
    EXPECT_FALSE(os.log.Has("Enumerate C:\\Quake2\\gone\\scrnshot\\"));
    EXPECT_FALSE(os.log.Has("Pointer Hourglass"));
    EXPECT_FALSE(os.log.Has("Pump"));
}

TEST_F(ShotsTabList, AFileInThePlaceOfTheFolderIsNone) {
    os.files.AddFile("C:\\Quake2\\odd", "a file");
    state.current.ScreenshotFolder = "C:\\Quake2\\odd\\";
    Refresh();
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(ShotsTabList, WithoutAnyFolderNothingIsListed) {
    state.current.ScreenshotFolder = "";
    Refresh();
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_FALSE(Enabled(IDC_lstScreenshots));
}

TEST_F(ShotsTabList, TheHourglassIsShownWhileMessagesAreHandledOnce) {
    AddShot("a.tga");
    os.log.Clear();
    Refresh();
    EXPECT_TRUE(os.log.Ordered({"lstScreenshots.SetItems(0)", "Pointer Hourglass", "Pump",
                                "Enumerate " + state.current.ScreenshotFolder, "Pointer Default"}));
    EXPECT_EQ(os.log.Count("Pump"), 1U);
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

TEST_F(ShotsTabList, ALargeListIsReadInOneGoWithoutAskingForEachPreview) {
    for (int i = 0; i < 300; ++i) {
        AddShot("shot" + std::to_string(i) + ".tga");
    }
    os.log.Clear();
    Refresh();
    EXPECT_EQ(os.log.Count("Enumerate " + state.current.ScreenshotFolder), 1U);
    EXPECT_EQ(Listed().size(), 300U);
}

TEST_F(ShotsTabList, ARefreshByTheUserTakesThePictureAwayEvenIfTheShotIsSelectedAgain) {
    AddShot("a.tga");
    Refresh();
    Select("a.tga");
    EXPECT_EQ(Shown(), "a");
    Press(Key::F5);
    EXPECT_EQ(Shown(), "");
    EXPECT_FALSE(Enabled(IDC_imgShotView));
    EXPECT_EQ(tab->picShotActual().picture, nullptr);
    EXPECT_EQ(Selected(), "");
    Select("a.tga *");
    EXPECT_EQ(Shown(), "a");
    EXPECT_THAT(os.images.Loaded(), ElementsAre(PathOf("a.tga"), PathOf("a.tga")));
}

TEST_F(ShotsTabList, ChangingTheViewModeRefreshesTheList) {
    AddShot("a.tga");
    UsePreviewMode();
    EXPECT_THAT(Listed(), ElementsAre("a.tga"));
    AddShot("b.tga");
    UseRealMode();
    EXPECT_THAT(Listed(), ElementsAre("a.tga", "b.tga"));
}

TEST_F(ShotsTabList, ARefreshThatIsOvertakenLeavesTheListToTheOther) {
    AddShot("a.tga");
    DuringPumpNumber(1, [this] {
        UseMod("rocket");
        AddShot("late.tga");
        Refresh();
    });
    Refresh();
    EXPECT_THAT(Listed(), ElementsAre("late.tga"));
    EXPECT_EQ(tab->ListedFolder(), state.current.ScreenshotFolder);
}

// ---- Keys ----

TEST_F(ShotsTabList, F5AndTheMenuEntryRefresh) {
    AddShot("a.tga");
    Refresh();
    AddShot("b.tga");
    Press(Key::F5);
    EXPECT_THAT(Listed(), ElementsAre("a.tga", "b.tga"));
    AddShot("c.tga");
    Pick("a.tga", IDM_mnuScreenshotRefresh);
    EXPECT_EQ(Listed().size(), 3U);
}

TEST_F(ShotsTabList, F2Renames) {
    AddShot("a.tga");
    Refresh();
    Select("a.tga");
    os.windows.ExpectText(
        {"Rename Screenshot", "Enter new name for \"a\".\r\n\r\n(Do not type the extension).", "a"},
        std::nullopt);
    Press(Key::F2);
}

TEST_F(ShotsTabList, DeleteAndBackspaceDeleteTheShot) {
    state.settings.Expert = 1;
    for (const Key key : {Key::Delete, Key::Backspace}) {
        AddShot("a.tga");
        AddShot("b.tga");
        Refresh();
        Select("a.tga");
        Press(key);
        EXPECT_THAT(Names(), ElementsAre("b.tga"));
    }
}

TEST_F(ShotsTabList, WithShiftTheyDeleteThePreviewAloneNeverTheShot) {
    state.settings.Expert = 1;
    for (const Key key : {Key::Delete, Key::Backspace}) {
        AddShot("a.tga");
        AddPreviewOf("a.tga");
        Refresh();
        Select("a.tga *");
        PressWithShift(key);
        EXPECT_THAT(Names(), ElementsAre("a.tga"));
        EXPECT_THAT(Listed(), ElementsAre("a.tga"));
        state.settings.Expert = 0;
        PressWithShift(key);  // there is none any more, and nothing to ask for
        state.settings.Expert = 1;
        EXPECT_THAT(Names(), ElementsAre("a.tga"));
    }
}

TEST_F(ShotsTabList, KeysWithoutASelectionDoNothing) {
    AddShot("a.tga");
    AddPreviewOf("a.tga");
    Refresh();
    for (const Key key :
         {Key::F2, Key::Delete, Key::Backspace, Key::Enter, Key::Space, Key::Escape, Key::F1}) {
        Press(key);
        PressWithShift(key);
    }
    EXPECT_THAT(Names(), ElementsAre("a.tga", "a.zentar"));
    EXPECT_THAT(shownFull, IsEmpty());
}

TEST_F(ShotsTabList, OtherKeysStayWithTheList) {
    for (const Key key : {Key::F1, Key::Space, Key::Escape}) {
        EXPECT_FALSE(tab->lstScreenshots_KeyDown(key));
    }
    for (const Key key : {Key::F2, Key::F5, Key::Delete, Key::Backspace, Key::Enter}) {
        EXPECT_TRUE(tab->lstScreenshots_KeyDown(key));
    }
}

TEST_F(ShotsTabList, EnterShowsTheShotInItsFullSize) {
    AddShot("a.tga");
    Refresh();
    Select("a.tga");
    Press(Key::Enter);
    EXPECT_THAT(shownFull, ElementsAre("a"));
}

TEST_F(ShotsTabList, EnterDoesNothingWhileTheMenuEntryIsGreyed) {
    AddShot("a.tga");
    Refresh();
    SelectWithShift("a.tga");
    Press(Key::Enter);
    EXPECT_THAT(shownFull, IsEmpty());
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(ShotsTabList, InPreviewModeEnterPointsAtTheChoiceOfTheViewMode) {
    AddShot("a.tga");
    UsePreviewMode();
    Select("a.tga");
    os.log.Clear();
    Press(Key::Enter);
    EXPECT_THAT(shownFull, IsEmpty());
    std::vector<std::string> steps = {"lstScreenshots.SetFocus()", "Sound Exclamation"};
    for (int round = 0; round < 3; ++round) {
        for (const char* colour : {"Vanished", "Red"}) {
            steps.push_back(std::string("optModePreview.SetCaptionColour(") + colour + ")");
            steps.emplace_back("Pump");
            steps.emplace_back("Sleep 100");
        }
    }
    EXPECT_EQ(os.log.All(), steps);
    EXPECT_EQ(PreviewCaption(), CaptionColour::Red);
}

TEST_F(ShotsTabList, AUserWhoChoosesRealMeanwhileEndsTheFlashing) {
    AddShot("a.tga");
    UsePreviewMode();
    Select("a.tga");
    DuringPumpNumber(1, [this] { UseRealMode(); });
    Press(Key::Enter);
    EXPECT_EQ(PreviewCaption(), CaptionColour::Normal);
    EXPECT_EQ(os.log.Count("Sleep 100"), 0U);
}

TEST_F(ShotsTabList, EnterPressedDuringTheFlashingDoesNotFlashTwice) {
    AddShot("a.tga");
    UsePreviewMode();
    Select("a.tga");
    DuringPumpNumber(2, [this] { Press(Key::Enter); });
    Press(Key::Enter);
    EXPECT_EQ(os.log.Count("Sleep 100"), 6U);
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Exclamation));
}

}  // namespace
}  // namespace zentar
