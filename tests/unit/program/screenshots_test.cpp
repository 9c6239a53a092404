// Screenshots in the whole program: games and mods, the settings, and the full-size viewer.

#include "tests/unit/program/program_test.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ScreenshotsTest : public ProgramTest {
  protected:
    ScreenshotsTest() {
        InstallGames();
        os.files.AddFile("C:\\Windows\\nviewlib.dll", "library");
        Add(kQuake1Folder + "id1\\quake00.pcx");
        Add(kQuake2Folder + "baseq2\\scrnshot\\base.tga");
        Add(kQuake2Folder + "baseq2\\scrnshot\\second.tga");
        Add(kQuake2Folder + "rocket\\scrnshot\\rocket.jpg");
        Add(kQuake3Folder + "baseq3\\screenshots\\shot0001.tga");
        WriteSettings({"Game=Quake2"});
    }

    void Add(const std::string& path) {
        os.files.AddFile(path, PictureFile({640, 480}, "picture-of-a-duel"));
    }
    std::vector<std::string> Shots() { return Window().Items(IDC_lstScreenshots); }
    std::string Shown() { return ShownBy(Window().GetImageBox(IDC_imgShotView).Image()); }
    CaptionColour PreviewCaption() {
        return Window().GetOptionButton(IDC_optModePreview).ShownCaptionColour();
    }

    // How often the full-size viewer was opened, with the picture in it.
    void CountFullViews() {
        os.forms.SetUser(IDW_Form3, [this](MemoryForm& form) {
            EXPECT_EQ(ShownBy(form.GetPictureBox(IDC_picFull).Image()), "picture-of-a-duel");
            EXPECT_FALSE(Window().CanReach(IDC_lstScreenshots));
            ++fullViews_;
            form.UserKey(Key::Escape);
        });
    }

    const std::string base_ = "Enumerate " + kQuake2Folder + "baseq2\\";
    const std::string rocket_ = "Enumerate " + kQuake2Folder + "rocket\\";
    int fullViews_ = 0;
};

// ---- Games and mods ----

TEST_F(ScreenshotsTest, EachGameAndModShowsItsOwn) {
    Start();
    EXPECT_THAT(Shots(), ElementsAre("base.tga", "second.tga"));
    EXPECT_EQ(Text(IDC_labNumShots), "Total: 2  (tga=2,  jpg=0,  pcx=0).");
    Window().UserSelect(IDC_lstMods, "rocket");
    EXPECT_THAT(Shots(), ElementsAre("rocket.jpg"));
    Window().UserClick(IDC_optGameQuake1);
    EXPECT_THAT(Shots(), ElementsAre("quake00.pcx"));
    Window().UserClick(IDC_optGameQuake3);
    EXPECT_THAT(Shots(), ElementsAre("shot0001.tga"));
    Window().UserSelect(IDC_lstMods, "osp");
    EXPECT_THAT(Shots(), IsEmpty());
    EXPECT_FALSE(Window().GetListBox(IDC_lstScreenshots).Enabled());
}

TEST_F(ScreenshotsTest, AModIsShownOnceTheCaptionFirstThenTheShotsThenTheDemos) {
    Start();
    os.files.AddFolder(kQuake2Folder + "rocket\\demos\\");
    os.log.Clear();
    Window().UserSelect(IDC_lstMods, "rocket");
    EXPECT_TRUE(os.log.Ordered(
        {"optModePreview.SetCaptionColour(Normal)", rocket_ + "scrnshot\\", rocket_ + "demos\\"}));
    EXPECT_EQ(os.log.Count(rocket_ + "scrnshot\\"), 1U);
    EXPECT_EQ(os.log.Count(rocket_ + "demos\\"), 1U);
}

TEST_F(ScreenshotsTest, AGameIsShownOnceToo) {
    Start();
    Window().UserClick(IDC_optGameQuake3);
    os.log.Clear();
    Window().UserClick(IDC_optGameQuake2);
    EXPECT_TRUE(os.log.Ordered(
        {"optModePreview.SetCaptionColour(Normal)", base_ + "scrnshot\\", base_ + "demos\\"}));
    EXPECT_EQ(os.log.Count(base_ + "scrnshot\\"), 1U);
    EXPECT_EQ(os.log.Count(base_ + "demos\\"), 1U);
}

TEST_F(ScreenshotsTest, WithoutAModToSelectTheBaseShotsAreListedBeforeTheDemos) {
    WriteSettings({"Game=Quake2", "CurMod2=deleted"});
    os.log.Clear();
    Start();
    EXPECT_THAT(Shots(), ElementsAre("base.tga", "second.tga"));
    EXPECT_TRUE(os.log.Ordered({base_ + "scrnshot\\", base_ + "demos\\"}));
    EXPECT_EQ(os.log.Count(base_ + "scrnshot\\"), 1U);
}

TEST_F(ScreenshotsTest, WithoutAnyGameThereAreNone) {
    WriteSettings({"Game=Quake4"});
    Start();
    EXPECT_THAT(Shots(), IsEmpty());
    EXPECT_EQ(Text(IDC_labNumShots), "Total: 0  (tga=0,  jpg=0,  pcx=0).");
}

TEST_F(ScreenshotsTest, AModPickedWhileAnotherIsBeingShownWins) {
    Start();
    bool picked = false;
    os.windows.SetDuringPump([&] {
        if (!picked) {
            picked = true;
            Window().UserSelect(IDC_lstMods, "baseq2");
        }
    });
    Window().UserSelect(IDC_lstMods, "rocket");
    EXPECT_TRUE(picked);
    EXPECT_THAT(Shots(), ElementsAre("base.tga", "second.tga"));
    EXPECT_THAT(Demos(), ElementsAre("Duel", "edge"));
    EXPECT_EQ(State().current.SelectedMod, "baseq2");
}

// ---- The view mode ----

TEST_F(ScreenshotsTest, PreviewModeIsRememberedAndItsCaptionIsRedFromTheStart) {
    WriteSettings({"Game=Quake2", "Preview=1"});
    Start();
    EXPECT_TRUE(Window().GetOptionButton(IDC_optModePreview).Selected());
    EXPECT_FALSE(Window().GetOptionButton(IDC_optModeReal).Selected());
    EXPECT_EQ(PreviewCaption(), CaptionColour::Red);
    EXPECT_THAT(Shots(), ElementsAre("base.tga", "second.tga"));
    Window().UserSelect(IDC_lstMods, "rocket");
    EXPECT_EQ(PreviewCaption(), CaptionColour::Red);
    Quit();
    EXPECT_THAT(os.files.Contents(kIni), ::testing::HasSubstr("\r\nPreview=1\r\n"));
}

TEST_F(ScreenshotsTest, RealModeIsRememberedToo) {
    WriteSettings({"Game=Quake2", "Preview=0"});
    Start();
    EXPECT_TRUE(Window().GetOptionButton(IDC_optModeReal).Selected());
    EXPECT_EQ(PreviewCaption(), CaptionColour::Normal);
    Window().UserClick(IDC_optModePreview);
    Window().UserClick(IDC_optModeReal);
    Quit();
    EXPECT_THAT(os.files.Contents(kIni), ::testing::HasSubstr("\r\nPreview=0\r\n"));
}

TEST_F(ScreenshotsTest, AnotherModResetsTheCaptionThatShiftLeftRed) {
    Start();
    os.windows.SetKeyState(PollKey::Shift, 0x8001);
    Window().UserSelect(IDC_lstScreenshots, "base.tga");
    EXPECT_EQ(PreviewCaption(), CaptionColour::Red);
    Window().UserSelect(IDC_lstMods, "rocket");
    EXPECT_EQ(PreviewCaption(), CaptionColour::Normal);
}

TEST_F(ScreenshotsTest, AShiftFromBeforeTheProgramsTimeDoesNotCount) {
    os.windows.SetKeyState(PollKey::Shift, 0x8001);
    Start();
    Window().UserSelect(IDC_lstScreenshots, "base.tga");
    EXPECT_EQ(Shown(), "picture-of-a-duel");
}

// ---- Viewing ----

TEST_F(ScreenshotsTest, AShotIsViewedAndTheBusyImageGoesWithTheProgram) {
    Start();
    Window().UserSelect(IDC_lstScreenshots, "base.tga");
    EXPECT_EQ(Shown(), "picture-of-a-duel");
    EXPECT_THAT(Shots(), ElementsAre("base.tga *", "second.tga"));
    EXPECT_TRUE(os.files.Exists("C:\\Windows\\zentar-tmp.gif"));
    Quit();
    EXPECT_FALSE(os.files.Exists("C:\\Windows\\zentar-tmp.gif"));
}

TEST_F(ScreenshotsTest, AModPickedWhileAShotIsBeingLoadedShowsNoShot) {
    for (const int pump : {1, 2}) {
        Start();
        int left = pump;
        os.windows.SetDuringPump([&] {
            if (--left == 0) {
                Window().UserSelect(IDC_lstMods, "rocket");
            }
        });
        Window().UserSelect(IDC_lstScreenshots, "base.tga");
        os.windows.SetDuringPump({});
        EXPECT_THAT(Shots(), ElementsAre("rocket.jpg"));
        EXPECT_EQ(Shown(), "");
        EXPECT_FALSE(os.files.Exists(kQuake2Folder + "rocket\\scrnshot\\base.zentar"));
        Window().UserSelect(IDC_lstMods, "baseq2");
        Quit();
    }
}

// ---- The full-size viewer ----

TEST_F(ScreenshotsTest, TheFullSizeViewerOpensFromTheMenuByEnterAndByAClickOnThePicture) {
    Start();
    CountFullViews();
    Window().SetPopupUser([this](int menu) {
        EXPECT_EQ(menu, IDM_mnuScreenshot);
        Window().UserPickMenu(IDM_mnuScreenshotShowFull);
    });
    Window().UserRightClick(IDC_lstScreenshots, 0);
    EXPECT_EQ(fullViews_, 1);
    Window().GetListBox(IDC_lstScreenshots).SetFocus();
    Window().UserKey(Key::Enter);
    EXPECT_EQ(fullViews_, 2);
    Window().UserClick(IDC_imgShotView);
    EXPECT_EQ(fullViews_, 3);
    EXPECT_TRUE(Window().CanReach(IDC_lstScreenshots));
    EXPECT_EQ(Shown(), "picture-of-a-duel");
}

TEST_F(ScreenshotsTest, InPreviewModeItDoesNotOpen) {
    WriteSettings({"Game=Quake2", "Preview=1"});
    Start();
    CountFullViews();
    Window().UserSelect(IDC_lstScreenshots, "base.tga");
    Window().UserClick(IDC_imgShotView);
    Window().UserKey(Key::Enter);
    EXPECT_EQ(fullViews_, 0);
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Exclamation));
}

}  // namespace
}  // namespace zentar
