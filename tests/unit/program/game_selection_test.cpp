#include "tests/unit/expected_boxes.h"
#include "tests/unit/program/program_test.h"

#include "core/game_folders.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GameSelectionTest : public ProgramTest {
  protected:
    GameSelectionTest() {
        InstallGames();
        WriteSettings({"Game=Quake2"});
    }

    void ExpectCurrent(int optionButton, int menuEntry) {
        for (const int id : {IDC_optGameQuake1, IDC_optGameQuake2, IDC_optGameQuake3}) {
            EXPECT_EQ(Window().GetOptionButton(id).Selected(), id == optionButton);
        }
        for (const int id : {IDM_mnuGameQuake1, IDM_mnuGameQuake2, IDM_mnuGameQuake3}) {
            EXPECT_EQ(Window().GetMenu(id).Checked(), id == menuEntry);
        }
    }
};

TEST_F(GameSelectionTest, AnOptionButtonAndItsMenuEntryDoTheSame) {
    Start();
    Window().UserClick(IDC_optGameQuake1);
    ExpectCurrent(IDC_optGameQuake1, IDM_mnuGameQuake1);
    EXPECT_THAT(Mods(), ElementsAre("ctf", "id1"));
    Window().UserPickMenu(IDM_mnuGameQuake3);
    ExpectCurrent(IDC_optGameQuake3, IDM_mnuGameQuake3);
    EXPECT_THAT(Mods(), ElementsAre("baseq3", "osp"));
    EXPECT_THAT(Demos(), ElementsAre("mid ", "new  ", "old"));
}

TEST_F(GameSelectionTest, EachGameOffersItsPhrasesAlphabetically) {
    Start();
    Window().UserClick(IDC_optGameQuake1);
    const std::vector<std::string> quake1 = Window().Items(IDC_lstDemoFilter);
    EXPECT_EQ(quake1.size(), 46U);
    EXPECT_EQ(quake1[44], "end");
    EXPECT_EQ(quake1[45], "start");
    Window().UserClick(IDC_optGameQuake2);
    EXPECT_EQ(Window().Items(IDC_lstDemoFilter).size(), 60U);
    Window().UserClick(IDC_optGameQuake3);
    EXPECT_EQ(Window().Items(IDC_lstDemoFilter).size(), 31U);
}

TEST_F(GameSelectionTest, TheContextFollowsTheGameAndItsMod) {
    Start();
    Window().UserClick(IDC_optGameQuake1);
    Window().UserSelect(IDC_lstMods, "ctf");
    const CurrentGame& current = State().current;
    EXPECT_EQ(current.CurrentExe, "glquake.exe");
    EXPECT_EQ(current.CurrentBaseArg, " \"id1\"");
    EXPECT_EQ(current.CurrentGameFolder, kQuake1Folder);
    EXPECT_EQ(current.CurrentBasePath, kQuake1Folder + "id1\\");
    EXPECT_EQ(current.DemoFolder, kQuake1Folder + "ctf\\");
    EXPECT_EQ(current.ScreenshotFolder, kQuake1Folder + "ctf\\");
    EXPECT_EQ(current.DemoExtension, ".dem");
    EXPECT_EQ(current.SelectedMod, "ctf");
    EXPECT_EQ(State().games[0].CurMod, "ctf");
    EXPECT_THAT(Demos(), ElementsAre("capture"));
    Window().UserClick(IDC_optGameQuake2);
    Window().UserSelect(IDC_lstMods, "rocket");
    EXPECT_EQ(current.DemoFolder, kQuake2Folder + "rocket\\demos\\");
    EXPECT_EQ(current.ScreenshotFolder, kQuake2Folder + "rocket\\scrnshot\\");
    Window().UserClick(IDC_optGameQuake3);
    EXPECT_EQ(current.ScreenshotFolder, kQuake3Folder + "baseq3\\screenshots\\");
    EXPECT_EQ(current.CurrentBaseArg, " \"baseq3\"");
}

TEST_F(GameSelectionTest, EveryGameRemembersItsModWhileTheOthersAreUsed) {
    Start();
    Window().UserSelect(IDC_lstMods, "rocket");
    Window().UserClick(IDC_optGameQuake1);
    EXPECT_EQ(Window().SelectedItem(IDC_lstMods), "id1");
    Window().UserClick(IDC_optGameQuake2);
    EXPECT_EQ(Window().SelectedItem(IDC_lstMods), "rocket");
}

TEST_F(GameSelectionTest, FoldersThatHoldNoModAreLeftOutWhateverTheirCase) {
    for (const char* name :
         {"ctf_logs", "Docs", "EXTRAS", "ereg", "GameSpy", "heat", "kprad", "ratlogs", "release",
          "Team Arena Help", "Zentar Strays", "SINGLE-PLAYER BACKUPS", "Docs2", "Größe"}) {
        os.files.AddFolder(kQuake2Folder + name + "\\");
    }
    os.files.AddFile(kQuake2Folder + "readme.txt", "");
    Start();
    EXPECT_THAT(Mods(), ElementsAre("baseq2", "docs2", "größe", "rocket"));
}

TEST_F(GameSelectionTest, AModThatIsGoneLeavesNoneSelectedAndTheBaseFoldersInForce) {
    WriteSettings({"Game=Quake2", "CurMod2=deleted"});
    Start();
    EXPECT_EQ(Window().GetListBox(IDC_lstMods).SelectedIndex(), -1);
    EXPECT_EQ(State().current.DemoFolder, kQuake2Folder + "baseq2\\demos\\");
    EXPECT_EQ(State().current.ScreenshotFolder, kQuake2Folder + "baseq2\\scrnshot\\");
    EXPECT_THAT(Demos(), ElementsAre("Duel", "edge"));
}

TEST_F(GameSelectionTest, AStoredModIsFoundWhateverItsCase) {
    WriteSettings({"Game=Quake2", "CurMod2=Rocket"});
    Start();
    EXPECT_EQ(Window().SelectedItem(IDC_lstMods), "rocket");
}

TEST_F(GameSelectionTest, AnUnknownGameChangesNothing) {
    WriteSettings({"Game=Quake4"});
    Start();
    ExpectCurrent(0, 0);
    EXPECT_THAT(Mods(), IsEmpty());
    EXPECT_THAT(Demos(), IsEmpty());
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 0 of 0.");
    Quit();
    EXPECT_THAT(os.files.Contents(kIni), ::testing::HasSubstr("\r\nGame=Quake4\r\n"));
}

TEST_F(GameSelectionTest, AnotherModShowsAllItsDemosWhenThePreferenceSaysSo) {
    WriteSettings({"Game=Quake2", "DemosAll=0", "AutoShowAll=0"});
    Start();
    EXPECT_FALSE(Window().GetCheckBox(IDC_chkShowAllDemos).Checked());
    State().settings.AutoShowAll = 1;
    Window().UserSelect(IDC_lstMods, "rocket");
    EXPECT_TRUE(Window().GetCheckBox(IDC_chkShowAllDemos).Checked());
    // The box's own procedure ran: the filter controls are greyed.
    EXPECT_FALSE(Window().GetTextBox(IDC_txtDemoFilter).Enabled());
    EXPECT_FALSE(Window().GetButton(IDC_cmdFilter).Enabled());
}

TEST_F(GameSelectionTest, WithoutThePreferenceTheFilterStaysInForce) {
    WriteSettings({"Game=Quake2", "DemosAll=0", "AutoShowAll=0", "DemosFilter=q2dm2"});
    Start();
    EXPECT_THAT(Demos(), ElementsAre("Duel"));
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 1 of 2.");
}

TEST_F(GameSelectionTest, Quake3HasAVersionLineInTheProperties) {
    Start();
    EXPECT_FALSE(Window().GetLabel(IDC_labDemoVersion).Visible());
    EXPECT_EQ(Window().TopTwips(IDC_labDemoSize), 300);
    EXPECT_EQ(Window().TopTwips(IDC_labDemoDate), 565);
    EXPECT_EQ(Window().TopTwips(IDC_labDemoName), 845);
    EXPECT_EQ(Window().TopTwips(IDC_labDemoMap), 1095);
    Window().UserClick(IDC_optGameQuake3);
    EXPECT_TRUE(Window().GetLabel(IDC_labDemoVersion).Visible());
    EXPECT_EQ(Window().TopTwips(IDC_labDemoSize), 480);
    EXPECT_EQ(Window().TopTwips(IDC_labDemoDate), 705);
    EXPECT_EQ(Window().TopTwips(IDC_labDemoName), 930);
    EXPECT_EQ(Window().TopTwips(IDC_labDemoMap), 1155);
}

TEST_F(GameSelectionTest, AGamePickedWhileAnotherIsBeingShownWins) {
    Start();
    bool picked = false;
    os.windows.SetDuringPump([&] {
        if (!picked) {
            picked = true;
            Window().UserPickMenu(IDM_mnuGameQuake3);
        }
    });
    Window().UserPickMenu(IDM_mnuGameQuake1);
    ExpectCurrent(IDC_optGameQuake3, IDM_mnuGameQuake3);
    EXPECT_THAT(Mods(), ElementsAre("baseq3", "osp"));
    EXPECT_THAT(Demos(), ElementsAre("mid ", "new  ", "old"));
}

// ---- "Specify Folder..." and "Current Folders" ----

TEST_F(GameSelectionTest, AFolderWithTheGameIsTakenAndShownAtOnce) {
    os.files.AddFile("D:\\Other\\quake2.exe", "game");
    os.files.AddFolder("D:\\Other\\lithium\\");
    Start();
    os.shell.ExpectPick("Please locate your Quake2 folder:", "D:\\Other");
    Window().UserPickMenu(IDM_mnuGameGetFolder);
    EXPECT_EQ(State().games[1].GameFolder, "D:\\Other\\");
    EXPECT_EQ(State().games[1].BaseModPath, "D:\\Other\\baseq2\\");
    EXPECT_THAT(Mods(), ElementsAre("lithium"));
}

TEST_F(GameSelectionTest, AFolderWithoutTheGameIsRefusedAndChangesNothing) {
    os.files.AddFolder("D:\\Empty\\");
    Start();
    os.shell.ExpectPick("Please locate your Quake2 folder:", "D:\\Empty");
    os.windows.Expect(
        {"Error", "You did not select your Quake2 folder!", MessageIcon::Exclamation});
    Window().UserPickMenu(IDM_mnuGameGetFolder);
    EXPECT_EQ(State().games[1].GameFolder, kQuake2Folder);
    EXPECT_THAT(Mods(), ElementsAre("baseq2", "rocket"));
}

TEST_F(GameSelectionTest, AFolderOfTheNameOfTheExecutableIsNoGame) {
    os.files.AddFolder("D:\\Odd\\quake2.exe\\");
    Start();
    os.shell.ExpectPick("Please locate your Quake2 folder:", "D:\\Odd");
    os.windows.Expect(
        {"Error", "You did not select your Quake2 folder!", MessageIcon::Exclamation});
    Window().UserPickMenu(IDM_mnuGameGetFolder);
}

TEST_F(GameSelectionTest, CancellingTheFolderPickerIsSilent) {
    Start();
    os.shell.ExpectPick("Please locate your Quake2 folder:", std::nullopt);
    Window().UserPickMenu(IDM_mnuGameGetFolder);
    EXPECT_EQ(State().games[1].GameFolder, kQuake2Folder);
}

TEST_F(GameSelectionTest, TheBackupFolderIsSpelledByWhoSetIt) {
    Start();
    EXPECT_EQ(State().Q3BackupFolder, kQuake3Folder + "Single-Player Backups\\");
    Window().UserClick(IDC_optGameQuake3);
    os.shell.ExpectPick("Please locate your Quake3 folder:", "C:\\Games\\Quake3");
    Window().UserPickMenu(IDM_mnuGameGetFolder);
    EXPECT_EQ(State().Q3BackupFolder, kQuake3Folder + "single-player backups\\");
}

TEST_F(GameSelectionTest, CurrentFoldersShowsAllThree) {
    Start();
    os.windows.Expect({"Current Folders",
                       "Quake 1\t   C:\\Games\\Quake\\\r\n"
                       "Quake 2\t   C:\\Games\\Quake2\\\r\n"
                       "Quake 3\t   C:\\Games\\Quake3\\",
                       MessageIcon::Information});
    Window().UserPickMenu(IDM_mnuGameCurrentFolders);
}

// A key held down in the mod list, on a slow disk.
TEST_F(GameSelectionTest, HoweverManyModsArePickedNoneIsListedInsideAnother) {
    for (int mod = 100; mod < 400; ++mod) {
        os.files.AddFolder(kQuake2Folder + "mod" + std::to_string(mod) + "\\scrnshot\\");
    }
    Start();
    const int last = static_cast<int>(Mods().size()) - 1;
    int depth = 0;
    int deepest = 0;
    int next = 1;
    os.windows.SetDuringPump([&] {
        deepest = std::max(deepest, ++depth);
        if (next < last) {
            Window().UserSelect(IDC_lstMods, ++next);
        }
        --depth;
    });
    Window().UserSelect(IDC_lstMods, 1);
    os.windows.SetDuringPump({});
    EXPECT_EQ(deepest, 1);
    EXPECT_EQ(next, last);
    EXPECT_EQ(State().current.SelectedMod, Mods().back());
    EXPECT_EQ(State().games[1].CurMod, Mods().back());
}

// The list is rebuilt only after the messages that wait, a click on it among them.
TEST_F(GameSelectionTest, AModOfTheGameBeforeIsNotTakenForOneOfTheNewGame) {
    Start();
    int pumps = 0;
    os.windows.SetDuringPump([&] {
        if (++pumps == 1) {
            EXPECT_EQ(State().settings.Game, "Quake3");
            Window().UserSelect(IDC_lstMods, "rocket");
        }
    });
    Window().UserClick(IDC_optGameQuake3);
    os.windows.SetDuringPump({});
    EXPECT_GT(pumps, 0);
    EXPECT_EQ(State().games[kQuake3Row].CurMod, "baseq3");
    EXPECT_EQ(State().current.SelectedMod, "baseq3");
    EXPECT_EQ(Window().SelectedItem(IDC_lstMods), "baseq3");
    EXPECT_EQ(State().games[kQuake2Row].CurMod, "baseq2");
}

// ---- The folder check ----

TEST_F(GameSelectionTest, TheFolderCheckGoesByTheExecutableThatIsThereNow) {
    Start();
    CheckGameFolder(State(), os.Services());
    EXPECT_TRUE(State().GameFolderOK);
    os.files.Remove(kQuake2Folder + "quake2.exe");
    os.windows.Expect(FolderUnknown("Quake2"));
    CheckGameFolder(State(), os.Services());
    EXPECT_FALSE(State().GameFolderOK);
}

}  // namespace
}  // namespace zentar
