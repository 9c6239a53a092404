// What the user does while a shot is being loaded: the last thing done is what is seen, and no
// command finds one shot's picture under the name of another.

#include "tests/unit/screenshots/shots_tab_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// At each of the times that messages are handled while "a.tga" is being loaded.
class OvertakenViewing : public ShotsTabTest, public ::testing::WithParamInterface<int> {
  protected:
    OvertakenViewing() {
        for (const char* name : {"a.tga", "b.tga", "before.tga"}) {
            AddShot(name);
        }
        Refresh();
        Select("before.tga");
    }

    void SelectAnd(std::function<void()> meanwhile) {
        DuringPumpNumber(GetParam(), [this, meanwhile = std::move(meanwhile)] {
            happened_ = true;
            meanwhile();
        });
        Select("a.tga");
        EXPECT_TRUE(happened_);
        EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
    }

    bool happened_ = false;
};

TEST_P(OvertakenViewing, AnotherSelectionWins) {
    SelectAnd([this] { Select("b.tga"); });
    EXPECT_EQ(Shown(), "b");
    EXPECT_EQ(Selected(), "b.tga *");
    EXPECT_EQ(tab->CurrentShot().Name, "b.tga");
    EXPECT_THAT(Listed(), ElementsAre("a.tga", "b.tga *", "before.tga *"));
    EXPECT_THAT(os.images.Loaded(), ElementsAre(PathOf("before.tga"), PathOf("b.tga")));
}

TEST_P(OvertakenViewing, ARefreshLeavesNothingSelected) {
    SelectAnd([this] { Press(Key::F5); });
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(tab->CurrentShot().Name, "");
    EXPECT_FALSE(Enabled(IDC_imgShotView));
    EXPECT_FALSE(Exists("a.zentar"));
    Select("a.tga");
    EXPECT_EQ(Shown(), "a");
}

TEST_P(OvertakenViewing, ASelectionAfterARefreshWins) {
    SelectAnd([this] {
        Press(Key::F5);
        Select("a.tga");
    });
    EXPECT_EQ(Shown(), "a");
    EXPECT_EQ(Selected(), "a.tga *");
    EXPECT_EQ(os.images.Loaded().size(), 2U);
}

TEST_P(OvertakenViewing, AnotherModShowsItsOwnShots) {
    SelectAnd([this] {
        os.files.AddFile("C:\\Quake2\\rocket\\scrnshot\\a.tga", PictureFile({8, 8}, "other"));
        UseMod("rocket");
    });
    EXPECT_THAT(Listed(), ElementsAre("a.tga"));
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(tab->CurrentShot().Name, "");
    EXPECT_THAT(Names(), ElementsAre("a.tga"));
    EXPECT_THAT(Names("C:\\Quake2\\ctf\\scrnshot\\"),
                ElementsAre("a.tga", "b.tga", "before.tga", "before.zentar"));
}

TEST_P(OvertakenViewing, AnotherViewModeStartsAnew) {
    SelectAnd([this] { UsePreviewMode(); });
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(PreviewCaption(), CaptionColour::Red);
    EXPECT_FALSE(Exists("a.zentar"));
}

TEST_P(OvertakenViewing, ThePictureOfTheShotBeforeIsOutOfReach) {
    SelectAnd([this] {
        EXPECT_EQ(tab->picShotActual().picture, nullptr);
        for (const int entry : {IDM_mnuScreenshotShowFull, IDM_mnuScreenshotMakeJPEGOnly,
                                IDM_mnuScreenshotMakeJPEGAndKill, IDM_mnuScreenshotSetWallpaper}) {
            EXPECT_FALSE(MenuEnabled(entry)) << entry;
        }
        Press(Key::Enter);
        form->UserClick(IDC_imgShotView);
    });
    EXPECT_THAT(shownFull, IsEmpty());
    EXPECT_EQ(Shown(), "a");
}

TEST_P(OvertakenViewing, DeletingItMeanwhileIsNotUndone) {
    state.settings.Expert = 1;
    SelectAnd([this] { Press(Key::Delete); });
    EXPECT_THAT(Names(), ElementsAre("b.tga", "before.tga", "before.zentar"));
    EXPECT_THAT(Listed(), ElementsAre("b.tga", "before.tga *"));
    EXPECT_EQ(Shown(), "");
}

TEST_P(OvertakenViewing, RenamingItMeanwhileShowsItUnderItsNewName) {
    SelectAnd([this] {
        os.windows.ExpectText(
            {"Rename Screenshot", "Enter new name for \"a\".\r\n\r\n(Do not type the extension).",
             "a"},
            "z");
        Press(Key::F2);
    });
    EXPECT_EQ(Selected(), "z.tga *");
    EXPECT_EQ(Shown(), "a");
    EXPECT_EQ(Contents("z.zentar"), PictureFile({320, 240}, "a"));
    EXPECT_FALSE(Exists("a.zentar"));
}

TEST_P(OvertakenViewing, AShotThatCannotBeShownMeanwhileIsNotShownLater) {
    SelectAnd([this] {
        RemoveLibrary();
        os.windows.Expect(Failure("Screenshots cannot currently be viewed.\r\n\r\n"
                                  "Zentar is missing a required file that is needed for\r\n"
                                  "screenshot viewing.  This file would have been\r\n"
                                  "present when you first installed Zentar, so you'll\r\n"
                                  "need to re-install Zentar over itself to get it back."),
                          Answer::Ok);
        Select("b.tga");
    });
    EXPECT_EQ(Selected(), "b.tga");
    EXPECT_EQ(Shown(), "");
    EXPECT_FALSE(Enabled(IDC_imgShotView));
    EXPECT_THAT(os.images.Loaded(), ElementsAre(PathOf("before.tga")));
}

TEST_P(OvertakenViewing, AMenuAskedForMeanwhileOpensOnceItsShotIsThere) {
    SelectAnd([this] { RightClick("b.tga"); });
    ASSERT_EQ(form->Popups().size(), 1U);
    EXPECT_TRUE(form->Popups().front().enabled.at(IDM_mnuScreenshotMakeJPEGOnly));
    EXPECT_EQ(Shown(), "b");
}

// A key held down on a slow machine.
TEST_P(OvertakenViewing, HoweverManySelectionsNoneRunsInsideAnother) {
    for (int shot = 100; shot < 600; ++shot) {
        AddShot(std::string("s").append(std::to_string(shot)).append(".tga"));
    }
    Refresh();
    int depth = 0;
    int deepest = 0;
    int next = IndexOf("s100.tga");
    os.windows.SetDuringPump([&] {
        deepest = std::max(deepest, ++depth);
        if (next < IndexOf("s599.tga")) {
            form->UserSelect(IDC_lstScreenshots, ++next);
        }
        --depth;
    });
    Select("s100.tga");
    EXPECT_EQ(deepest, 1);
    EXPECT_EQ(Selected(), "s599.tga *");
    EXPECT_EQ(Shown(), "s599");
    EXPECT_THAT(os.images.Loaded(), ElementsAre(PathOf("before.tga"), PathOf("s599.tga")));
}

INSTANTIATE_TEST_SUITE_P(Times, OvertakenViewing, ::testing::Values(1, 2));

// ---- What overtakes a refresh ----

class OvertakenRefresh : public ShotsTabTest {};

TEST_F(OvertakenRefresh, TheNextShotIsNotSelectedInAnotherMod) {
    AddShot("a.tga");
    AddShot("b.tga");
    os.files.AddFile("C:\\Quake2\\rocket\\scrnshot\\b.tga", PictureFile({8, 8}, "other"));
    Refresh();
    Select("a.tga");
    state.settings.Expert = 1;
    state.settings.AutoNextShot = 1;
    DuringPumpNumber(1, [this] { UseMod("rocket"); });
    Press(Key::Delete);
    EXPECT_THAT(Listed(), ElementsAre("b.tga"));
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Shown(), "");
}

// Between the choice of a game and the refresh of the list.
TEST_F(OvertakenRefresh, WhatIsDeletedIsWhatIsListed) {
    AddShot("a.tga");
    Refresh();
    const std::string listed = state.current.ScreenshotFolder;
    state.current.ScreenshotFolder = "C:\\Quake2\\rocket\\scrnshot\\";
    AddShot("other.tga");
    state.settings.Expert = 1;
    Pick("(beside)", IDM_mnuScreenshotDeleteAll);
    EXPECT_THAT(Names(listed), IsEmpty());
    EXPECT_THAT(Listed(), ElementsAre("other.tga"));
}

// Games use the same names.
TEST_F(OvertakenRefresh, AShotOfTheGameBeforeIsNotTakenForOneOfTheNext) {
    AddShot("a.tga");
    Refresh();
    const std::string before = state.current.ScreenshotFolder;
    state.current.ScreenshotFolder = "C:\\Quake2\\rocket\\scrnshot\\";
    AddShot("a.tga", {8, 8}, "other");
    Select("a.tga");
    EXPECT_THAT(os.images.Loaded(), ElementsAre(before + "a.tga"));
    EXPECT_EQ(Listed(), std::vector<std::string>{"a.tga"});
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(tab->CurrentShot().Name, "");
    Select("a.tga");
    EXPECT_EQ(Shown(), "other");
    EXPECT_EQ(tab->CurrentShot().Path, PathOf("a.tga"));
}

TEST_F(OvertakenRefresh, ASecondRightClickOpensTheMenuOnce) {
    AddShot("a.tga");
    AddShot("b.tga");
    Refresh();
    DuringPumpNumber(1, [this] { RightClick("b.tga"); });
    RightClick("a.tga");
    EXPECT_EQ(form->Popups().size(), 1U);
    EXPECT_EQ(Selected(), "b.tga *");
}

// While the list is empty already, but the new shots are not in it yet.
TEST_F(OvertakenRefresh, TheShotsOfTheModBeforeAreOutOfReach) {
    AddShot("a.tga");
    Refresh();
    const std::string before = state.current.ScreenshotFolder;
    os.files.AddFile("C:\\Quake2\\rocket\\scrnshot\\other.tga", PictureFile({8, 8}, "other"));
    state.settings.Expert = 1;
    DuringPumpNumber(1, [this] { Pick("(beside)", IDM_mnuScreenshotDeleteAll); });
    UseMod("rocket");
    EXPECT_THAT(Names(before), ElementsAre("a.tga"));
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(OvertakenRefresh, OneCommandWaitsForNoOther) {
    AddShot("a.tga");
    AddShot("b.tga");
    Refresh();
    Select("a.tga");
    state.settings.Expert = 1;
    state.settings.AutoNextShot = 1;
    // A key that repeats itself, pressed too long.
    os.windows.SetDuringPump([this] { Press(Key::Delete); });
    Press(Key::Delete);
    EXPECT_THAT(Names(), ElementsAre("b.tga", "b.zentar"));
    EXPECT_EQ(Shown(), "b");
}

}  // namespace
}  // namespace zentar
