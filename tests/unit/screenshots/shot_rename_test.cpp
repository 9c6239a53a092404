// Renaming a shot, and its preview image with it.

#include "tests/unit/screenshots/shots_tab_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;

class ShotRenameTest : public ShotsTabTest {
  protected:
    ShotRenameTest() {
        AddShot("Shot0001.TGA", {640, 480}, "duel");
        AddShot("other.tga");
        Refresh();
        Select("Shot0001.TGA");
    }

    void Rename(std::optional<std::string> answer, const std::string& offered = "Shot0001",
                const std::string& entry = "Shot0001.TGA *") {
        os.windows.ExpectText(
            {"Rename Screenshot",
             "Enter new name for \"" + offered + "\".\r\n\r\n(Do not type the extension).",
             offered},
            std::move(answer));
        Pick(entry, IDM_mnuScreenshotRename);
    }

    void ExpectUnchanged() {
        EXPECT_THAT(Names(), ElementsAre("Shot0001.TGA", "Shot0001.zentar", "other.tga"));
        EXPECT_EQ(Selected(), "Shot0001.TGA *");
        EXPECT_EQ(Shown(), "duel");
    }

    const Message illegal_ = Failure(
        "Can't rename due to illegal characters.\r\n\r\n"
        "Filenames cannot have these characters\r\n"
        "in them:   \"   \\   /   |   <   >   :   ?   *");
    const Message badName_ = Failure(
        "Can't rename due to Windows not allowing that name.\r\n\r\n"
        "It may be too long, or be a name that Windows\r\n"
        "keeps for itself (eg. con).");
};

TEST_F(ShotRenameTest, TheShotAndItsPreviewGetTheNameAndThePictureStays) {
    os.log.Clear();
    Rename("duel");
    EXPECT_THAT(Names(), ElementsAre("duel.TGA", "duel.zentar", "other.tga"));
    EXPECT_THAT(Listed(), ElementsAre("duel.TGA *", "other.tga"));
    EXPECT_EQ(Selected(), "duel.TGA *");
    EXPECT_EQ(Shown(), "duel");
    EXPECT_EQ(tab->CurrentShot().Name, "duel.TGA");
    EXPECT_EQ(tab->CurrentShot().Path, PathOf("duel.TGA"));
    EXPECT_EQ(tab->CurrentShot().ShotDimsText, "Dims:\t640 x 480 pixels");
    EXPECT_FALSE(os.log.Has("imgShotView.SetImage(none)"));
    EXPECT_EQ(os.images.Loaded().size(), 1U);
}

TEST_F(ShotRenameTest, AfterwardsCommandsWorkOnTheNewName) {
    Rename("duel");
    os.windows.Expect({"Done",
                       "Original image size:\t21 bytes.\r\nJPG version size:\t28 bytes.\r\n"
                       "Total bytes saved:\t-7.",
                       MessageIcon::Information},
                      Answer::Ok);
    Pick("duel.TGA *", IDM_mnuScreenshotMakeJPEGOnly);
    EXPECT_TRUE(Exists("duel.jpg"));
}

TEST_F(ShotRenameTest, AfterwardsAnotherShotIsShownAtOnce) {
    Rename("zzz");
    Select("other.tga");
    EXPECT_EQ(Shown(), "other");
}

TEST_F(ShotRenameTest, WithoutAPreviewThereIsNoneAfterwards) {
    UsePreviewMode();
    Select("other.tga");
    Rename("new", "other", "other.tga");
    EXPECT_THAT(Names(), ElementsAre("Shot0001.TGA", "Shot0001.zentar", "new.tga"));
    EXPECT_EQ(Selected(), "new.tga");
}

TEST_F(ShotRenameTest, CancellingAnEmptyOrTheSameNameChangesNothing) {
    for (const auto& answer :
         std::vector<std::optional<std::string>>{std::nullopt, "", "Shot0001"}) {
        Rename(answer);
        ExpectUnchanged();
    }
}

TEST_F(ShotRenameTest, AnotherCaseIsAnotherName) {
    Rename("SHOT0001");
    EXPECT_THAT(Names(), ElementsAre("SHOT0001.TGA", "SHOT0001.zentar", "other.tga"));
    EXPECT_EQ(Selected(), "SHOT0001.TGA *");
}

TEST_F(ShotRenameTest, EachIllegalCharacterIsToldOf) {
    for (const char* name : {"a\"b", "a\\b", "a/b", "a:b", "a?b", "a*b", "a<b", "a>b", "a|b"}) {
        os.windows.Expect(illegal_, Answer::Ok);
        Rename(name);
    }
    os.windows.Expect(illegal_, Answer::Ok);
    os.windows.Expect(illegal_, Answer::Ok);
    Rename("a:b:c");
    ExpectUnchanged();
}

TEST_F(ShotRenameTest, ANameThatIsTakenIsRefused) {
    os.windows.Expect(Failure("Can't rename due to another screenshot having that name.\r\n\r\n"
                              "Please choose another name and try again."),
                      Answer::Ok);
    Rename("OTHER");
    ExpectUnchanged();
}

TEST_F(ShotRenameTest, ANameThatWindowsDoesNotAllowIsRefused) {
    for (const std::string& name : {std::string("con"), std::string(300, 'x'),
                                    std::string(766, 'x'), std::string(100'000, 'x')}) {
        os.windows.Expect(badName_, Answer::Ok);
        Rename(name);
    }
    ExpectUnchanged();
}

TEST_F(ShotRenameTest, AVeryLongNameOfIllegalCharactersIsToldOfOnce) {
    os.windows.Expect(badName_, Answer::Ok);
    Rename(std::string(766, '?'));
    ExpectUnchanged();
}

TEST_F(ShotRenameTest, AShotThatHasGoneIsToldOfAndTheListIsMadeNew) {
    os.files.Remove(PathOf("Shot0001.TGA"));
    os.windows.Expect(Failure("This screenshot is no longer in its folder."), Answer::Ok);
    Rename("duel");
    EXPECT_THAT(Listed(), ElementsAre("other.tga"));
    EXPECT_EQ(Shown(), "");
}

TEST_F(ShotRenameTest, AShotThatAProgramHoldsIsToldOf) {
    os.files.SetLocked(PathOf("Shot0001.TGA"));
    const Message refused = Failure(
        "This screenshot couldn't be renamed.\r\n\r\n"
        "The file may be in use, or its folder may be protected.");
    os.windows.Expect(refused, Answer::Ok);
    Rename("duel");
    ExpectUnchanged();
    os.files.SetLocked(PathOf("Shot0001.TGA"), false);
    os.files.SetWritingDenied(state.current.ScreenshotFolder);
    os.windows.Expect(refused, Answer::Ok);
    Rename("duel");
    ExpectUnchanged();
}

TEST_F(ShotRenameTest, ItsPreviewTakesThePlaceOfOneThatNobodyHas) {
    AddFile("duel.zentar", PictureFile({320, 240}, "of-a-shot-long-gone"));
    Rename("duel");
    EXPECT_THAT(Names(), ElementsAre("duel.TGA", "duel.zentar", "other.tga"));
    EXPECT_EQ(Contents("duel.zentar"), PictureFile({320, 240}, "duel"));
}

TEST_F(ShotRenameTest, WithoutAPreviewItDoesNotGetThatOfAShotThatHasGone) {
    os.files.Remove(PathOf("Shot0001.zentar"));
    AddFile("duel.zentar", PictureFile({320, 240}, "of-a-shot-long-gone"));
    Rename("Duel");
    EXPECT_THAT(Names(), ElementsAre("Duel.TGA", "other.tga"));
    EXPECT_THAT(Listed(), ElementsAre("Duel.TGA", "other.tga"));
}

TEST_F(ShotRenameTest, WithoutAPreviewItSharesThatOfAListedShot) {
    os.files.Remove(PathOf("Shot0001.zentar"));
    AddShot("DUEL.jpg");
    AddFile("duel.zentar", PictureFile({320, 240}, "shared"));
    Refresh();
    form->UserSelect(IDC_lstScreenshots, "Shot0001.TGA");
    os.files.Remove(PathOf("Shot0001.zentar"));
    Rename("duel");
    EXPECT_EQ(Contents("duel.zentar"), PictureFile({320, 240}, "shared"));
}

TEST_F(ShotRenameTest, APreviewThatAProgramHoldsStaysBehind) {
    os.files.SetLocked(PathOf("Shot0001.zentar"));
    Rename("duel");
    EXPECT_THAT(Names(), ElementsAre("Shot0001.zentar", "duel.TGA", "other.tga"));
    EXPECT_EQ(Selected(), "duel.TGA");
    EXPECT_EQ(Shown(), "duel");
}

TEST_F(ShotRenameTest, AReadOnlyShotIsRenamedAsAnyOther) {
    os.files.SetReadOnly(PathOf("Shot0001.TGA"));
    Rename("duel");
    EXPECT_TRUE(os.files.IsReadOnly(PathOf("duel.TGA")));
}

TEST_F(ShotRenameTest, DotsAndLettersOfAllLanguagesAreFine) {
    Rename("größe.1");
    EXPECT_TRUE(Exists("größe.1.TGA"));
    EXPECT_TRUE(Exists("größe.1.zentar"));
    EXPECT_EQ(Selected(), "größe.1.TGA *");
}

TEST_F(ShotRenameTest, AModPickedWhileTheQuestionIsOpenKeepsItsList) {
    os.windows.ExpectText(
        {"Rename Screenshot",
         "Enter new name for \"Shot0001\".\r\n\r\n(Do not type the extension).", "Shot0001"},
        "duel", [this] { UseMod("rocket"); });
    Press(Key::F2);
    EXPECT_THAT(Listed(), ElementsAre());
    EXPECT_EQ(Shown(), "");
    EXPECT_THAT(Names("C:\\Quake2\\ctf\\scrnshot\\"),
                ElementsAre("duel.TGA", "duel.zentar", "other.tga"));
}

}  // namespace
}  // namespace zentar
