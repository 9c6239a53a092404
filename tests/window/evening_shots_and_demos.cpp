// An evening: the Shots and the Demos tab.
#include "platform/win32/win32_text.h"
#include "tests/window/evening_fixture.h"
#include "tests/window/game_log.h"
#include "tests/window/image_library_file.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

const std::string kShots = "Games/Quake2/baseq2/scrnshot/";
const std::string kDemos = "Games/Quake2/baseq2/demos/";

}  // namespace

// Previews come with each shot that is shown; the last sweep takes them, too.
void EveningTest::Screenshots() {
    zentar_->ShowTab(kShotsTab);
    ClickOn(IDC_optModePreview);
    ClickOn(IDC_optModeReal);
    ShotCommand("quake00.tga", IDM_mnuScreenshotShowFull);
    const HWND full = zentar_->WaitForWindow("ZentarForm", "Zentar - Screenshot");
    zentar_->Settle();
    Press(VK_ESCAPE);
    EXPECT_SOON(IsWindowVisible(full), FALSE);
    ShotCommand("quake00.tga", IDM_mnuScreenshotProperties);
    AnswerNext("quake00.tga", IDOK);
    ConvertShots();
    SetWallpaper();
    TransferShots();
    SweepShots();
}

void EveningTest::ConvertShots() {
    ShotCommand("quake00.tga", IDM_mnuScreenshotMakeJPEGOnly);
    AnswerNext("Done", IDOK);
    expected_[kShots + "quake00.jpg"] = kSomeJpg;
    ShotCommand("quake01.tga", IDM_mnuScreenshotMakeJPEGAndKill);
    Confirm();
    AnswerNext("Done", IDOK);
    Goes(kShots + "quake01.tga");
    expected_[kShots + "quake01.jpg"] = kSomeJpg;
}

// The picture is 640 x 480, three bytes a pixel behind two headers.
void EveningTest::SetWallpaper() {
    const fs::path file = WindowsFolder() / "[Zentar] quake00.bmp";
    ShotCommand("quake00.tga", IDM_mnuScreenshotSetWallpaper);
    EXPECT_SOON(fs::exists(file), true);
    zentar_->Settle();
    const std::string bitmap = ReadBytes(file);
    EXPECT_EQ(bitmap.size(), 54U + 640 * 480 * 3);
    EXPECT_TRUE(bitmap.starts_with("BM"));
    ShotCommand("quake00.tga", IDM_mnuScreenshotDeleteAllWallpaper);
    Confirm();
    EXPECT_SOON(fs::exists(file), false);
}

void EveningTest::TransferShots() {
    ShotCommand("wide.tga", IDM_mnuScreenshotCopy);
    AgreeToReplace("wide.tga");
    EXPECT_SOON(fs::exists(At("Remote/wide.tga")), true);
    expected_["Remote/wide.tga"] = expected_.at(kShots + "wide.tga");
    ShotCommand("выстрел.pcx", IDM_mnuScreenshotMove);
    Confirm();
    AgreeToReplace("выстрел.pcx");
    EXPECT_SOON(IsHere("выстрел.pcx"), false);
    Moves(kShots + "выстрел.pcx", "Remote/выстрел.pcx");
    ShotCommand("Größe.tga", IDM_mnuScreenshotRename);
    Rename("Rename Screenshot", "umbenannt " + Number());
    EXPECT_SOON(IsHere("umbenannt " + Number() + ".tga"), true);
    Moves(kShots + "Größe.tga", kShots + "umbenannt " + Number() + ".tga");
}

void EveningTest::SweepShots() {
    const auto sweep = [this](int command) {
        ShotCommand("broken.tga", command);
        Confirm();
    };
    WaitForEntry(IDC_lstScreenshots, "wide.tga");
    View("wide.tga", 5);
    ShotCommand("wide.tga", IDM_mnuScreenshotDeletePreview);
    Confirm();
    EXPECT_SOON(IsHere("wide.zentar"), false);
    ShotCommand("wide.tga", IDM_mnuScreenshotDelete);
    Confirm();
    EXPECT_SOON(IsHere("wide.tga"), false);
    Goes(kShots + "wide.tga");
    ShotCommand("broken.tga", IDM_mnuScreenshotRefresh);
    sweep(IDM_mnuScreenshotDeleteAllPreview);
    EXPECT_SOON(IsHere("quake00.zentar"), false);
    sweep(IDM_mnuScreenshotDeleteAllJPG);
    for (const char* shot : {"quake00.jpg", "quake01.jpg", "quake03.jpg"}) {
        EXPECT_SOON(IsHere(shot), false);
        Goes(kShots + shot);
    }
    sweep(IDM_mnuScreenshotDeleteAllPCX);
    EXPECT_SOON(IsHere("QUAKE02.PCX"), false);
    Goes(kShots + "QUAKE02.PCX");
    sweep(IDM_mnuScreenshotDeleteAllTGA);
    for (const std::string& shot : {std::string("quake00.tga"), std::string("broken.tga"),
                                    "umbenannt " + Number() + ".tga"}) {
        EXPECT_SOON(IsHere(shot), false);
        Goes(kShots + shot);
    }
    EXPECT_SOON(zentar_->Text(IDC_labNumShots), "Total: 0  (tga=0,  jpg=0,  pcx=0).");
    // The last sweep is for a folder with one shot, and its preview.
    WriteBytes(Shots() / "quake00.tga", firstDay_.at(kShots + "quake00.tga"));
    zentar_->ClickOn(IDC_optModePreview);
    zentar_->ClickOn(IDC_optModeReal);
    WaitForEntry(IDC_lstScreenshots, "quake00.tga");
    View("quake00.tga", 0);
    ShotCommand("quake00.tga", IDM_mnuScreenshotDeleteAll);
    Confirm();
    EXPECT_SOON(IsHere("quake00.zentar"), false);
}

void EveningTest::Demos() {
    zentar_->ShowTab(kDemosTab);
    EXPECT_SOON(zentar_->Items(IDC_lstMods).empty(), false);
    PlayIn("Quake2", "campaign");
    RenameAndDeleteDemos();
    TransferDemos();
    SearchTheWeb("[q2dm3] warm-up");
    FilterDemos();
    // A look at the other games.
    zentar_->ClickOn(IDC_optGameQuake1);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "id1");
    PlayIn("Quake", "speedrun e1m1");
    zentar_->ClickOn(IDC_optGameQuake3);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "baseq3");
    PlayIn("Quake3", "tourney ");
    zentar_->ClickOn(IDC_optGameQuake2);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "baseq2");
}

void EveningTest::PlayIn(const std::string& game, const std::string& demo) {
    const std::size_t before = StartsIn(home_.Games() / game).size();
    DemoCommand(demo, IDM_mnuDemosPlay);
    Confirm();
    EXPECT_SOON(StartsIn(home_.Games() / game).size(), before + 1);
    zentar_->Settle();
}

void EveningTest::RenameAndDeleteDemos() {
    const auto isHere = [this](const std::string& name) {
        return fs::exists(At(kDemos + name + ".dm2"));
    };
    const std::string deleted = pass_ == 1 ? "untitled" : "edge final";
    DemoCommand(deleted, IDM_mnuDemosDelete);
    Confirm();
    EXPECT_SOON(isHere(deleted), false);
    Goes(kDemos + deleted + ".dm2");
    const std::string mapped = pass_ == 1 ? "[q2dm1]_edge final" : "[city64]_untitled";
    DemoCommand(pass_ == 1 ? "edge final" : "untitled", IDM_mnuDemosRenameMap);
    EXPECT_SOON(isHere(mapped), true);
    Moves(kDemos + (pass_ == 1 ? "edge final.dm2" : "untitled.dm2"), kDemos + mapped + ".dm2");
    DemoCommand("campaign", IDM_mnuDemosRename);
    Rename("Rename Demo", "Feldzug " + Number());
    EXPECT_SOON(isHere("Feldzug " + Number()), true);
    Moves(kDemos + "campaign.dm2", kDemos + "Feldzug " + Number() + ".dm2");
    // A file that is no demo asks for another name.
    WaitForEntry(IDC_lstDemos, "shopping list");
    zentar_->ClickItem(IDC_lstDemos, "shopping list");
    AnswerNext("Error", pass_ == 1 ? IDNO : IDYES);
    if (pass_ == 2) {
        EXPECT_SOON(isHere("shopping list"), false);
        Moves(kDemos + "shopping list.dm2", kDemos + "shopping list.dm2!");
    }
    DemoCommand("[q2dm3] warm-up", IDM_mnuDemosRefresh);
    zentar_->Settle();
}

void EveningTest::TransferDemos() {
    const auto there = [this](const std::string& name) {
        return fs::exists(At("Remote/" + name + ".dm2"));
    };
    DemoCommand("дуэль", IDM_mnuDemosCopy);
    Confirm();
    AgreeToReplace("дуэль.dm2");
    EXPECT_SOON(there("дуэль"), true);
    expected_["Remote/дуэль.dm2"] = expected_.at(kDemos + "дуэль.dm2");
    DemoCommand("Größe [q2dm1]", IDM_mnuDemosMove);
    Confirm();
    AgreeToReplace("Größe [q2dm1].dm2");
    EXPECT_SOON(fs::exists(At(kDemos + "Größe [q2dm1].dm2")), false);
    Moves(kDemos + "Größe [q2dm1].dm2", "Remote/Größe [q2dm1].dm2");
    zentar_->Settle();
}

void EveningTest::SearchTheWeb(const std::string& demo) {
    const int entries[] = {IDM_mnuDemosSearchAll, IDM_mnuDemosSearchDesc, IDM_mnuDemosSearchMap};
    int down = 0;
    for (const int entry : entries) {
        const std::size_t before = browser_.Opened().size();
        const HWND popup = zentar_->OpenPopup(IDC_lstDemos, demo);
        Press('S');
        for (int step = 0; step < down; ++step) {
            Press(VK_DOWN);
        }
        ++down;
        Press(VK_RETURN);
        WaitUntilGone(popup);
        used_.insert(entry);
        EXPECT_SOON(browser_.Opened().size(), before + 1);
        zentar_->Settle();
    }
}

void EveningTest::FilterDemos() {
    ClickOn(IDC_chkShowAllDemos);
    ClickOn(IDC_optTextNo);
    ClickOn(IDC_optTextYes);
    zentar_->ClickOn(IDC_txtDemoFilter);
    PressWith(VK_CONTROL, 'A');
    Type("q2dm3");
    ClickOn(IDC_cmdFilter);
    EXPECT_SOON(zentar_->Items(IDC_lstDemos), Lines{"[q2dm3] warm-up"});
    DemoCommand("[q2dm3] warm-up", IDM_mnuDemosDeleteAll);
    Confirm();
    EXPECT_SOON(fs::exists(At(kDemos + "[q2dm3] warm-up.dm2")), false);
    Goes(kDemos + "[q2dm3] warm-up.dm2");
    ClickOn(IDC_chkShowAllDemos);
    zentar_->Settle();
}

}  // namespace zentar::window_tests
