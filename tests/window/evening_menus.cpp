// An evening: its beginning and its end, and what is in the menu bar.
#include "tests/window/evening_fixture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {

void EveningTest::FirstRun() {
    zentar_ = std::make_unique<ZentarDriver>(home_, ZentarDriver::Start::FirstRun);
    PostMessageW(zentar_->WaitForForm("Zentar Help"), WM_CLOSE, 0, 0);
    AnswerBox(zentar_->WaitForBox("Welcome"), IDYES);
    for (const auto& [game, folder] :
         {std::pair("Quake1", "Quake"), {"Quake2", "Quake2"}, {"Quake3", "Quake3"}}) {
        zentar_->PickFolder("Please locate your " + std::string(game) + " folder:",
                            home_.Games() / folder);
    }
    AnswerNext("Current Folders", IDOK);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "baseq3");
}

void EveningTest::GoHome() {
    EXPECT_SOON(zentar_->Checked(IDC_optGameQuake2), true);
    PickFromBar('P', 'X', IDM_mnuProgramExit);
    EXPECT_EQ(zentar_->WaitForExit(), 0);
    expected_["Program/zentar.ini"] = home_.WholeIni(
        {"Expert=" + std::string(expert_ ? "1" : "0"),
         "BackupAll=" + std::string(pass_ == 1 ? "1" : "0"), "DemosFilter=q2dm3",
         "TranscriptGameplay=" + std::string(gameMessages_ ? "1" : "0"),
         "TranscriptMessages=8388608", "TranscriptBackground=12648447", "Player1Colour=32768",
         "Q3TextText=" + FolderText(home_.Program()) + "data\\q3text\\evening " + Number() +
             ".ini"});
    ExpectFiles();
    ExpectAllUsed();
}

void EveningTest::ComeBack() {
    pass_ = 2;
    Restock();
    zentar_ = std::make_unique<ZentarDriver>(home_);
    const HWND window = OpenPreferences();
    TurnExpertModeOn(window, IDYES);
    Close(window);
    used_.clear();
}

HWND EveningTest::OpenPreferences() {
    PickFromBar('P', 'P', IDM_mnuProgramPreferences);
    return zentar_->WaitForForm("Preferences");
}

void EveningTest::TurnExpertModeOn(HWND preferences, int answer) {
    ClickIn(preferences, IDC_chkExpert);
    AnswerNext("Confirm", answer);
    expert_ = answer == IDYES;
    EXPECT_SOON(IsChecked(FindControl(preferences, IDC_chkExpert)), expert_);
}

void EveningTest::Preferences() {
    const HWND window = OpenPreferences();
    ClickIn(window, IDC_cmdRemote);
    zentar_->PickFolder("Please specify a folder to be the Remote Folder:", home_.Remote());
    EXPECT_SOON(TextOf(FindControl(window, IDC_txtRemote)), FolderText(home_.Remote()));
    for (const int option : {IDC_chkAutoShowAll, IDC_chkAutoNextShot, IDC_chkAutoNextDemo}) {
        ClickIn(window, option);
        ClickIn(window, option);
    }
    if (expert_) {
        // To leave it needs no answer.
        ClickIn(window, IDC_chkExpert);
        EXPECT_SOON(IsChecked(FindControl(window, IDC_chkExpert)), false);
    }
    TurnExpertModeOn(window, expert_ ? IDYES : IDNO);
    Close(window);
}

void EveningTest::GamesAndMenus() {
    ReadHelp();
    PickFromBar('G', 'Q', IDM_mnuGameQuake1);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "id1");
    PickFromBar('G', '3', IDM_mnuGameQuake3);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "baseq3");
    for (const EveningGame& game : EveningGames()) {
        SwitchTo(game);
        for (const std::string& mod : {game.otherMod, game.mod}) {
            zentar_->ClickItem(IDC_lstMods, mod);
            EXPECT_SOON(zentar_->Selected(IDC_lstMods), mod);
        }
    }
    PickFromBar('G', '2', IDM_mnuGameQuake2);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "baseq2");
    PickFromBar('G', 'C', IDM_mnuGameCurrentFolders);
    AnswerNext("Current Folders", IDOK);
    PickFromBar('G', 'F', IDM_mnuGameGetFolder);
    zentar_->PickFolder("Please locate your Quake2 folder:", home_.Games() / "Quake2");
    // The game wrote its note on backups when it was the current one.
    expected_["Games/Quake3/SINGLE-PLAYER Backups/Single-Player Backups.txt"] =
        BoxLines({"Zentar v0.99 BETA Single-Player Backups", "Web Site: " ZENTAR_WEB_SITE,
                  "----------------------------------",
                  "The files in this folder are backups of Quake 3 single-player games",
                  "and were created by Zentar.  You can restore these backups to Quake 3",
                  "by running Zentar and clicking the \"Misc\" tab and then \"Restore\".",
                  "Alternatively, you can copy-and-paste the data in the files here into",
                  "your existing \"q3config.cfg\" file, but be sure to paste them to the",
                  "very END of the file to ensure the existing settings get overwritten!",
                  "======================================================================", ""});
}

void EveningTest::ReadHelp() {
    PickFromBar('H', 'H', IDM_mnuHelpTopics);
    const HWND help = zentar_->WaitForForm("Zentar Help");
    const HWND list = FindControl(help, IDC_lstQuestions);
    ScrollTo(list, 1);
    DoubleClick(CentreOfItem(list, 1));
    EXPECT_SOON(IsUsable(FindControl(help, IDC_cmdBack)), true);
    ClickIn(help, IDC_cmdBack);
    Close(help);
    Close(zentar_->OpenForm(VK_F1, "Zentar Help"));
    PickFromBar('H', 'A', IDM_mnuHelpAbout);
    AnswerNext("About Zentar", IDOK);
}

}  // namespace zentar::window_tests
