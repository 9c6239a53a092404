// Changing the game and the mod.
#include <gtest/gtest.h>

#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_driver.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

using Lines = std::vector<std::string>;

class Games : public testing::Test {
  protected:
    Games() { home_.WriteIni(); }

    // The Game-menu entries that carry a check mark.
    static std::vector<int> CheckedGames(const ZentarDriver& zentar) {
        std::vector<int> checked;
        for (const int id : {IDM_mnuGameQuake1, IDM_mnuGameQuake2, IDM_mnuGameQuake3}) {
            if (zentar.Menu(id).checked) {
                checked.push_back(id);
            }
        }
        return checked;
    }

    ZentarHome home_;
};

TEST_F(Games, TheOptionButtonsChangeTheGame) {
    const ZentarDriver zentar(home_);
    zentar.ShowTab(kDemosTab);
    zentar.ClickOn(IDC_optGameQuake3);
    EXPECT_SOON(zentar.Items(IDC_lstMods), (Lines{"baseq3", "missionpack", "osp", "threewave"}));
    EXPECT_SOON(CheckedGames(zentar), std::vector<int>{IDM_mnuGameQuake3});
    zentar.ClickOn(IDC_optGameQuake1);
    EXPECT_SOON(zentar.Items(IDC_lstMods), (Lines{"ctf", "fortress", "id1", "rocket arena"}));
    EXPECT_SOON(CheckedGames(zentar), std::vector<int>{IDM_mnuGameQuake1});
    EXPECT_SOON(zentar.Items(IDC_lstDemos),
                (Lines{"dm3 duel", "HOLIDAY", "no level name", "speedrun e1m1", "дуэль"}));
}

TEST_F(Games, TheMenuChangesTheGameAndItsOptionButton) {
    const ZentarDriver zentar(home_);
    zentar.ShowTab(kDemosTab);
    EXPECT_SOON(CheckedGames(zentar), std::vector<int>{IDM_mnuGameQuake2});
    zentar.OpenMenuEntry('G', '3');
    EXPECT_SOON(CheckedGames(zentar), std::vector<int>{IDM_mnuGameQuake3});
    EXPECT_SOON(zentar.Checked(IDC_optGameQuake3), true);
    EXPECT_SOON(zentar.Checked(IDC_optGameQuake2), false);
    EXPECT_SOON(zentar.Items(IDC_lstDemos), (Lines{"[q3dm6] camping", "duel", "duel ", "duel  ",
                                                   "tourney ", "untitled", "дуэль "}));
}

TEST_F(Games, EachGameOffersItsMapNamesAsPhrases) {
    const ZentarDriver zentar(home_);
    zentar.ShowTab(kDemosTab);
    EXPECT_SOON(zentar.Items(IDC_lstDemoFilter).size(), 60U);
    zentar.ClickOn(IDC_optGameQuake1);
    EXPECT_SOON(zentar.Items(IDC_lstDemoFilter).size(), 46U);
    zentar.ClickOn(IDC_optGameQuake3);
    EXPECT_SOON(zentar.Items(IDC_lstDemoFilter).size(), 31U);
    EXPECT_SOON(zentar.Items(IDC_lstDemoFilter).front(), "g_synchronousClients");
}

TEST_F(Games, OnlyQuake3ShowsAVersion) {
    const ZentarDriver zentar(home_);
    zentar.ShowTab(kDemosTab);
    EXPECT_SOON(zentar.Visible(IDC_labDemoVersion), false);
    zentar.ClickOn(IDC_optGameQuake3);
    EXPECT_SOON(zentar.Visible(IDC_labDemoVersion), true);
    zentar.ClickOn(IDC_optGameQuake2);
    EXPECT_SOON(zentar.Visible(IDC_labDemoVersion), false);
}

TEST_F(Games, AnotherModShowsItsDemos) {
    const ZentarDriver zentar(home_);
    zentar.ShowTab(kDemosTab);
    zentar.ClickItem(IDC_lstMods, "ctf");
    EXPECT_SOON(zentar.Items(IDC_lstDemos), (Lines{"revival", "stronghold"}));
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 2 of 2.");
}

TEST_F(Games, EachGameRemembersItsMod) {
    const ZentarDriver zentar(home_);
    zentar.ClickItem(IDC_lstMods, "ctf");
    zentar.ClickOn(IDC_optGameQuake3);
    EXPECT_SOON(zentar.Selected(IDC_lstMods), "baseq3");
    zentar.ClickOn(IDC_optGameQuake2);
    EXPECT_SOON(zentar.Selected(IDC_lstMods), "ctf");
}

TEST_F(Games, AnotherModShowsAllItsDemosAgain) {
    home_.WriteIni({"DemosAll=0", "DemosFilter=q2dm1"});
    const ZentarDriver zentar(home_);
    zentar.ShowTab(kDemosTab);
    zentar.ClickItem(IDC_lstMods, "ctf");
    EXPECT_SOON(zentar.Checked(IDC_chkShowAllDemos), true);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 2 of 2.");
}

TEST_F(Games, ThePreferenceKeepsTheFilterForAnotherMod) {
    home_.WriteIni({"DemosAll=0", "DemosFilter=q2ctf1", "DemosText=True", "AutoShowAll=0"});
    const ZentarDriver zentar(home_);
    zentar.ShowTab(kDemosTab);
    zentar.ClickItem(IDC_lstMods, "ctf");
    EXPECT_SOON(zentar.Items(IDC_lstDemos), Lines{"revival"});
    EXPECT_SOON(zentar.Checked(IDC_chkShowAllDemos), false);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 1 of 2.");
}

TEST_F(Games, CurrentFoldersNamesThemAll) {
    const ZentarDriver zentar(home_);
    zentar.OpenMenuEntry('G', 'C');
    const HWND box = zentar.WaitForBox("Current Folders");
    const BoxContents expected{
        .title = "Current Folders",
        .text = BoxLines({"Quake 1\t   " + FolderText(home_.Games() / "Quake"),
                          "Quake 2\t   " + FolderText(home_.Games() / "Quake2"),
                          "Quake 3\t   " + FolderText(home_.Games() / "Quake3")}),
        .icon = BoxIcon::Information,
        .buttons = {IDOK},
        .defaultButton = IDOK};
    EXPECT_EQ(zentar.Read(box), expected);
    AnswerBox(box, IDOK);
    EXPECT_FALSE(zentar.HasBox());
}

TEST_F(Games, CancellingTheFolderPickerChangesNothing) {
    const ZentarDriver zentar(home_);
    zentar.OpenMenuEntry('G', 'F');
    AnswerBox(zentar.WaitForPicker("Please locate your Quake2 folder:"), IDCANCEL);
    EXPECT_FALSE(zentar.HasBox());
    EXPECT_SOON(zentar.Selected(IDC_lstMods), "baseq2");
}

TEST_F(Games, AnotherFolderOfTheGameIsTakenAndShownAtOnce) {
    const std::filesystem::path other = home_.Games() / "Größe Quake2";
    std::filesystem::create_directories(other / "baseq2" / "demos");
    std::filesystem::create_directories(other / "rocket");
    WriteBytes(other / "quake2.exe", "game");
    ZentarDriver zentar(home_);
    zentar.ShowTab(kDemosTab);
    zentar.OpenMenuEntry('G', 'F');
    zentar.PickFolder("Please locate your Quake2 folder:", other);
    EXPECT_SOON(zentar.Items(IDC_lstMods), (Lines{"baseq2", "rocket"}));
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 0 of 0.");
    EXPECT_EQ(zentar.Close(), 0);
    EXPECT_NE(ReadBytes(home_.Ini()).find("\r\nQ2Folder=" + FolderText(other) + "\r\n"),
              std::string::npos);
}

TEST_F(Games, AFolderWithoutTheGameIsRefused) {
    const ZentarDriver zentar(home_);
    zentar.OpenMenuEntry('G', 'F');
    AnswerBox(zentar.WaitForPicker("Please locate your Quake2 folder:"), IDOK);
    const HWND box = zentar.WaitForBox("Error");
    const BoxContents expected{.title = "Error",
                               .text = "You did not select your Quake2 folder!",
                               .icon = BoxIcon::Exclamation,
                               .buttons = {IDOK},
                               .defaultButton = IDOK};
    EXPECT_EQ(zentar.Read(box), expected);
    AnswerBox(box, IDOK);
    EXPECT_SOON(zentar.Selected(IDC_lstMods), "baseq2");
}

}  // namespace
}  // namespace zentar::window_tests
