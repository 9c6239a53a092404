// Deleting shots and preview images.

#include "tests/unit/screenshots/shots_tab_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ShotDeleteTest : public ShotsTabTest {
  protected:
    void AddShots(const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            AddShot(name);
        }
        Refresh();
    }

    void Delete(const std::string& entry) { Pick(entry, IDM_mnuScreenshotDelete); }

    // With nothing selected, as most users would.
    void DeleteAll(int menuEntry) {
        Refresh();
        Pick("(beside)", menuEntry);
    }

    const Message delete_ = Confirm("Really delete this screenshot?");
    const Message readOnly_ = ReadOnlyQuestion(
        "Screenshot couldn't be deleted due to being set as read-only.\r\n"
        "Would you like me to remove this setting to force the deletion?");
    const Message deletePreview_ = Confirm("Really delete this screenshot's preview image?");
    const Message readOnlyPreview_ = ReadOnlyQuestion(
        "Preview couldn't be deleted due to being set as read-only.\r\n"
        "Would you like me to remove this setting and force the delete?");
};

// ---- One shot ----

TEST_F(ShotDeleteTest, AShotGoesWithItsPreviewAndItsPictureOnlyOnYes) {
    AddShots({"a.tga", "b.tga"});
    Select("a.tga");
    os.windows.Expect(delete_, Answer::No);
    Delete("a.tga *");
    EXPECT_THAT(Names(), ElementsAre("a.tga", "a.zentar", "b.tga"));
    EXPECT_EQ(Shown(), "a");
    os.windows.Expect(delete_, Answer::Yes);
    Delete("a.tga *");
    EXPECT_THAT(Names(), ElementsAre("b.tga"));
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(Selected(), "");
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
    EXPECT_TRUE(os.log.Ordered({"ClearAttributes " + PathOf("a.tga"), "Delete " + PathOf("a.tga"),
                                "Delete " + PathOf("a.zentar")}));
}

TEST_F(ShotDeleteTest, ASharedPreviewGoesToo) {
    state.settings.Expert = 1;
    AddPreviewOf("a.tga");
    AddShots({"a.jpg", "a.tga"});
    Select("a.tga *");
    Delete("a.tga *");
    EXPECT_THAT(Names(), ElementsAre("a.jpg"));
    EXPECT_THAT(Listed(), ElementsAre("a.jpg"));
}

TEST_F(ShotDeleteTest, AReadOnlyShotAsksInExpertModeToo) {
    state.settings.Expert = 1;
    AddShots({"a.tga"});
    os.files.SetReadOnly(PathOf("a.tga"));
    os.windows.Expect(readOnly_, Answer::No);
    Delete("a.tga");
    EXPECT_TRUE(os.files.IsReadOnly(PathOf("a.tga")));
    EXPECT_TRUE(Exists("a.zentar"));
    os.windows.Expect(readOnly_, Answer::Yes);
    Delete("a.tga *");
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(ShotDeleteTest, AReadOnlyPreviewThatStaysIsNotToldOf) {
    state.settings.Expert = 1;
    AddShots({"a.tga"});
    Select("a.tga");
    os.files.SetReadOnly(PathOf("a.zentar"));
    Delete("a.tga *");
    EXPECT_THAT(Names(), ElementsAre("a.zentar"));
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(ShotDeleteTest, AShotThatAProgramHoldsStaysWithItsPreview) {
    state.settings.Expert = 1;
    AddShots({"a.tga"});
    Select("a.tga");
    os.files.SetLocked(PathOf("a.tga"));
    Delete("a.tga *");
    EXPECT_THAT(Listed(), ElementsAre("a.tga *"));
    EXPECT_THAT(Names(), ElementsAre("a.tga", "a.zentar"));
}

TEST_F(ShotDeleteTest, AShotThatHasGoneAlreadyTakesItsPreviewAlong) {
    state.settings.Expert = 1;
    AddShots({"a.tga"});
    Select("a.tga");
    os.files.Remove(PathOf("a.tga"));
    Delete("a.tga *");
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(ShotDeleteTest, TheShotThatWasSelectedIsDeletedThoughItsPictureWasNeverSeen) {
    state.settings.Expert = 1;
    AddShots({"a.tga", "b.tga"});
    UsePreviewMode();
    Delete("b.tga");
    EXPECT_THAT(Names(), ElementsAre("a.tga"));
}

// ---- The next one ----

class NextShot : public ShotDeleteTest {
  protected:
    NextShot() {
        state.settings.Expert = 1;
        state.settings.AutoNextShot = 1;
        AddShots({"c.tga", "a.tga", "b.tga"});
    }
};

TEST_F(NextShot, AfterTheFirstItIsTheSecond) {
    Delete("a.tga");
    EXPECT_EQ(Selected(), "b.tga *");
    EXPECT_EQ(Shown(), "b");
    EXPECT_EQ(tab->CurrentShot().Name, "b.tga");
}

TEST_F(NextShot, AfterOneInTheMiddleItIsTheOneBelow) {
    Delete("b.tga");
    EXPECT_EQ(Selected(), "c.tga *");
    EXPECT_EQ(Shown(), "c");
}

TEST_F(NextShot, AfterTheLastItIsTheOneAbove) {
    Delete("c.tga");
    EXPECT_EQ(Selected(), "b.tga *");
    EXPECT_EQ(Shown(), "b");
}

TEST_F(NextShot, AfterTheOnlyOneTheListIsEmptyAndGreyed) {
    Delete("a.tga");
    Delete("b.tga *");
    Delete("c.tga *");
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_FALSE(Enabled(IDC_lstScreenshots));
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(Text(IDC_labNumShots), "Total: 0  (tga=0,  jpg=0,  pcx=0).");
}

TEST_F(NextShot, ItIsFoundThoughItLosesItsMarkerMeanwhile) {
    AddShot("a.jpg");
    Refresh();
    Select("a.jpg");
    UsePreviewMode();
    Delete("a.jpg *");  // the preview is that of "a.tga", too
    EXPECT_EQ(Selected(), "a.tga");
    EXPECT_EQ(Shown(), "busy");
}

TEST_F(NextShot, WithoutThePreferenceNothingIsSelected) {
    state.settings.AutoNextShot = 0;
    Delete("a.tga");
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Shown(), "");
}

TEST_F(NextShot, ItIsNotSelectedWhenTheUserSaysNo) {
    state.settings.Expert = 0;
    os.windows.Expect(delete_, Answer::No);
    Delete("a.tga");
    EXPECT_EQ(Selected(), "a.tga *");
}

// ---- A preview ----

TEST_F(ShotDeleteTest, APreviewGoesAndTheShotStaysSelectedAndShown) {
    AddShots({"a.tga", "b.tga"});
    Select("a.tga");
    os.windows.Expect(deletePreview_, Answer::No);
    Pick("a.tga *", IDM_mnuScreenshotDeletePreview);
    EXPECT_TRUE(Exists("a.zentar"));
    os.windows.Expect(deletePreview_, Answer::Yes);
    os.log.Clear();
    Pick("a.tga *", IDM_mnuScreenshotDeletePreview);
    EXPECT_THAT(Names(), ElementsAre("a.tga", "b.tga"));
    EXPECT_THAT(Listed(), ElementsAre("a.tga", "b.tga"));
    EXPECT_EQ(Selected(), "a.tga");
    EXPECT_EQ(Shown(), "a");
    EXPECT_EQ(tab->CurrentShot().ShotDimsText, "Dims:\t640 x 480 pixels");
    EXPECT_FALSE(tab->CurrentShot().HasPreview);
    EXPECT_FALSE(os.log.Has("imgShotView.SetImage(none)"));
    EXPECT_EQ(os.images.Loaded().size(), 1U);
    EXPECT_TRUE(os.log.Ordered({"ClearAttributes " + PathOf("a.zentar"),
                                "Delete " + PathOf("a.zentar"), "Pointer Hourglass",
                                "Enumerate " + state.current.ScreenshotFolder, "Pointer Default"}));
    RightClick("a.tga");
    EXPECT_FALSE(MenuEnabled(IDM_mnuScreenshotDeletePreview));
}

TEST_F(ShotDeleteTest, AfterwardsTheSameShotIsNotLoadedAgainButAnotherIs) {
    state.settings.Expert = 1;
    AddShots({"a.tga", "b.tga"});
    Select("a.tga");
    Pick("a.tga *", IDM_mnuScreenshotDeletePreview);
    Select("a.tga");
    EXPECT_EQ(os.images.Loaded().size(), 1U);
    Select("b.tga");
    EXPECT_EQ(Shown(), "b");
}

TEST_F(ShotDeleteTest, AReadOnlyPreviewAsks) {
    state.settings.Expert = 1;
    AddShots({"a.tga"});
    Select("a.tga");
    os.files.SetReadOnly(PathOf("a.zentar"));
    os.windows.Expect(readOnlyPreview_, Answer::No);
    Pick("a.tga *", IDM_mnuScreenshotDeletePreview);
    EXPECT_TRUE(os.files.IsReadOnly(PathOf("a.zentar")));
    os.windows.Expect(readOnlyPreview_, Answer::Yes);
    Pick("a.tga *", IDM_mnuScreenshotDeletePreview);
    EXPECT_THAT(Names(), ElementsAre("a.tga"));
}

TEST_F(ShotDeleteTest, APreviewThatAProgramHoldsKeepsItsMarker) {
    state.settings.Expert = 1;
    AddShots({"a.tga"});
    Select("a.tga");
    os.files.SetLocked(PathOf("a.zentar"));
    Pick("a.tga *", IDM_mnuScreenshotDeletePreview);
    EXPECT_EQ(Selected(), "a.tga *");
    EXPECT_EQ(Shown(), "a");
}

TEST_F(ShotDeleteTest, APreviewOfASharedNameGoesForAllOfThem) {
    state.settings.Expert = 1;
    AddShots({"a.jpg", "a.tga"});
    Select("a.jpg");
    EXPECT_THAT(Listed(), ElementsAre("a.jpg *", "a.tga *"));
    Pick("a.jpg *", IDM_mnuScreenshotDeletePreview);
    EXPECT_THAT(Listed(), ElementsAre("a.jpg", "a.tga"));
    EXPECT_EQ(Selected(), "a.jpg");
}

TEST_F(ShotDeleteTest, AShotThatVanishedMeanwhileLeavesNothingShown) {
    state.settings.Expert = 1;
    AddShots({"a.tga", "b.tga"});
    Select("a.tga");
    os.files.Remove(PathOf("a.tga"));
    PressWithShift(Key::Delete);
    EXPECT_THAT(Listed(), ElementsAre("b.tga"));
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Shown(), "");
}

// ---- All of them ----

struct DeleteAllCase {
    const char* name;
    int menuEntry;
    const char* question;
    std::vector<std::string> left;
};

class DeleteAllShots : public ShotDeleteTest, public ::testing::WithParamInterface<DeleteAllCase> {
  protected:
    DeleteAllShots() {
        for (const char* name :
             {"both.tga", "both.JPG", "both.zentar", "flat.pcx", "flat.jpg", "flat.zentar",
              "gone.zentar", "lone.jpg", "lone.zentar", "none.jpg", "void.jpg", "void.zentar",
              "X.PCX", "x.Zentar", "y.TGA", "pak0.pak", "shot.bmp", "a.jpeg", "b.tga.bak"}) {
            AddFile(name, "bytes");
        }
        AddFile("void.pcx", "");
        os.files.AddFolder(PathOf("folder.tga\\"));
    }
};

TEST_P(DeleteAllShots, OnYesThoseGoAndNothingElse) {
    const std::vector<std::string> all = Names();
    os.windows.Expect(Confirm(GetParam().question), Answer::No);
    DeleteAll(GetParam().menuEntry);
    EXPECT_EQ(Names(), all);
    os.windows.Expect(Confirm(GetParam().question), Answer::Yes);
    os.log.Clear();
    DeleteAll(GetParam().menuEntry);
    std::vector<std::string> left = GetParam().left;
    for (const char* other : {"pak0.pak", "shot.bmp", "a.jpeg", "b.tga.bak", "folder.tga"}) {
        left.emplace_back(other);
    }
    EXPECT_THAT(Names(), ::testing::UnorderedElementsAreArray(left));
    EXPECT_TRUE(os.log.Ordered({"Ask Confirm", "Pointer Hourglass", "Pointer Default",
                                "Enumerate " + state.current.ScreenshotFolder}));
    EXPECT_FALSE(os.log.Has("ClearAttributes " + PathOf("folder.tga")));
}

TEST_P(DeleteAllShots, InExpertModeNobodyIsAsked) {
    state.settings.Expert = 1;
    DeleteAll(GetParam().menuEntry);
    EXPECT_EQ(Names().size(), GetParam().left.size() + 5);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, DeleteAllShots,
    ::testing::Values(
        DeleteAllCase{"All", IDM_mnuScreenshotDeleteAll, "Really delete all images/shots?", {}},
        DeleteAllCase{"Previews",
                      IDM_mnuScreenshotDeleteAllPreview,
                      "Really delete all preview images?",
                      {"both.tga", "both.JPG", "flat.pcx", "flat.jpg", "lone.jpg", "none.jpg",
                       "void.jpg", "void.pcx", "X.PCX", "y.TGA"}},
        // Nobody looks at what else shares the preview.
        DeleteAllCase{"Tga",
                      IDM_mnuScreenshotDeleteAllTGA,
                      "Really delete all TGA screenshots?",
                      {"both.JPG", "flat.pcx", "flat.jpg", "flat.zentar", "gone.zentar", "lone.jpg",
                       "lone.zentar", "none.jpg", "void.jpg", "void.pcx", "void.zentar", "X.PCX",
                       "x.Zentar"}},
        DeleteAllCase{"Pcx",
                      IDM_mnuScreenshotDeleteAllPCX,
                      "Really delete all PCX screenshots?",
                      {"both.tga", "both.JPG", "both.zentar", "flat.jpg", "gone.zentar", "lone.jpg",
                       "lone.zentar", "none.jpg", "void.jpg", "y.TGA"}},
        // A preview stays for the PCX of its name alone, and only for one that is not empty.
        DeleteAllCase{"Jpg",
                      IDM_mnuScreenshotDeleteAllJPG,
                      "Really delete all JPG images?",
                      {"both.tga", "flat.pcx", "flat.zentar", "gone.zentar", "void.pcx", "X.PCX",
                       "x.Zentar", "y.TGA"}}),
    [](const auto& command) { return std::string(command.param.name); });

TEST_F(ShotDeleteTest, OfReadOnlyFilesItAsksOnceForAll) {
    state.settings.Expert = 1;
    AddShots({"a.tga", "b.tga", "c.tga", "d.tga"});
    os.files.SetReadOnly(PathOf("a.tga"));
    os.files.SetReadOnly(PathOf("c.tga"));
    os.windows.Expect(readOnly_, Answer::No);
    DeleteAll(IDM_mnuScreenshotDeleteAllTGA);
    EXPECT_THAT(Names(), ElementsAre("a.tga", "c.tga"));
    EXPECT_TRUE(os.files.IsReadOnly(PathOf("a.tga")));
    os.windows.Expect(readOnly_, Answer::Yes);
    DeleteAll(IDM_mnuScreenshotDeleteAllTGA);
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(ShotDeleteTest, OfReadOnlyPreviewsItAsksInTheirWords) {
    state.settings.Expert = 1;
    AddShots({"a.tga"});
    AddPreviewOf("a.tga");
    os.files.SetReadOnly(PathOf("a.zentar"));
    os.windows.Expect(readOnlyPreview_, Answer::Yes);
    DeleteAll(IDM_mnuScreenshotDeleteAllPreview);
    EXPECT_THAT(Names(), ElementsAre("a.tga"));
}

TEST_F(ShotDeleteTest, WhatAProgramHoldsStaysWithItsPreviewAndTheRestGoes) {
    state.settings.Expert = 1;
    AddShots({"a.jpg", "b.jpg"});
    AddPreviewOf("a.jpg");
    AddPreviewOf("b.jpg");
    os.files.SetLocked(PathOf("a.jpg"));
    DeleteAll(IDM_mnuScreenshotDeleteAllJPG);
    EXPECT_THAT(Names(), ElementsAre("a.jpg", "a.zentar"));
    EXPECT_THAT(Listed(), ElementsAre("a.jpg *"));
}

TEST_F(ShotDeleteTest, AFolderThatHasGoneMeanwhileIsNoError) {
    AddShots({"a.tga"});
    os.windows.Expect(Confirm("Really delete all images/shots?"), Answer::Yes,
                      [this] { os.files.Remove("C:\\Quake2\\ctf\\scrnshot\\"); });
    Pick("(beside)", IDM_mnuScreenshotDeleteAll);
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_FALSE(Enabled(IDC_lstScreenshots));
}

TEST_F(ShotDeleteTest, ThePictureOnTheScreenGoesWithTheList) {
    state.settings.Expert = 1;
    AddShots({"a.tga", "b.pcx"});
    Select("a.tga");
    Pick("a.tga *", IDM_mnuScreenshotDeleteAllTGA);
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(Selected(), "");
    EXPECT_THAT(Listed(), ElementsAre("b.pcx"));
}

}  // namespace
}  // namespace zentar
