// An evening: the Demos tab.
#include <algorithm>

#include "tests/window/evening_fixture.h"
#include "tests/window/game_log.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

Lines Sorted(Lines lines) {
    std::sort(lines.begin(), lines.end());
    return lines;
}

}  // namespace

void EveningTest::Demos() {
    zentar_->ShowTab(kDemosTab);
    for (const EveningGame& game : EveningGames()) {
        SwitchTo(game);
        Filter(game);
        if (!game.played.empty()) {
            PlayWithDemos(game);
        }
    }
    SwitchTo(EveningQuake2());
    const std::size_t before = StartsIn(At(EveningQuake2().folder)).size();
    DemoCommand("campaign", IDM_mnuDemosPlay);
    ExpectStart(EveningQuake2(), before);
    RenameAndDeleteDemos();
    CopyDemo(EveningQuake2(), "дуэль");
    MoveDemo(EveningQuake2(), "Größe [q2dm1]");
    SearchTheWeb("[q2dm3] warm-up");
    DeleteAllListed();
}

// ---- by the keys of the list, and the menu for the rest ----

void EveningTest::PlayWithDemos(const EveningGame& game) {
    Play(game);
    OpenMenuOf(IDC_lstDemos);
    const std::string renamed = "renamed " + Number();
    zentar_->ClickItem(IDC_lstDemos, game.renamed);
    RenameByKey("Rename Demo", renamed);
    EXPECT_SOON(Stands(DemoFile(game, renamed)), true);
    Moves(DemoFile(game, game.renamed), DemoFile(game, renamed));
    const std::string mapped = "[" + game.map + "]_" + game.mapped;
    DemoCommand(game.mapped, IDM_mnuDemosRenameMap);
    EXPECT_SOON(Stands(DemoFile(game, mapped)), true);
    Moves(DemoFile(game, game.mapped), DemoFile(game, mapped));
    MoveDemo(game, mapped);
    CopyDemo(game, game.copied);
    DeleteDemoByKey(game, game.copied, VK_DELETE);
    DeleteDemoByKey(game, renamed, VK_BACK);
    zentar_->PressKey(VK_F5);
}

// By the key in the first game, with the mouse in the other.
void EveningTest::Play(const EveningGame& game) {
    const std::size_t before = StartsIn(At(game.folder)).size();
    if (game.option == IDC_optGameQuake1) {
        zentar_->ClickItem(IDC_lstDemos, game.played);
        zentar_->PressKey(VK_RETURN);
    } else {
        DoubleClickItem(IDC_lstDemos, game.played);
    }
    ExpectStart(game, before);
}

void EveningTest::ExpectStart(const EveningGame& game, std::size_t before) {
    Confirm();
    EXPECT_SOON(StartsIn(At(game.folder)).size(), before + 1);
    zentar_->Settle();
}

void EveningTest::DeleteDemoByKey(const EveningGame& game, const std::string& entry, WORD key) {
    zentar_->ClickItem(IDC_lstDemos, entry);
    zentar_->PressKey(key);
    Confirm();
    EXPECT_SOON(Stands(DemoFile(game, entry)), false);
    Goes(DemoFile(game, entry));
    zentar_->Settle();
}

std::string EveningTest::SendToRemote(const EveningGame& game, const std::string& entry,
                                      int command) {
    const std::string name = DemoFile(game, entry).substr(game.demos.size());
    DemoCommand(entry, command);
    Confirm();
    AgreeToReplace(name);
    return "Remote/" + name;
}

void EveningTest::CopyDemo(const EveningGame& game, const std::string& entry) {
    const std::string copy = SendToRemote(game, entry, IDM_mnuDemosCopy);
    EXPECT_SOON(Stands(copy), true);
    expected_[copy] = expected_.at(DemoFile(game, entry));
}

void EveningTest::MoveDemo(const EveningGame& game, const std::string& entry) {
    const std::string file = DemoFile(game, entry);
    const std::string moved = SendToRemote(game, entry, IDM_mnuDemosMove);
    EXPECT_SOON(Stands(file), false);
    Moves(file, moved);
    zentar_->Settle();
}

// ---- the filter ----

void EveningTest::Filter(const EveningGame& game) {
    const std::string said = "Fred";
    ClickOn(IDC_chkShowAllDemos);
    if (game.option == IDC_optGameQuake1) {
        zentar_->ClickItem(IDC_lstDemoFilter, game.phrase);
        zentar_->PressKey(VK_RETURN);
    } else {
        DoubleClickItem(IDC_lstDemoFilter, game.phrase);
    }
    EXPECT_SOON(zentar_->Text(IDC_txtDemoFilter), game.phrase);
    ExpectListed(game, game.phrase, true);
    FilterBy(said);
    zentar_->PressKey(VK_RETURN);
    ExpectListed(game, said, true);
    ClickOn(IDC_optTextNo);
    ClickOn(IDC_cmdFilter);
    ExpectListed(game, said, false);
    ClickOn(IDC_optTextYes);
    ClickOn(IDC_chkShowAllDemos);
    ExpectListed(game, "", true);
}

void EveningTest::FilterBy(const std::string& phrase) {
    zentar_->ClickOn(IDC_txtDemoFilter);
    zentar_->PressKeyWith(VK_CONTROL, 'A');
    zentar_->TypeText(phrase);
    EXPECT_SOON(zentar_->Text(IDC_txtDemoFilter), phrase);
}

// Some, in any case.
void EveningTest::ExpectListed(const EveningGame& game, const std::string& phrase, bool contained) {
    Lines listed;
    for (const auto& [path, bytes] : expected_) {
        const std::string entry = DemoEntry(game, path);
        if (!entry.empty() && (bytes.find(phrase) != std::string::npos) == contained) {
            listed.push_back(entry);
        }
    }
    EXPECT_FALSE(listed.empty());
    EXPECT_SOON(Sorted(zentar_->Items(IDC_lstDemos)), Sorted(listed));
    zentar_->Settle();
}

// ---- the rest of the menu ----

void EveningTest::RenameAndDeleteDemos() {
    const std::string& folder = EveningQuake2().demos;
    const auto isHere = [&](const std::string& name) { return Stands(folder + name + ".dm2"); };
    const std::string deleted = pass_ == 1 ? "untitled" : "edge final";
    DemoCommand(deleted, IDM_mnuDemosDelete);
    Confirm();
    EXPECT_SOON(isHere(deleted), false);
    Goes(folder + deleted + ".dm2");
    const std::string mapped = pass_ == 1 ? "[q2dm1]_edge final" : "[city64]_untitled";
    DemoCommand(pass_ == 1 ? "edge final" : "untitled", IDM_mnuDemosRenameMap);
    EXPECT_SOON(isHere(mapped), true);
    Moves(folder + (pass_ == 1 ? "edge final.dm2" : "untitled.dm2"), folder + mapped + ".dm2");
    DemoCommand("campaign", IDM_mnuDemosRename);
    Rename("Rename Demo", "Feldzug " + Number());
    EXPECT_SOON(isHere("Feldzug " + Number()), true);
    Moves(folder + "campaign.dm2", folder + "Feldzug " + Number() + ".dm2");
    // A file that is no demo asks for another name.
    zentar_->ClickItem(IDC_lstDemos, "shopping list");
    AnswerNext("Error", pass_ == 1 ? IDNO : IDYES);
    if (pass_ == 2) {
        EXPECT_SOON(isHere("shopping list"), false);
        Moves(folder + "shopping list.dm2", folder + "shopping list.dm2!");
    }
    DemoCommand("[q2dm3] warm-up", IDM_mnuDemosRefresh);
    zentar_->Settle();
}

void EveningTest::SearchTheWeb(const std::string& demo) {
    for (const int entry : {IDM_mnuDemosSearchAll, IDM_mnuDemosSearchDesc, IDM_mnuDemosSearchMap}) {
        const std::size_t before = browser_.Opened().size();
        const HWND popup = zentar_->OpenPopup(IDC_lstDemos, demo);
        Press('S');
        zentar_->WalkTo(popup, entry);
        used_.insert(entry);
        EXPECT_SOON(browser_.Opened().size(), before + 1);
        zentar_->Settle();
    }
}

void EveningTest::DeleteAllListed() {
    const std::string demo = "[q2dm3] warm-up";
    ClickOn(IDC_chkShowAllDemos);
    FilterBy("q2dm3");
    ClickOn(IDC_cmdFilter);
    EXPECT_SOON(zentar_->Items(IDC_lstDemos), Lines{demo});
    DemoCommand(demo, IDM_mnuDemosDeleteAll);
    Confirm();
    const std::string file = DemoFile(EveningQuake2(), demo);
    EXPECT_SOON(Stands(file), false);
    Goes(file);
    ClickOn(IDC_chkShowAllDemos);
    zentar_->Settle();
}

}  // namespace zentar::window_tests
