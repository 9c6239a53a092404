// Playing demos: command lines, old executables, hidden packs.

#include <gmock/gmock.h>

#include "tests/unit/demos/demos_tab_fixture.h"
#include "tests/unit/expected_boxes.h"

namespace zentar {
namespace {

using samples::DemoKind;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kBase = "C:\\Games\\Quake3\\baseq3\\";

class DemoPlay : public DemosTabTest {
  protected:
    DemoPlay() { state.settings.Expert = 1; }

    void UseQuake3() {
        UseQuake3Demos("osp");
        AddExecutable("quake3-117.exe", 852'025);
        AddExecutable("quake3-127h.exe", 880'640);
        for (const char* pak : {"pak0.pk3", "pak4.pk3", "pak5.pk3", "pak6.pk3"}) {
            os.files.AddFile(kBase + pak, pak);
        }
    }

    void AddExecutable(const std::string& name, std::uint64_t length) {
        os.files.AddHugeFile(state.current.CurrentGameFolder + name, length, 0, "");
    }

    void ExpectStart(const std::string& executable, const std::string& arguments,
                     Status result = {}) {
        os.shell.ExpectStart({state.current.CurrentGameFolder, executable, arguments}, result);
    }

    std::vector<std::string> Paks() { return os.files.Names(kBase); }
    bool Watching() { return form->GetTimer(IDC_tmrQ3Game).Enabled(); }
    void Tick() { form->FireTimer(IDC_tmrQ3Game); }

    static Message OldGame(const std::string& version, const std::string& executable) {
        return Failure(
            "Zentar cannot play back this Quake 3 demo at this time.\r\n\r\nThis Q3 "
            "demo is of v" +
            version + "-compatible format, and thus you need\r\nthe v" + version +
            " Quake 3 executable to be in your Quake 3 folder to\r\nplay it.  Also, "
            "the executable must be named \"" +
            executable +
            "\".\r\n\r\nPlease visit " ZENTAR_WEB_SITE
            " to download\r\nthe executable (zipped format, file size is "
            "805 K), and try again.");
    }
};

TEST_F(DemoPlay, Quake1GetsTheModAndTheFileInQuotes) {
    Use(kQuake1, "rocket arena");
    AddDemo("final cut.dem", DemoKind::Dem, {});
    tab->RefreshDemoList();
    ExpectStart("glquake.exe", " -game rocket arena +playdemo \"final cut.dem\"");
    Pick("final cut", IDM_mnuDemosPlay);
}

TEST_F(DemoPlay, Quake2GetsTheModAndTheFileAsTheyAre) {
    Use(kQuake2, "ctf");
    AddDemo("final cut.dm2", DemoKind::Dm2, {});
    tab->RefreshDemoList();
    ExpectStart("quake2.exe", " +set game ctf +map final cut.dm2");
    Pick("final cut", IDM_mnuDemosPlay);
    EXPECT_FALSE(Watching());
}

TEST_F(DemoPlay, ACompressedDemoGetsTheNewestQuake3) {
    UseQuake3();
    ExpectStart("quake3.exe", " +set fs_game osp +demo \"duel\"");
    PressOn("duel  ", Key::Enter);
    EXPECT_FALSE(Watching());
}

TEST_F(DemoPlay, TheOldGenerationsGetTheirOldGames) {
    UseQuake3();
    ExpectStart("quake3-127h.exe", " +set fs_game osp +demo \"duel\"");
    Pick("duel ", IDM_mnuDemosPlay);
    EXPECT_FALSE(Watching());
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.pk3", "pak5.pk3", "pak6.pk3"));
    ExpectStart("quake3-117.exe", " +set fs_game osp +demo \"duel\"");
    Pick("duel", IDM_mnuDemosPlay);
    EXPECT_TRUE(Watching());
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.zentar", "pak5.zentar", "pak6.zentar"));
}

TEST_F(DemoPlay, EnterAndADoubleClickPlayToo) {
    Use(kQuake2, "ctf");
    AddDemo("duel.dm2", DemoKind::Dm2, {});
    tab->RefreshDemoList();
    ExpectStart("quake2.exe", " +set game ctf +map duel.dm2");
    PressOn("duel", Key::Enter);
    ExpectStart("quake2.exe", " +set game ctf +map duel.dm2");
    form->UserDoubleClick(IDC_lstDemos, 0);
}

TEST_F(DemoPlay, ADoubleClickPlaysByTheDemoItselfThoughItIsNotReadYet) {
    UseQuake3();
    Select("duel");
    ExpectStart("quake3-127h.exe", " +set fs_game osp +demo \"duel\"");
    DuringNextPump([this] { form->UserDoubleClick(IDC_lstDemos, IndexOf("duel ")); });
    Select("duel ");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: q3dm6");
}

TEST_F(DemoPlay, ADoubleClickOnAFileThatIsNoDemoOffersItOnce) {
    Use(kQuake2, "ctf");
    AddDemo("list.dm2", "bread and butter");
    tab->RefreshDemoList();
    os.windows.Expect(Offer("Quake2"), Answer::No);
    DuringNextPump([this] { form->UserDoubleClick(IDC_lstDemos, 0); });
    Select("list");
}

TEST_F(DemoPlay, WithNothingSelectedNothingIsPlayed) {
    Use(kQuake2, "ctf");
    form->GetListBox(IDC_lstDemos).SetFocus();
    tab->lstDemos_KeyDown(Key::Enter);
}

TEST_F(DemoPlay, OutsideExpertModeTheGameIsAskedFor) {
    state.settings.Expert = 0;
    UseQuake3();
    os.windows.Expect(Confirm("Really start Quake3 and play this demo?"), Answer::No);
    Pick("duel", IDM_mnuDemosPlay);
    EXPECT_FALSE(Watching());
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.pk3", "pak5.pk3", "pak6.pk3"));
    os.windows.Expect(Confirm("Really start Quake3 and play this demo?"), Answer::Yes);
    ExpectStart("quake3-117.exe", " +set fs_game osp +demo \"duel\"");
    Pick("duel", IDM_mnuDemosPlay);
}

TEST_F(DemoPlay, AMissingGameFolderIsToldFirst) {
    state.settings.Expert = 0;
    UseQuake3();
    os.files.Remove("C:\\Games\\Quake3\\quake3.exe");
    os.windows.Expect(FolderUnknown("Quake3"));
    Pick("duel", IDM_mnuDemosPlay);
}

TEST_F(DemoPlay, AnOldGameOfAnotherLengthOrNoneIsRefusedBeforeTheQuestion) {
    state.settings.Expert = 0;
    UseQuake3();
    for (const std::uint64_t length : {852'024, 852'026, 0}) {
        AddExecutable("quake3-117.exe", length);
        os.windows.Expect(OldGame("1.17", "quake3-117.exe"));
        Pick("duel", IDM_mnuDemosPlay);
    }
    os.files.Remove("C:\\Games\\Quake3\\quake3-127h.exe");
    os.windows.Expect(OldGame("1.27h", "quake3-127h.exe"));
    Pick("duel ", IDM_mnuDemosPlay);
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.pk3", "pak5.pk3", "pak6.pk3"));
    EXPECT_FALSE(Watching());
}

TEST_F(DemoPlay, ThePacksComeBackOnceTheGamesWindowIsGone) {
    UseQuake3();
    ExpectStart("quake3-117.exe", " +set fs_game osp +demo \"duel\"");
    Pick("duel", IDM_mnuDemosPlay);
    os.windows.SetWindowTitles({"Quake 3: Arena"});
    Tick();
    EXPECT_TRUE(Watching());
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.zentar", "pak5.zentar", "pak6.zentar"));
    os.windows.SetWindowTitles({"Quake 3: Arena console"});
    Tick();
    EXPECT_FALSE(Watching());
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.pk3", "pak5.pk3", "pak6.pk3"));
}

TEST_F(DemoPlay, OnlyPacksThatAreThereAreHiddenAndRestored) {
    UseQuake3();
    os.files.Remove(kBase + "pak5.pk3");
    os.files.Remove(kBase + "pak6.pk3");
    ExpectStart("quake3-117.exe", " +set fs_game osp +demo \"duel\"");
    Pick("duel", IDM_mnuDemosPlay);
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.zentar"));
    Tick();
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.pk3"));
}

TEST_F(DemoPlay, PacksLeftHiddenAreRestoredBeforeTheNewGameStarts) {
    UseQuake3();
    for (const char* pak : {"pak4", "pak5", "pak6"}) {
        ASSERT_TRUE(
            os.files.Rename(kBase + pak + ".pk3", kBase + std::string(pak) + ".zentar").Ok());
    }
    ExpectStart("quake3-127h.exe", " +set fs_game osp +demo \"duel\"");
    Pick("duel ", IDM_mnuDemosPlay);
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.zentar", "pak5.zentar", "pak6.zentar"));
    ExpectStart("quake3.exe", " +set fs_game osp +demo \"duel\"");
    PressOn("duel  ", Key::Enter);
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.pk3", "pak5.pk3", "pak6.pk3"));
    EXPECT_TRUE(os.log.Ordered({"Rename " + kBase + "pak6.zentar -> " + kBase + "pak6.pk3",
                                "StartProgram C:\\Games\\Quake3\\quake3.exe +set fs_game osp "
                                "+demo \"duel\""}));
}

TEST_F(DemoPlay, APackIsNeverRestoredOverANewerOne) {
    UseQuake3();
    os.files.AddFile(kBase + "pak4.zentar", "older");
    ExpectStart("quake3.exe", " +set fs_game osp +demo \"duel\"");
    PressOn("duel  ", Key::Enter);
    EXPECT_EQ(os.files.Contents(kBase + "pak4.zentar"), "older");
    EXPECT_EQ(os.files.Contents(kBase + "pak4.pk3"), "pak4.pk3");
}

TEST_F(DemoPlay, APackThatCannotBeHiddenKeepsTheGameFromStarting) {
    UseQuake3();
    os.files.SetLocked(kBase + "pak5.pk3");
    os.windows.Expect(
        Failure("Zentar cannot play back this Quake 3 demo at this time.\r\n\r\nThe file "
                "\"pak5.pk3\" must not be there while Quake 3\r\nv1.17 runs, and it couldn't be "
                "renamed.\r\n\r\nThe file may be in use, or its folder may be protected."));
    Pick("duel", IDM_mnuDemosPlay);
    EXPECT_FALSE(Watching());
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.pk3", "pak5.pk3", "pak6.pk3"));
}

TEST_F(DemoPlay, PacksComeBackToWhereTheyWereHiddenAfterAChangeOfFolder) {
    UseQuake3();
    ExpectStart("quake3-117.exe", " +set fs_game osp +demo \"duel\"");
    Pick("duel", IDM_mnuDemosPlay);
    state.games[2].BaseModPath = "D:\\Quake3\\baseq3\\";
    Tick();
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.pk3", "pak5.pk3", "pak6.pk3"));
}

TEST_F(DemoPlay, AGameThatDoesNotStartIsToldAndThePacksAreLeftToTheTimer) {
    UseQuake3();
    ExpectStart("quake3-117.exe", " +set fs_game osp +demo \"duel\"", FileError::Other);
    os.windows.Expect(
        Failure("Zentar couldn't start Quake3.\r\n\r\nPlease make sure that \"quake3-117.exe\" can "
                "be\r\nstarted from its folder, and try again."));
    Pick("duel", IDM_mnuDemosPlay);
    EXPECT_TRUE(Watching());
    Tick();
    EXPECT_FALSE(Watching());
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.pk3", "pak5.pk3", "pak6.pk3"));
}

TEST_F(DemoPlay, ADemoOfAnotherGameIsPlayedWhateverQuake3DemoWasReadLast) {
    UseQuake3();
    Select("duel");
    Use(kQuake2, "ctf");
    AddDemo("duel.dm2", DemoKind::Dm2, {});
    tab->RefreshDemoList();
    ExpectStart("quake2.exe", " +set game ctf +map duel.dm2");
    Pick("duel", IDM_mnuDemosPlay);
    EXPECT_FALSE(Watching());
}

TEST_F(DemoPlay, AFileThatIsNoDemoIsNotPlayedButOffered) {
    Use(kQuake2, "ctf");
    AddDemo("list.dm2", "bread and butter");
    tab->RefreshDemoList();
    os.windows.Expect(Offer("Quake2"), Answer::No);
    Select("list");
    os.windows.Expect(Offer("Quake2"), Answer::No);
    form->UserDoubleClick(IDC_lstDemos, 0);
    EXPECT_THAT(os.shell.Started(), IsEmpty());
}

TEST_F(DemoPlay, AVanishedOrUnreadableDemoIsNotPlayed) {
    Use(kQuake2, "ctf");
    AddDemo("a.dm2", DemoKind::Dm2, {});
    AddDemo("b.dm2", DemoKind::Dm2, {});
    os.files.SetLocked(PathOf("b.dm2"));
    tab->RefreshDemoList();
    os.windows.Expect(
        Failure("This demo can't be read at this time.\r\n\r\n"
                "The file may be in use, or its folder may be protected."));
    PressOn("b", Key::Enter);
    Select("a");
    os.files.Remove(PathOf("a.dm2"));
    os.windows.Expect(Failure("This demo is no longer in its folder."));
    form->GetListBox(IDC_lstDemos).SetFocus();
    form->UserKey(Key::Enter);
    EXPECT_THAT(Listed(), ElementsAre("b"));
}

TEST_F(DemoPlay, TheWatchBeginsAnewWithEachOldGame) {
    UseQuake3();
    for (int starts = 1; starts <= 2; ++starts) {
        ExpectStart("quake3-117.exe", " +set fs_game osp +demo \"duel\"");
        Pick("duel", IDM_mnuDemosPlay);
        EXPECT_EQ(form->TimerStarts(IDC_tmrQ3Game), starts);
    }
}

TEST_F(DemoPlay, AWatchGoesOnWhenTheNextOldGameCannotBePrepared) {
    UseQuake3();
    ExpectStart("quake3-117.exe", " +set fs_game osp +demo \"duel\"");
    Pick("duel", IDM_mnuDemosPlay);
    os.files.AddFile(kBase + "pak4.pk3", "reinstalled");
    os.windows.Expect(
        Failure("Zentar cannot play back this Quake 3 demo at this time.\r\n\r\nThe file "
                "\"pak4.pk3\" must not be there while Quake 3\r\nv1.17 runs, and it couldn't be "
                "renamed.\r\n\r\nThere already is a \"pak4.zentar\" beside it."));
    Pick("duel", IDM_mnuDemosPlay);
    EXPECT_TRUE(Watching());
    EXPECT_EQ(os.files.Contents(kBase + "pak4.pk3"), "reinstalled");
    EXPECT_EQ(os.files.Contents(kBase + "pak4.zentar"), "pak4.pk3");
}

TEST_F(DemoPlay, PacksComeBackToEveryFolderWhereTheyWereHidden) {
    UseQuake3();
    ExpectStart("quake3-117.exe", " +set fs_game osp +demo \"duel\"");
    Pick("duel", IDM_mnuDemosPlay);
    const std::string other = "D:\\Quake3\\baseq3\\";
    os.files.AddFile(other + "pak4.pk3", "other pak4");
    state.games[2].BaseModPath = other;
    state.current.CurrentBasePath = other;
    ExpectStart("quake3-117.exe", " +set fs_game osp +demo \"duel\"");
    Pick("duel", IDM_mnuDemosPlay);
    EXPECT_THAT(os.files.Names(other), ElementsAre("pak4.zentar"));
    Tick();
    EXPECT_THAT(os.files.Names(other), ElementsAre("pak4.pk3"));
    EXPECT_THAT(Paks(), ElementsAre("pak0.pk3", "pak4.pk3", "pak5.pk3", "pak6.pk3"));
}

TEST_F(DemoPlay, WhileAnotherModIsBeingShownNothingIsPlayed) {
    UseQuake3();
    Select("duel  ");
    state.current.DemoFolder = "C:\\Games\\Quake3\\baseq3\\demos\\";
    form->GetListBox(IDC_lstDemos).SetFocus();
    form->UserKey(Key::Enter);
    EXPECT_THAT(os.shell.Started(), IsEmpty());
}

}  // namespace
}  // namespace zentar
