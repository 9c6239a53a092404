// Copying and moving demos to the Remote Folder.

#include <gmock/gmock.h>

#include "core/text.h"
#include "tests/unit/demos/demos_tab_fixture.h"

namespace zentar {
namespace {

using samples::DemoKind;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kRemote = "D:\\Remote\\";

class DemoTransferTest : public DemosTabTest {
  protected:
    DemoTransferTest() {
        Use(kQuake2, "rocket");
        AddDemo("duel.dm2", DemoKind::Dm2, {.map = "q2dm1", .levelName = "The Edge"});
        AddDemo("other.dm2", DemoKind::Dm2, {.map = "q2dm2", .levelName = "Tokay's Towers"});
        bytes_ = os.files.Contents(PathOf("duel.dm2"));
        tab->RefreshDemoList();
        state.settings.Expert = 1;
    }

    void UseRemote(const std::string& folder) {
        state.settings.Remote = folder;
        os.files.AddFolder(folder);
    }

    void Copy() { Pick("duel", IDM_mnuDemosCopy); }
    void Move() { Pick("duel", IDM_mnuDemosMove); }
    bool IsHere() { return os.files.Exists(PathOf("duel.dm2")); }
    std::string There() { return os.files.Contents(state.settings.Remote + "duel.dm2"); }

    std::string bytes_;
};

TEST_F(DemoTransferTest, ACopyIsThereTheDemoStaysAndABeepSaysSo) {
    Copy();
    EXPECT_EQ(There(), bytes_);
    EXPECT_TRUE(IsHere());
    EXPECT_THAT(os.files.Names(kRemote), ElementsAre("duel.dm2"));
    EXPECT_EQ(Selected(), "duel");
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
}

TEST_F(DemoTransferTest, AMovedDemoIsThereAndNoLongerHere) {
    Move();
    EXPECT_EQ(There(), bytes_);
    EXPECT_FALSE(IsHere());
    EXPECT_THAT(Listed(), ElementsAre("other"));
    EXPECT_EQ(Selected(), "");
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
}

TEST_F(DemoTransferTest, OnOneDriveAMoveOnlyRenames) {
    UseRemote("C:\\Best\\");
    os.files.SetFreeSpace("C:\\", 0);
    Move();
    EXPECT_EQ(There(), bytes_);
    EXPECT_FALSE(IsHere());
    EXPECT_EQ(os.log.Count("FreeSpace C:\\"), 0U);
}

TEST_F(DemoTransferTest, TheCaseOfTheDriveDoesNotMatter) {
    UseRemote("c:\\best\\");
    os.files.SetFreeSpace("C:\\", 0);
    Move();
    EXPECT_EQ(There(), bytes_);
}

TEST_F(DemoTransferTest, BothAreAskedForUnlessInExpertMode) {
    state.settings.Expert = 0;
    os.windows.Expect(Confirm("Really copy this demo to this folder?"), Answer::No);
    Copy();
    os.windows.Expect(Confirm("Really move this demo to this folder?"), Answer::No);
    Move();
    EXPECT_THAT(os.files.Names(kRemote), IsEmpty());
    os.windows.Expect(Confirm("Really move this demo to this folder?"), Answer::Yes);
    Move();
    EXPECT_EQ(There(), bytes_);
}

TEST_F(DemoTransferTest, AnInvalidRemoteFolderIsToldBeforeAnythingElse) {
    state.settings.Remote = "D:\\Gone\\";
    state.settings.Expert = 0;
    os.windows.Expect({"Folder Error",
                       "Your Remote Folder selection is invalid!\r\n\r\nZentar can't carry out "
                       "the requested task.\r\nPlease select \"Preferences...\" from the\r\n"
                       "\"Program\" menu and select a new Remote\r\nFolder, and then try this "
                       "function again.",
                       MessageIcon::Exclamation});
    Move();
    EXPECT_TRUE(IsHere());
}

TEST_F(DemoTransferTest, WithoutRoomADemoIsRefusedBeforeTheQuestion) {
    state.settings.Expert = 0;
    AddDemo("duel.dm2", DemoKind::Dm2, {.size = 1'204'311});
    const std::string size = GroupDigits(os.files.Contents(PathOf("duel.dm2")).size(), ",");
    os.files.SetFreeSpace("D:\\", 1'000'000);
    const auto refused = [&size](const std::string& verb) {
        return Failure("No space on your D drive to " + verb +
                       " this demo!\r\n\r\nDemo's file size (bytes):\t" + size +
                       "\r\nDisk space free (bytes):\t1,000,000");
    };
    os.windows.Expect(refused("copy"));
    Copy();
    os.windows.Expect(refused("move"));
    Move();
    EXPECT_THAT(os.files.Names(kRemote), IsEmpty());
}

TEST_F(DemoTransferTest, AFullDriveHasZeroBytes) {
    os.files.SetFreeSpace("D:\\", 0);
    os.windows.Expect(
        Failure("No space on your D drive to copy this demo!\r\n\r\n"
                "Demo's file size (bytes):\t" +
                GroupDigits(bytes_.size(), ",") + "\r\nDisk space free (bytes):\t0"));
    Copy();
}

TEST_F(DemoTransferTest, JustEnoughRoomIsEnough) {
    os.files.SetFreeSpace("D:\\", bytes_.size());
    Copy();
    EXPECT_EQ(There(), bytes_);
}

TEST_F(DemoTransferTest, ADemoThatIsThereIsOverwrittenOnlyOnYesAndInExpertModeTooAsked) {
    os.files.AddFile(kRemote + "duel.dm2", "old");
    const Message overwrite = Confirm("Demo already exists in Remote Folder -- Overwrite?");
    for (const int command : {IDM_mnuDemosCopy, IDM_mnuDemosMove}) {
        os.windows.Expect(overwrite, Answer::No);
        Pick("duel", command);
        EXPECT_EQ(There(), "old");
        EXPECT_TRUE(IsHere());
    }
    os.windows.Expect(overwrite, Answer::Yes);
    Copy();
    EXPECT_EQ(There(), bytes_);
    os.files.AddFile(kRemote + "duel.dm2", "old");
    os.windows.Expect(overwrite, Answer::Yes);
    Move();
    EXPECT_EQ(There(), bytes_);
    EXPECT_FALSE(IsHere());
}

TEST_F(DemoTransferTest, OnOneDriveToo) {
    UseRemote("C:\\Best\\");
    os.files.AddFile("C:\\Best\\duel.dm2", "old");
    os.windows.Expect(Confirm("Demo already exists in Remote Folder -- Overwrite?"), Answer::Yes);
    Move();
    EXPECT_EQ(There(), bytes_);
    EXPECT_FALSE(IsHere());
    EXPECT_THAT(os.files.Names("C:\\Best\\"), ElementsAre("duel.dm2"));
}

TEST_F(DemoTransferTest, AReadOnlyDemoThatIsThereIsAskedAboutToo) {
    os.files.AddFile(kRemote + "duel.dm2", "old");
    os.files.SetReadOnly(kRemote + "duel.dm2");
    const Message overwrite = Confirm("Demo already exists in Remote Folder -- Overwrite?");
    const Message readOnly = ReadOnlyQuestion(
        "Can't overwrite existing demo due to it being read-only.\r\n"
        "Would you like me to remove this setting to force the overwrite?");
    os.windows.Expect(overwrite, Answer::Yes);
    os.windows.Expect(readOnly, Answer::No);
    Copy();
    EXPECT_EQ(There(), "old");
    EXPECT_TRUE(os.files.IsReadOnly(kRemote + "duel.dm2"));
    os.windows.Expect(overwrite, Answer::Yes);
    os.windows.Expect(readOnly, Answer::Yes);
    Copy();
    EXPECT_EQ(There(), bytes_);
}

TEST_F(DemoTransferTest, AReadOnlyDemoIsDeletedAfterItsCopyOnlyOnYes) {
    os.files.SetReadOnly(PathOf("duel.dm2"));
    const Message readOnly = ReadOnlyQuestion(
        "This demo couldn't be deleted due to being set as read-only.\r\n"
        "Would you like me to remove this setting to force the deletion?");
    os.windows.Expect(readOnly, Answer::No);
    Move();
    EXPECT_EQ(There(), bytes_);
    EXPECT_TRUE(IsHere());
    EXPECT_EQ(Selected(), "duel");
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
    os.files.ClearAttributes(kRemote + "duel.dm2").Ok();
    os.windows.Expect(Confirm("Demo already exists in Remote Folder -- Overwrite?"), Answer::Yes);
    os.windows.Expect(readOnly, Answer::Yes);
    Move();
    EXPECT_FALSE(IsHere());
}

TEST_F(DemoTransferTest, ARemoteFolderThatIsTheDemosOwnLosesNothing) {
    state.settings.Remote = state.current.DemoFolder;
    const Message overwrite = Confirm("Demo already exists in Remote Folder -- Overwrite?");
    os.windows.Expect(overwrite, Answer::Yes);
    Copy();
    os.windows.Expect(overwrite, Answer::Yes);
    Move();
    EXPECT_EQ(os.files.Contents(PathOf("duel.dm2")), bytes_);
    EXPECT_EQ(Names().size(), 2U);
}

TEST_F(DemoTransferTest, NorDoesOneThatIsItUnderAnotherName) {
    os.files.AddDriveFor("S:\\", state.current.DemoFolder);
    state.settings.Remote = "S:\\";
    os.windows.Expect(Confirm("Demo already exists in Remote Folder -- Overwrite?"), Answer::Yes);
    Move();
    EXPECT_EQ(os.files.Contents(PathOf("duel.dm2")), bytes_);
    EXPECT_EQ(Names().size(), 2U);
}

TEST_F(DemoTransferTest, ADemoThatVanishedIsToldAndLeavesTheList) {
    for (const int command : {IDM_mnuDemosCopy, IDM_mnuDemosMove}) {
        AddDemo("duel.dm2", bytes_);
        tab->RefreshDemoList();
        os.windows.Expect(Failure("This demo is no longer in its folder."));
        form->SetPopupUser([this, command](int) {
            os.files.Remove(PathOf("duel.dm2"));
            form->UserPickMenu(command);
        });
        RightClick("duel");
        EXPECT_THAT(Listed(), ElementsAre("other"));
        EXPECT_THAT(os.files.Names(kRemote), IsEmpty());
    }
}

TEST_F(DemoTransferTest, AFolderUnpluggedBetweenTestAndCopyIsTold) {
    state.settings.Expert = 0;
    os.windows.Expect(Confirm("Really copy this demo to this folder?"), Answer::Yes,
                      [this] { os.files.RemoveDrive("D:\\"); });
    os.windows.Expect(
        Critical("Demo could not be copied to Remote Folder for some reason.\r\n"
                 "This is most probably due to a lack of available disk space."));
    Copy();
    os.files.AddDrive("D:\\", 1'000'000'000);
    os.files.AddFolder(kRemote);
    os.windows.Expect(Confirm("Really move this demo to this folder?"), Answer::Yes,
                      [this] { os.files.RemoveDrive("D:\\"); });
    os.windows.Expect(
        Critical("Demo could not be moved to Remote Folder for some reason.\r\n"
                 "This is most probably due to a lack of available disk space,\r\n"
                 "and the original demo still remains in its rocket sub-folder."));
    Move();
    EXPECT_TRUE(IsHere());
}

TEST_F(DemoTransferTest, ALockedDemoIsNotMovedAndStaysWhole) {
    os.files.SetLocked(PathOf("duel.dm2"));
    os.windows.Expect(
        Critical("Demo could not be moved to Remote Folder for some reason.\r\n"
                 "This is most probably due to a lack of available disk space,\r\n"
                 "and the original demo still remains in its rocket sub-folder."));
    Move();
    EXPECT_TRUE(IsHere());
    EXPECT_THAT(os.files.Names(kRemote), IsEmpty());
}

TEST_F(DemoTransferTest, ADemoClickedMeanwhileStaysSelected) {
    form->SetPopupUser([this](int) {
        DuringNextPump([this] { form->UserSelect(IDC_lstDemos, "other"); });
        form->UserPickMenu(IDM_mnuDemosMove);
    });
    RightClick("duel");
    EXPECT_EQ(There(), bytes_);
    EXPECT_EQ(Selected(), "other");
}

TEST_F(DemoTransferTest, ACommandAskedForDuringAnotherIsNotRun) {
    form->SetPopupUser([this](int) {
        DuringNextPump([this] {
            form->GetListBox(IDC_lstDemos).SetFocus();
            form->UserKey(Key::Delete);
        });
        form->UserPickMenu(IDM_mnuDemosCopy);
    });
    RightClick("duel");
    EXPECT_TRUE(IsHere());
    EXPECT_EQ(There(), bytes_);
}

TEST_F(DemoTransferTest, EachQuake3DemoGoesUnderItsOwnExtension) {
    UseQuake3Demos();
    Pick("duel ", IDM_mnuDemosCopy);
    Pick("duel  ", IDM_mnuDemosMove);
    EXPECT_THAT(os.files.Names(kRemote), ElementsAre("duel.dm_48", "duel.dm_66"));
    EXPECT_THAT(Names(), ElementsAre("duel.dm3", "duel.dm_48"));
}

TEST_F(DemoTransferTest, AHalfCopyIsDeletedAndTheDemoStays) {
    os.files.SetCopiesStopHalfWay();
    os.files.AddFile(kRemote + "duel.dm2", "old");
    const Message overwrite = Confirm("Demo already exists in Remote Folder -- Overwrite?");
    os.windows.Expect(overwrite, Answer::Yes);
    os.windows.Expect(
        Critical("Demo could not be completely copied\r\n"
                 "The partial copy has been deleted as a result."));
    Copy();
    os.windows.Expect(overwrite, Answer::Yes);
    os.windows.Expect(
        Critical("Demo could not be completely moved\r\n"
                 "The partial move has been deleted and the original demo remains in its\r\n"
                 "rocket sub-folder."));
    Move();
    EXPECT_EQ(os.files.Contents(PathOf("duel.dm2")), bytes_);
    EXPECT_EQ(There(), "old");
    EXPECT_THAT(os.files.Names(kRemote), ElementsAre("duel.dm2"));
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(DemoTransferTest, AnOriginalThatCannotBeDeletedIsTold) {
    os.files.SetWritingDenied(state.current.DemoFolder);
    os.windows.Expect(
        Critical("Demo was copied to Remote Folder, but could not be deleted\r\n"
                 "and so the original demo still remains in its rocket sub-folder."));
    Move();
    EXPECT_EQ(There(), bytes_);
    EXPECT_TRUE(IsHere());
    EXPECT_EQ(Selected(), "duel");
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(DemoTransferTest, ADemoRecordedInItsPlaceMeanwhileIsNotDeleted) {
    const std::string recorded = samples::MakeDemo(DemoKind::Dm2, {.levelName = "A new one"});
    os.files.SetReadOnly(PathOf("duel.dm2"));
    os.windows.Expect(
        ReadOnlyQuestion("This demo couldn't be deleted due to being set as read-only.\r\n"
                         "Would you like me to remove this setting to force the deletion?"),
        Answer::Yes, [&] { AddDemo("duel.dm2", recorded); });
    os.windows.Expect(
        Critical("Demo was copied to Remote Folder, but could not be deleted\r\n"
                 "and so the original demo still remains in its rocket sub-folder."));
    Move();
    EXPECT_EQ(There(), bytes_);
    EXPECT_EQ(os.files.Contents(PathOf("duel.dm2")), recorded);
}

TEST_F(DemoTransferTest, ADemoThatCameToTheFreePlaceIsNotDeleted) {
    UseRemote("C:\\Best\\");
    form->SetPopupUser([this](int) {
        DuringPumpNumber(2, [this] { os.files.AddFile(PathOf("duel.dm2"), "another demo"); });
        form->UserPickMenu(IDM_mnuDemosMove);
    });
    RightClick("duel");
    EXPECT_EQ(There(), bytes_);
    EXPECT_EQ(os.files.Contents(PathOf("duel.dm2")), "another demo");
}

TEST_F(DemoTransferTest, AFileThatIsNoDemoIsCopiedWithoutBeingAskedAboutAgain) {
    AddDemo("list.dm2", "bread and butter");
    tab->RefreshDemoList();
    os.windows.Expect(Offer("Quake2"), Answer::No);
    Pick("list", IDM_mnuDemosCopy);
    EXPECT_EQ(os.files.Contents(kRemote + "list.dm2"), "bread and butter");
}

TEST_F(DemoTransferTest, ARemoteFolderMayBeTypedWithSlashes) {
    state.settings.Remote = "D:/Remote/";
    os.files.SetFreeSpace("D:\\", 10);
    os.windows.Expect(
        Failure("No space on your D drive to move this demo!\r\n\r\n"
                "Demo's file size (bytes):\t" +
                GroupDigits(bytes_.size(), ",") + "\r\nDisk space free (bytes):\t10"));
    Move();
    EXPECT_TRUE(IsHere());
    state.settings.Remote = "c:/Best/";
    os.files.AddFolder("C:\\Best\\");
    Move();
    EXPECT_EQ(os.files.Contents("C:\\Best\\duel.dm2"), bytes_);
}

}  // namespace
}  // namespace zentar
