#include "tests/unit/demos/demos_tab_fixture.h"

#include <algorithm>

namespace zentar {

namespace {

constexpr int kDemosPage = 1;

}  // namespace

DemosTabTest::DemosTabTest() {
    window = os.forms.Create(MainWindowTable());
    form = static_cast<MemoryForm*>(window.get());
    tab = std::make_unique<DemosTab>(
        state, os.Services(), DemosTabControlsOf(*window),
        [this] { form->ShowPopup(IDM_mnuDemos); }, [this] { return started; });
    form->Show();
    form->GetTab(IDC_SSTab1).SelectTab(kDemosPage);
}

void DemosTabTest::Use(std::string_view game, const std::string& mod) {
    const GameInfo& info = AllGames()[static_cast<std::size_t>(GameIndex(game))];
    const std::string folder = "C:\\Games\\" + std::string(game) + "\\";
    GameState& installed = state.games[static_cast<std::size_t>(GameIndex(game))];
    installed.GameFolder = folder;
    installed.BaseModPath = folder + std::string(info.baseMod) + "\\";
    installed.GameInstalled = true;
    os.files.AddFile(folder + std::string(info.executable), "game");
    state.settings.Game = std::string(game);
    state.settings.Remote = "D:\\Remote\\";
    state.current.CurrentExe = std::string(info.executable);
    state.current.CurrentGameFolder = folder;
    state.current.CurrentBasePath = installed.BaseModPath;
    state.current.SelectedMod = mod;
    state.current.DemoExtension = std::string(info.demoExtension);
    state.current.DemoFolder = folder + mod + "\\" + std::string(info.demoFolder);
    os.files.AddFolder(state.current.DemoFolder);
    os.files.AddFolder(state.settings.Remote);
    tab->RefreshDemoList();
}

void DemosTabTest::Pick(const std::string& entry, int menuEntry) {
    form->SetPopupUser([this, menuEntry](int) { form->UserPickMenu(menuEntry); });
    RightClick(entry);
    form->SetPopupUser({});
}

void DemosTabTest::PressOn(const std::string& entry, Key key) {
    Select(entry);
    form->GetListBox(IDC_lstDemos).SetFocus();
    form->UserKey(key);
}

std::vector<std::string> DemosTabTest::Names(const std::string& folder) {
    return os.files.Names(folder.empty() ? state.current.DemoFolder : folder);
}

void DemosTabTest::AddDemo(const std::string& name, const std::string& bytes) {
    os.files.AddFile(PathOf(name), bytes);
}

void DemosTabTest::AddDemo(const std::string& name, samples::DemoKind kind,
                           const samples::DemoContents& contents) {
    AddDemo(name, samples::MakeDemo(kind, contents));
}

void DemosTabTest::UseQuake3Demos(const std::string& mod) {
    using samples::DemoKind;
    Use(kQuake3, mod);
    AddDemo("duel.dm3", DemoKind::Dm3, {.map = "q3dm17"});
    AddDemo("duel.dm_48", DemoKind::Dm48, {.map = "q3dm6"});
    AddDemo("duel.dm_66", DemoKind::Dm66, {});
    tab->RefreshDemoList();
}

void DemosTabTest::RightClick(const std::string& entry) {
    form->UserRightClick(IDC_lstDemos, IndexOf(entry));
}

void DemosTabTest::Filter(const std::string& phrase, bool contain) {
    if (Checked(IDC_chkShowAllDemos)) {
        form->UserClick(IDC_chkShowAllDemos);
    }
    form->UserClick(contain ? IDC_optTextYes : IDC_optTextNo);
    form->GetTextBox(IDC_txtDemoFilter).SetText(phrase);
    form->UserClick(IDC_cmdFilter);
}

void DemosTabTest::DuringNextPump(std::function<void()> event) {
    DuringPumpNumber(1, std::move(event));
}

void DemosTabTest::DuringPumpNumber(int number, std::function<void()> event) {
    os.windows.SetDuringPump([number, event = std::move(event)]() mutable {
        if (--number == 0) {
            event();
        }
    });
}

int DemosTabTest::IndexOf(const std::string& entry) {
    const std::vector<std::string> listed = Listed();
    const auto found = std::find(listed.begin(), listed.end(), entry);
    return found == listed.end() ? -1 : static_cast<int>(found - listed.begin());
}

Message DemosTabTest::Offer(const std::string& game) const {
    return {"Error",
            "The selected file is not really a " + game +
                " demo!\r\n\r\nWould you like me to add an \"!\" after its extension\r\nto stop it "
                "accidentally showing up in this list again?",
            MessageIcon::Exclamation, MessageButtons::YesNo, DefaultButton::Second};
}

}  // namespace zentar
