// Copying and moving shots to the Remote Folder.

#include "tests/unit/screenshots/shots_tab_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kRemote = "D:\\Remote\\";

class ShotTransferTest : public ShotsTabTest {
  protected:
    ShotTransferTest() {
        AddShot("a.tga");
        AddShot("b.tga");
        bytes_ = Contents("a.tga");
        Refresh();
        Select("a.tga");
        state.settings.Expert = 1;
        os.log.Clear();
    }

    void UseRemote(const std::string& folder) {
        state.settings.Remote = folder;
        os.files.AddFolder(folder);
    }

    void Copy() { Pick("a.tga *", IDM_mnuScreenshotCopy); }
    void Move() { Pick("a.tga *", IDM_mnuScreenshotMove); }
    std::string There() { return os.files.Contents(state.settings.Remote + "a.tga"); }
    void PutThere(const std::string& bytes) {
        os.files.AddFile(state.settings.Remote + "a.tga", bytes);
    }

    void ExpectUntouched() {
        EXPECT_EQ(Contents("a.tga"), bytes_);
        EXPECT_EQ(Selected(), "a.tga *");
        EXPECT_EQ(Shown(), "a");
        EXPECT_THAT(os.windows.Sounds(), IsEmpty());
    }

    const Message overwrite_ = Confirm("Image already exists in Remote Folder -- Overwrite?");
    const Message readOnly_ = ReadOnlyQuestion(
        "Can't overwrite existing image due to it being read-only.\r\n"
        "Would you like me to remove this setting to force the overwrite?");
    const Message readOnlyOriginal_ = ReadOnlyQuestion(
        "Screenshot couldn't be deleted due to being set as read-only.\r\n"
        "Would you like me to remove this setting to force the deletion?");
    const Message notMoved_ = Critical(
        "Image could not be moved to Remote Folder for some reason.\r\n"
        "This is most probably due to a lack of available disk space,\r\n"
        "and the original image still remains in its Quake2 sub-folder.");
    const Message notCopied_ = Critical(
        "Image could not be copied to Remote Folder for some reason.\r\n"
        "This is most probably due to a lack of available disk space.");
    std::string bytes_;
};

// ---- Copy ----

TEST_F(ShotTransferTest, ACopyIsThereTheShotStaysAsItIsAndABeepSaysSo) {
    state.settings.Expert = 0;  // a copy is not asked for
    Copy();
    EXPECT_EQ(There(), bytes_);
    EXPECT_THAT(Names(), ElementsAre("a.tga", "a.zentar", "b.tga"));
    EXPECT_THAT(Names(kRemote), ElementsAre("a.tga"));  // without its preview
    EXPECT_EQ(Selected(), "a.tga *");
    EXPECT_EQ(Shown(), "a");
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
    EXPECT_FALSE(os.log.Has("Enumerate " + state.current.ScreenshotFolder));
}

TEST_F(ShotTransferTest, TheHourglassIsThereBeforeMessagesAreHandled) {
    Copy();
    EXPECT_TRUE(os.log.Ordered(
        {"OpenForWriting D:\\Remote\\zentar.tmp", "Delete D:\\Remote\\zentar.tmp", "FreeSpace d:\\",
         "Pointer Hourglass", "Pump", "Copy " + PathOf("a.tga") + " -> D:\\Remote\\zentar-copy.tmp",
         "Pointer Default", "Sound Information"}));
}

TEST_F(ShotTransferTest, AShotThatWasNotDecodedIsCopiedToo) {
    AddFile("0.tga", "no picture");
    Refresh();
    Pick("0.tga", IDM_mnuScreenshotCopy);
    EXPECT_EQ(os.files.Contents(kRemote + "0.tga"), "no picture");
}

// ---- Move ----

TEST_F(ShotTransferTest, OnOneDriveAMoveOnlyRenamesAndLeavesThePreview) {
    UseRemote("c:\\best\\");
    os.files.SetFreeSpace("C:\\", 0);
    Move();
    EXPECT_EQ(There(), bytes_);
    EXPECT_THAT(Names(), ElementsAre("a.zentar", "b.tga"));
    EXPECT_THAT(Names("C:\\best\\"), ElementsAre("a.tga"));
    EXPECT_THAT(Listed(), ElementsAre("b.tga"));
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(os.log.Count("FreeSpace c:\\"), 0U);
    EXPECT_TRUE(os.log.Has("Rename " + PathOf("a.tga") + " -> c:\\best\\a.tga"));
    EXPECT_TRUE(
        os.log.Ordered({"Enumerate " + state.current.ScreenshotFolder, "Sound Information"}));
}

TEST_F(ShotTransferTest, ToAnotherDriveAMoveCopiesAndLeavesTheOriginal) {
    Move();
    EXPECT_EQ(There(), bytes_);
    EXPECT_THAT(Names(), ElementsAre("a.tga", "a.zentar", "b.tga"));
    EXPECT_THAT(Names(kRemote), ElementsAre("a.tga"));
    EXPECT_THAT(Listed(), ElementsAre("a.tga *", "b.tga"));
    EXPECT_EQ(Selected(), "");
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
}

TEST_F(ShotTransferTest, OnlyAMoveIsAskedForAndNotInExpertMode) {
    state.settings.Expert = 0;
    const Message move = Confirm("Really move this image to this folder?\r\nD:\\Remote\\");
    os.windows.Expect(move, Answer::No);
    Move();
    ExpectUntouched();
    EXPECT_THAT(Names(kRemote), IsEmpty());
    os.windows.Expect(move, Answer::Yes);
    Move();
    EXPECT_EQ(There(), bytes_);
}

TEST_F(ShotTransferTest, AShotThatAProgramHoldsIsNotMovedAndToldOf) {
    UseRemote("C:\\best\\");
    os.files.SetLocked(PathOf("a.tga"));
    os.windows.Expect(notMoved_, Answer::Ok);
    Move();
    os.files.SetLocked(PathOf("a.tga"), false);
    ExpectUntouched();
    EXPECT_THAT(Names("C:\\best\\"), IsEmpty());
}

// ---- What is in the way ----

TEST_F(ShotTransferTest, AnExistingImageIsOverwrittenOnlyOnYesAlsoInExpertMode) {
    PutThere("old");
    for (const int command : {IDM_mnuScreenshotCopy, IDM_mnuScreenshotMove}) {
        os.windows.Expect(overwrite_, Answer::No);
        Pick("a.tga *", command);
        EXPECT_EQ(There(), "old");
        ExpectUntouched();
    }
    os.windows.Expect(overwrite_, Answer::Yes);
    Copy();
    EXPECT_EQ(There(), bytes_);
    PutThere("old");
    os.windows.Expect(overwrite_, Answer::Yes);
    Move();
    EXPECT_EQ(There(), bytes_);
}

TEST_F(ShotTransferTest, OutsideExpertModeAMoveAsksBothInTheirOrder) {
    state.settings.Expert = 0;
    PutThere("old");
    os.windows.Expect(Confirm("Really move this image to this folder?\r\nD:\\Remote\\"),
                      Answer::Yes);
    os.windows.Expect(overwrite_, Answer::No);
    Move();
    EXPECT_EQ(There(), "old");
}

TEST_F(ShotTransferTest, AReadOnlyImageAsksOnceMore) {
    PutThere("old");
    os.files.SetReadOnly(kRemote + "a.tga");
    os.windows.Expect(overwrite_, Answer::Yes);
    os.windows.Expect(readOnly_, Answer::No);
    Copy();
    EXPECT_EQ(There(), "old");
    EXPECT_TRUE(os.files.IsReadOnly(kRemote + "a.tga"));
    os.windows.Expect(overwrite_, Answer::Yes);
    os.windows.Expect(readOnly_, Answer::Yes);
    Copy();
    EXPECT_EQ(There(), bytes_);
}

TEST_F(ShotTransferTest, AMoveOverAnExistingImageOnOneDriveTakesTheOriginalAway) {
    UseRemote("C:\\best\\");
    PutThere("old");
    os.windows.Expect(overwrite_, Answer::Yes);
    Move();
    EXPECT_EQ(There(), bytes_);
    EXPECT_THAT(Names(), ElementsAre("a.zentar", "b.tga"));
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
}

TEST_F(ShotTransferTest, ThereAReadOnlyOriginalGoesOnlyOnYes) {
    UseRemote("C:\\best\\");
    PutThere("old");
    os.files.SetReadOnly(PathOf("a.tga"));
    os.windows.Expect(overwrite_, Answer::Yes);
    os.windows.Expect(readOnlyOriginal_, Answer::No);
    Move();
    EXPECT_EQ(Contents("a.tga"), bytes_);
    EXPECT_EQ(There(), bytes_);
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(ShotTransferTest, AnOriginalThatCannotBeDeletedThereIsToldOf) {
    UseRemote("C:\\best\\");
    PutThere("old");
    os.files.SetWritingDenied(state.current.ScreenshotFolder);
    os.windows.Expect(overwrite_, Answer::Yes);
    os.windows.Expect(Critical("Image was copied to Remote Folder, but could not be deleted\r\n"
                               "and so the original image still remains in its Quake2 sub-folder."),
                      Answer::Ok);
    Move();
    EXPECT_EQ(Contents("a.tga"), bytes_);
    EXPECT_EQ(There(), bytes_);
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(ShotTransferTest, AMoveOfAShotOntoItselfKeepsIt) {
    state.settings.Remote = state.current.ScreenshotFolder;
    os.windows.Expect(overwrite_, Answer::Yes);
    Move();
    EXPECT_EQ(Contents("a.tga"), bytes_);
    os.files.AddDriveFor("S:\\", state.current.ScreenshotFolder);
    state.settings.Remote = "S:\\";
    os.windows.Expect(overwrite_, Answer::Yes);
    Move();
    EXPECT_EQ(Contents("a.tga"), bytes_);
}

// ---- Room ----

TEST_F(ShotTransferTest, WithoutRoomAShotIsRefusedBeforeTheQuestion) {
    state.settings.Expert = 0;
    os.files.AddHugeFile(PathOf("big.tga"), 1'204'311, 0, bytes_);
    Refresh();
    os.files.SetFreeSpace("D:\\", 1'000'000);
    const auto refused = [](const std::string& verb) {
        return Failure("No space on your D drive to " + verb +
                       " this shot!\r\n\r\nShot's file size (bytes):\t1,204,311\r\n"
                       "Disk space free (bytes):\t1,000,000");
    };
    os.windows.Expect(refused("copy"), Answer::Ok);
    Pick("big.tga", IDM_mnuScreenshotCopy);
    os.windows.Expect(refused("move"), Answer::Ok);
    Pick("big.tga *", IDM_mnuScreenshotMove);
    EXPECT_THAT(Names(kRemote), IsEmpty());
}

TEST_F(ShotTransferTest, AFullDriveHasZeroBytesAndJustEnoughIsEnough) {
    os.files.SetFreeSpace("D:\\", 0);
    os.windows.Expect(Failure("No space on your D drive to copy this shot!\r\n\r\n"
                              "Shot's file size (bytes):\t18\r\nDisk space free (bytes):\t0"),
                      Answer::Ok);
    Copy();
    os.files.SetFreeSpace("D:\\", 18);
    Copy();
    EXPECT_EQ(There(), bytes_);
}

TEST_F(ShotTransferTest, ACopyOnOneDriveNeedsRoomToo) {
    UseRemote("C:\\best\\");
    os.files.SetFreeSpace("C:\\", 17);
    os.windows.Expect(Failure("No space on your C drive to copy this shot!\r\n\r\n"
                              "Shot's file size (bytes):\t18\r\nDisk space free (bytes):\t17"),
                      Answer::Ok);
    Copy();
    EXPECT_THAT(Names("C:\\best\\"), IsEmpty());
}

// ---- What fails ----

TEST_F(ShotTransferTest, AnInvalidRemoteFolderIsToldBeforeAnythingElse) {
    state.settings.Remote = "D:\\Gone\\";
    state.settings.Expert = 0;
    const Message invalid = {
        "Folder Error",
        "Your Remote Folder selection is invalid!\r\n\r\nZentar can't carry out the requested "
        "task.\r\nPlease select \"Preferences...\" from the\r\n\"Program\" menu and select a new "
        "Remote\r\nFolder, and then try this function again.",
        MessageIcon::Exclamation};
    os.windows.Expect(invalid, Answer::Ok);
    Copy();
    os.windows.Expect(invalid, Answer::Ok);
    Move();
    ExpectUntouched();
}

TEST_F(ShotTransferTest, AShotThatVanishedIsToldOfAndTheListIsMadeNew) {
    os.files.Remove(PathOf("a.tga"));
    os.windows.Expect(Failure("This screenshot is no longer in its folder."), Answer::Ok);
    Copy();
    EXPECT_THAT(Listed(), ElementsAre("b.tga"));
    EXPECT_EQ(Shown(), "");
}

TEST_F(ShotTransferTest, ACopyThatDoesNotComeAboutIsToldOf) {
    os.files.SetReadingDenied(PathOf("a.tga"));
    os.windows.Expect(notCopied_, Answer::Ok);
    Copy();
    os.windows.Expect(notMoved_, Answer::Ok);
    Move();
    os.files.SetReadingDenied(PathOf("a.tga"), false);
    ExpectUntouched();
    EXPECT_THAT(Names(kRemote), IsEmpty());
}

TEST_F(ShotTransferTest, HalfACopyIsDeletedAndToldOf) {
    os.files.SetCopiesStopHalfWay();
    os.windows.Expect(Critical("Image could not be completely copied to Remote Folder for some "
                               "reason.\r\nThe partial copy has been deleted as a result."),
                      Answer::Ok);
    Copy();
    os.windows.Expect(Critical("Image could not be completely moved to Remote Folder for some "
                               "reason.\r\nThe partial move has been deleted and the original "
                               "image remains in its\r\nQuake2 sub-folder."),
                      Answer::Ok);
    Move();
    ExpectUntouched();
    EXPECT_THAT(Names(kRemote), IsEmpty());
}

TEST_F(ShotTransferTest, HalfACopyDoesNotCostTheImageThatWasThere) {
    PutThere("old");
    os.files.SetCopiesStopHalfWay();
    os.windows.Expect(overwrite_, Answer::Yes);
    os.windows.Expect(Critical("Image could not be completely copied to Remote Folder for some "
                               "reason.\r\nThe partial copy has been deleted as a result."),
                      Answer::Ok);
    Copy();
    EXPECT_EQ(There(), "old");
}

TEST_F(ShotTransferTest, TheMessagesNameTheGame) {
    state.settings.Game = std::string(kQuake1);
    os.files.SetReadingDenied(PathOf("a.tga"));
    os.windows.Expect(Critical("Image could not be moved to Remote Folder for some reason.\r\n"
                               "This is most probably due to a lack of available disk space,\r\n"
                               "and the original image still remains in its Quake1 sub-folder."),
                      Answer::Ok);
    Move();
}

// ---- What happens meanwhile ----

TEST_F(ShotTransferTest, AModPickedMeanwhileKeepsItsListAndTheShotIsStillCarried) {
    UseRemote("C:\\best\\");
    form->SetPopupUser([this](int) {
        DuringPumpNumber(1, [this] { UseMod("rocket"); });
        form->UserPickMenu(IDM_mnuScreenshotMove);
    });
    RightClick("a.tga *");
    EXPECT_EQ(There(), bytes_);
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_THAT(Names("C:\\Quake2\\ctf\\scrnshot\\"), ElementsAre("a.zentar", "b.tga"));
}

TEST_F(ShotTransferTest, ASecondCommandGivenMeanwhileIsNotCarriedOut) {
    form->SetPopupUser([this](int) {
        DuringPumpNumber(1, [this] { Press(Key::Delete); });
        form->UserPickMenu(IDM_mnuScreenshotCopy);
    });
    RightClick("a.tga *");
    EXPECT_EQ(There(), bytes_);
    EXPECT_TRUE(Exists("a.tga"));
}

}  // namespace
}  // namespace zentar
