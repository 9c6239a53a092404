// Converting a shot to JPG.

#include "tests/unit/screenshots/shots_tab_fixture.h"

namespace zentar {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

class ShotConversionTest : public ShotsTabTest {
  protected:
    ShotConversionTest() {
        os.files.AddFile(PathOf("a.tga"), Padded("a", 2'000'000));
        AddShot("b.tga");
        Refresh();
        Select("a.tga");
        os.log.Clear();
    }

    static std::string Padded(const std::string& shows, std::size_t length) {
        const std::string picture = PictureFile({640, 480}, shows);
        return picture + std::string(length - picture.size(), ' ');
    }

    void Keep() { Pick(Listed()[0], IDM_mnuScreenshotMakeJPEGOnly); }
    void Kill() { Pick(Listed()[0], IDM_mnuScreenshotMakeJPEGAndKill); }

    void ExpectReport(const std::string& original = "2,000,000", const std::string& jpg = "25",
                      const std::string& saved = "1,999,975") {
        os.windows.Expect({"Done",
                           "Original image size:\t" + original + " bytes.\r\nJPG version size:\t" +
                               jpg + " bytes.\r\nTotal bytes saved:\t" + saved + ".",
                           MessageIcon::Information},
                          Answer::Ok);
    }

    void AddJpg(const std::string& bytes = "older jpg") {
        AddFile("a.jpg", bytes);
        os.log.Clear();
    }

    const Message kill_ = Confirm("Really kill original after converting to JPG?");
    const Message overwrite_ = Confirm("Really overwrite the existing JPG version?");
    const Message readOnly_ = ReadOnlyQuestion(
        "JPG version exists and can't be overwritten due to being read-only.\r\n"
        "Would you like me to remove this setting and force the overwrite?");
    const Message notMade_ = Critical(
        "JPG version could not be made for some reason.\r\n"
        "This is most probably due to a lack of available disk space,\r\n"
        "and the original image still remains in its Quake2 sub-folder.");
    const Message notKilled_ = Critical(
        "JPG version was made, but the original could not be deleted\r\n"
        "and so the original image still remains in its Quake2 sub-folder.");
    const Message readOnlyOriginal_ = ReadOnlyQuestion(
        "Screenshot couldn't be deleted due to being set as read-only.\r\n"
        "Would you like me to remove this setting to force the deletion?");
    const std::string jpg_ = PictureFile({640, 480}, "jpg-of-a");
};

// ---- Keep ----

TEST_F(ShotConversionTest, TheJpgStandsBesideTheOriginalAndIsSelected) {
    ExpectReport();
    Keep();
    EXPECT_EQ(Contents("a.jpg"), jpg_);
    EXPECT_THAT(Names(), ElementsAre("a.jpg", "a.tga", "a.zentar", "b.tga"));
    EXPECT_THAT(Listed(), ElementsAre("a.jpg *", "a.tga *", "b.tga"));
    EXPECT_EQ(Selected(), "a.jpg *");
    EXPECT_EQ(Shown(), "jpg-of-a");
    EXPECT_EQ(Text(IDC_labNumShots), "Total: 3  (tga=2,  jpg=1,  pcx=0).");
}

TEST_F(ShotConversionTest, ThePictureGoesByWayOfTheScratchFileInQuality80) {
    ExpectReport();
    Keep();
    EXPECT_TRUE(os.log.Ordered({"Pointer Hourglass", "OpenForWriting c:\\zentar\\tmp.bmp",
                                "NViewLibLoad c:\\zentar\\tmp.bmp",
                                "NViewLibSaveAsJPG 80 " + PathOf("zentar-jpg.tmp"),
                                "Pointer Default", "Ask Done"}));
    EXPECT_TRUE(os.log.Has("Delete c:\\zentar\\tmp.bmp"));
    EXPECT_THAT(Names("C:\\Zentar\\"), ElementsAre());
}

TEST_F(ShotConversionTest, AProtectedProgramFolderDoesNotMatter) {
    os.files.SetWritingDenied("C:\\Zentar\\");
    ExpectReport();
    Keep();
    EXPECT_EQ(Contents("a.jpg"), jpg_);
}

TEST_F(ShotConversionTest, AScratchFileThatIsLeftOverDoesNotMatter) {
    os.files.AddFile("C:\\Zentar\\tmp.bmp", PictureFile({9, 9}, "of-a-crash"));
    ExpectReport();
    Keep();
    EXPECT_EQ(Contents("a.jpg"), jpg_);
    EXPECT_THAT(Names("C:\\Zentar\\"), ElementsAre());
}

TEST_F(ShotConversionTest, AnExistingJpgIsOverwrittenOnlyOnYes) {
    AddJpg();
    os.windows.Expect(overwrite_, Answer::No);
    Pick("a.tga *", IDM_mnuScreenshotMakeJPEGOnly);
    EXPECT_EQ(Contents("a.jpg"), "older jpg");
    os.windows.Expect(overwrite_, Answer::Yes);
    ExpectReport();
    Pick("a.tga *", IDM_mnuScreenshotMakeJPEGOnly);
    EXPECT_EQ(Contents("a.jpg"), jpg_);
}

TEST_F(ShotConversionTest, AReadOnlyJpgAsksTwiceOutsideExpertMode) {
    AddJpg();
    os.files.SetReadOnly(PathOf("a.jpg"));
    os.windows.Expect(overwrite_, Answer::Yes);
    os.windows.Expect(readOnly_, Answer::No);
    Keep();
    EXPECT_EQ(Contents("a.jpg"), "older jpg");
    EXPECT_TRUE(os.files.IsReadOnly(PathOf("a.jpg")));
    os.windows.Expect(overwrite_, Answer::Yes);
    os.windows.Expect(readOnly_, Answer::Yes);
    ExpectReport();
    Keep();
    EXPECT_EQ(Contents("a.jpg"), jpg_);
    EXPECT_FALSE(os.files.IsReadOnly(PathOf("a.jpg")));
}

TEST_F(ShotConversionTest, InExpertModeAReadOnlyJpgAsksOnce) {
    state.settings.Expert = 1;
    AddJpg();
    os.files.SetReadOnly(PathOf("a.jpg"));
    os.windows.Expect(readOnly_, Answer::Yes);
    ExpectReport();
    Keep();
    EXPECT_EQ(Contents("a.jpg"), jpg_);
}

TEST_F(ShotConversionTest, InExpertModeAnExistingJpgIsReplacedWithoutAQuestion) {
    state.settings.Expert = 1;
    AddJpg();
    ExpectReport();
    Keep();
    EXPECT_EQ(Contents("a.jpg"), jpg_);
}

TEST_F(ShotConversionTest, AJpgThatIsLargerHasSavedLessThanNothing) {
    AddShot("0.tga", {1, 1}, "0");  // 14 bytes
    Refresh();
    Select("0.tga");
    ExpectReport("14", "21", "-7");
    Keep();
}

TEST_F(ShotConversionTest, AJpgOfTheSameLengthHasSavedNothing) {
    AddFile("0.tga", Padded("0", 25));
    Refresh();
    Select("0.tga");
    ExpectReport("25", "25", "0");
    Keep();
}

// ---- Kill ----

TEST_F(ShotConversionTest, KillingDeletesTheOriginalAndKeepsTheSharedPreview) {
    os.windows.Expect(kill_, Answer::Yes);
    ExpectReport();
    Kill();
    EXPECT_EQ(Contents("a.jpg"), jpg_);
    EXPECT_THAT(Names(), ElementsAre("a.jpg", "a.zentar", "b.tga"));
    EXPECT_EQ(Selected(), "a.jpg *");
}

TEST_F(ShotConversionTest, TheJpgIsOnTheDiskBeforeTheOriginalGoes) {
    state.settings.Expert = 1;
    ExpectReport();
    Kill();
    EXPECT_TRUE(os.log.Ordered({"NViewLibSaveAsJPG 80 " + PathOf("zentar-jpg.tmp"),
                                "OpenForWriting " + PathOf("zentar-jpg.tmp"),
                                "Rename " + PathOf("zentar-jpg.tmp") + " -> " + PathOf("a.jpg"),
                                "Delete " + PathOf("a.tga"),
                                "Enumerate " + state.current.ScreenshotFolder}));
}

TEST_F(ShotConversionTest, NoToTheKillingStillConverts) {
    os.windows.Expect(kill_, Answer::No);
    ExpectReport();
    Kill();
    EXPECT_THAT(Names(), ElementsAre("a.jpg", "a.tga", "a.zentar", "b.tga"));
}

TEST_F(ShotConversionTest, NoAlsoForgetsAKillingThatWasToldBefore) {
    AddJpg();
    os.windows.Expect(kill_, Answer::Yes);
    os.windows.Expect(overwrite_, Answer::No);
    Kill();
    Select("a.tga *");
    os.windows.Expect(kill_, Answer::No);
    os.windows.Expect(overwrite_, Answer::Yes);
    ExpectReport();
    Pick("a.tga *", IDM_mnuScreenshotMakeJPEGAndKill);
    EXPECT_TRUE(Exists("a.tga"));
}

TEST_F(ShotConversionTest, NoToTheOverwritingKeepsTheKillingForTheNextConversion) {
    AddJpg();
    os.windows.Expect(kill_, Answer::Yes);
    os.windows.Expect(overwrite_, Answer::No);
    Kill();
    EXPECT_TRUE(Exists("a.tga"));
    os.windows.Expect(overwrite_, Answer::Yes);
    ExpectReport();
    Keep();
    EXPECT_THAT(Names(), ElementsAre("a.jpg", "a.zentar", "b.tga"));
}

TEST_F(ShotConversionTest, NoToTheReadOnlyQuestionKeepsItToo) {
    state.settings.Expert = 1;
    AddJpg();
    os.files.SetReadOnly(PathOf("a.jpg"));
    os.windows.Expect(readOnly_, Answer::No);
    Kill();
    EXPECT_TRUE(Exists("a.tga"));
    os.files.SetReadOnly(PathOf("a.jpg"), false);
    ExpectReport();
    Keep();
    EXPECT_FALSE(Exists("a.tga"));
}

TEST_F(ShotConversionTest, AfterAConversionTheNextOneKeepsItsOriginal) {
    state.settings.Expert = 1;
    ExpectReport();
    Kill();
    AddShot("c.tga");
    Refresh();
    Select("c.tga");
    ExpectReport("18", "25", "-7");
    Pick("c.tga *", IDM_mnuScreenshotMakeJPEGOnly);
    EXPECT_TRUE(Exists("c.tga"));
}

TEST_F(ShotConversionTest, AFailedConversionForgetsTheKilling) {
    state.settings.Expert = 1;
    os.files.SetFreeSpace("C:\\", 0);
    os.windows.Expect(notMade_, Answer::Ok);
    Kill();
    os.files.SetFreeSpace("C:\\", 1'000'000'000);
    ExpectReport();
    Keep();
    EXPECT_TRUE(Exists("a.tga"));
}

TEST_F(ShotConversionTest, AReadOnlyOriginalIsKilledOnlyOnYes) {
    state.settings.Expert = 1;
    os.files.SetReadOnly(PathOf("a.tga"));
    os.windows.Expect(readOnlyOriginal_, Answer::No);
    ExpectReport();
    Kill();
    EXPECT_TRUE(Exists("a.tga"));
    EXPECT_TRUE(os.files.IsReadOnly(PathOf("a.tga")));
    Select("a.tga *");
    os.windows.Expect(readOnlyOriginal_, Answer::Yes);
    ExpectReport();
    Pick("a.tga *", IDM_mnuScreenshotMakeJPEGAndKill);
    EXPECT_FALSE(Exists("a.tga"));
}

TEST_F(ShotConversionTest, AnOriginalThatAnotherProgramHoldsStaysAndIsToldOf) {
    state.settings.Expert = 1;
    os.files.SetLocked(PathOf("a.tga"));
    os.windows.Expect(notKilled_, Answer::Ok);
    ExpectReport();
    Kill();
    EXPECT_TRUE(Exists("a.tga"));
    EXPECT_EQ(Contents("a.jpg"), jpg_);
}

TEST_F(ShotConversionTest, AnOriginalThatIsAnotherFileByNowStays) {
    state.settings.Expert = 1;
    AddFile("a.tga", Padded("written-by-the-game-since", 2'000'000));
    os.windows.Expect(notKilled_, Answer::Ok);
    ExpectReport();
    Kill();
    EXPECT_EQ(Contents("a.tga"), Padded("written-by-the-game-since", 2'000'000));
    EXPECT_EQ(Contents("a.jpg"), jpg_);
}

TEST_F(ShotConversionTest, AnOriginalThatHasGoneNeedsNoKillingAndItsPictureIsSaved) {
    state.settings.Expert = 1;
    os.files.Remove(PathOf("a.tga"));
    ExpectReport();
    Kill();
    EXPECT_EQ(Contents("a.jpg"), jpg_);
}

// ---- What cannot be made ----

TEST_F(ShotConversionTest, HalfAJpgIsNoneAndCostsNeitherTheOriginalNorAnOlderJpg) {
    state.settings.Expert = 1;
    AddJpg(PictureFile({640, 480}, "older"));
    os.images.SetSavesHalf();
    os.windows.Expect(notMade_, Answer::Ok);
    Kill();
    os.windows.Expect(notMade_, Answer::Ok);
    Keep();
    EXPECT_EQ(Contents("a.jpg"), PictureFile({640, 480}, "older"));
    EXPECT_THAT(Names(), ElementsAre("a.jpg", "a.tga", "a.zentar", "b.tga"));
}

TEST_F(ShotConversionTest, AFullDiskLeavesAnOlderJpg) {
    state.settings.Expert = 1;
    AddJpg();
    os.files.SetFreeSpace("C:\\", 5);
    os.windows.Expect(notMade_, Answer::Ok);
    Keep();
    EXPECT_EQ(Contents("a.jpg"), "older jpg");
    EXPECT_THAT(Names(), Not(Contains("zentar-jpg.tmp")));
}

TEST_F(ShotConversionTest, AProtectedScreenshotFolderIsToldOf) {
    os.files.SetWritingDenied(state.current.ScreenshotFolder);
    os.windows.Expect(notMade_, Answer::Ok);
    Keep();
    EXPECT_FALSE(Exists("a.jpg"));
    EXPECT_EQ(Selected(), "a.tga *");
}

TEST_F(ShotConversionTest, AJpgThatAnotherProgramHoldsIsToldOf) {
    state.settings.Expert = 1;
    AddJpg();
    os.files.SetLocked(PathOf("a.jpg"));
    os.windows.Expect(notMade_, Answer::Ok);
    Keep();
    os.files.SetLocked(PathOf("a.jpg"), false);
    EXPECT_EQ(Contents("a.jpg"), "older jpg");
}

TEST_F(ShotConversionTest, AFolderOfTheJpgsNameIsToldOf) {
    state.settings.Expert = 1;
    os.files.AddFolder(PathOf("a.jpg\\"));
    os.windows.Expect(notMade_, Answer::Ok);
    Keep();
}

TEST_F(ShotConversionTest, AShotWithoutAPictureIsToldOf) {
    AddFile("0.tga", "no picture");
    Refresh();
    Select("0.tga");
    os.windows.Expect(notMade_, Answer::Ok);
    Keep();
    EXPECT_FALSE(Exists("0.jpg"));
}

TEST_F(ShotConversionTest, WithoutMemoryForTheScratchFileTheShotItselfIsRead) {
    os.pictures.SetMemoryShort();
    ExpectReport();
    Keep();
    EXPECT_EQ(Contents("a.jpg"), jpg_);
    EXPECT_TRUE(os.log.Has("NViewLibLoad " + PathOf("a.tga")));
}

// ---- The picture's own menu ----

TEST_F(ShotConversionTest, FromThePictureTheShotOnTheScreenIsConverted) {
    ExpectReport();
    PickOnPicture(IDM_mnuScreenshotMakeJPEGOnly);
    EXPECT_EQ(Contents("a.jpg"), jpg_);
}

TEST_F(ShotConversionTest, TheMessagesNameTheGame) {
    state.settings.Game = std::string(kQuake3);
    os.files.SetWritingDenied(state.current.ScreenshotFolder);
    os.windows.Expect(Critical("JPG version could not be made for some reason.\r\n"
                               "This is most probably due to a lack of available disk space,\r\n"
                               "and the original image still remains in its Quake3 sub-folder."),
                      Answer::Ok);
    Keep();
}

TEST_F(ShotConversionTest, AModPickedMeanwhileKeepsItsListAndTheReportStillComes) {
    os.windows.Expect(kill_, Answer::Yes);
    ExpectReport();
    form->SetPopupUser([this](int) {
        DuringPumpNumber(1, [this] { UseMod("rocket"); });
        form->UserPickMenu(IDM_mnuScreenshotMakeJPEGAndKill);
    });
    RightClick("a.tga *");
    EXPECT_THAT(Listed(), ElementsAre());
    EXPECT_THAT(Names("C:\\Quake2\\ctf\\scrnshot\\"), ElementsAre("a.jpg", "a.zentar", "b.tga"));
}

}  // namespace
}  // namespace zentar
