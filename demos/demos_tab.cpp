#include "demos/demos_tab.h"

#include <utility>

#include "demos/demo_menu.h"
#include "platform/window_services.h"

namespace zentar {

DemosTab::DemosTab(ProgramState& state, const Platform& platform, const DemosTabControls& controls,
                   std::function<void()> showPopup, std::function<bool()> startupFinished)
    : state_(state),
      platform_(platform),
      controls_(controls),
      properties_(controls_, platform.locale),
      files_(state, platform, *this),
      transfer_(state, platform, *this),
      playback_(state, platform, *this, controls.tmrQ3Game),
      mapSearch_(platform, *this),
      showPopup_(std::move(showPopup)),
      startupFinished_(std::move(startupFinished)) {
    BindEvents();
}

void DemosTab::BindEvents() {
    ControlEvents list;
    list.click = [this] { lstDemos_Click(); };
    list.doubleClick = AsCommand([this] { PlayDemo(); });
    list.menuRequested = [this] { lstDemos_MouseDown(); };
    list.keyDown = [this](Key key) { return lstDemos_KeyDown(key); };
    controls_.lstDemos.SetEvents(std::move(list));

    ControlEvents showAll;
    showAll.click = [this] { chkShowAllDemos_Click(); };
    controls_.chkShowAllDemos.SetEvents(std::move(showAll));

    ControlEvents go;
    go.click = [this] { cmdFilter_Click(); };
    controls_.cmdFilter.SetEvents(std::move(go));

    ControlEvents phrase;
    phrase.gotFocus = [this] { txtDemoFilter_GotFocus(); };
    phrase.keyDown = [this](Key key) { return txtDemoFilter_KeyDown(key); };
    controls_.txtDemoFilter.SetEvents(std::move(phrase));

    ControlEvents phrases;
    phrases.doubleClick = [this] { lstDemoFilter_DblClick(); };
    phrases.keyDown = [this](Key key) { return lstDemoFilter_KeyDown(key); };
    controls_.lstDemoFilter.SetEvents(std::move(phrases));

    BindMenu();
}

void DemosTab::BindMenu() {
    controls_.mnuDemosPlay.SetClick(AsCommand([this] { PlayDemo(); }));
    controls_.mnuDemosDelete.SetClick(AsCommand([this] { files_.DeleteSelected(); }));
    controls_.mnuDemosRename.SetClick(AsCommand([this] { files_.RenameSelected(); }));
    controls_.mnuDemosRenameMap.SetClick(AsCommand([this] { files_.RenameSelectedWithMap(); }));
    controls_.mnuDemosCopy.SetClick(AsCommand([this] { transfer_.CopySelected(); }));
    controls_.mnuDemosMove.SetClick(AsCommand([this] { transfer_.MoveSelected(); }));
    controls_.mnuDemosDeleteAll.SetClick(AsCommand([this] { files_.DeleteAllListed(); }));
    controls_.mnuDemosSearchAll.SetClick([this] { mapSearch_.mnuDemosSearchAll_Click(); });
    controls_.mnuDemosSearchDesc.SetClick([this] { mapSearch_.mnuDemosSearchDesc_Click(); });
    controls_.mnuDemosSearchMap.SetClick([this] { mapSearch_.mnuDemosSearchMap_Click(); });
    controls_.mnuDemosRefresh.SetClick([this] { mnuDemosRefresh_Click(); });
}

void DemosTab::RunCommand(const std::function<void()>& command) { commands_.Run(command); }

std::function<void()> DemosTab::AsCommand(std::function<void()> command) {
    return [this, command = std::move(command)] { RunCommand(command); };
}

bool DemosTab::lstDemos_KeyDown(Key key) {
    switch (key) {
        case Key::F2:
            RunCommand([this] { files_.RenameSelected(); });
            return true;
        case Key::F5:
            RefreshDemoList();
            return true;
        case Key::Delete:
        case Key::Backspace:
            RunCommand([this] { files_.DeleteSelected(); });
            return true;
        case Key::Enter:
            RunCommand([this] { PlayDemo(); });
            return true;
        default:
            return false;
    }
}

void DemosTab::lstDemos_MouseDown() {
    if (!popup_.SelectAtPointer(controls_.lstDemos, platform_.windows)) {
        return;
    }
    ReadNow();
    DecideMenu();
    showPopup_();
}

void DemosTab::DecideMenu() {
    const DemoMenu menu = DecideDemoMenu(demo_, state_.generation);
    if (menu.play != PlayEntry::Unchanged) {
        controls_.mnuDemosPlay.SetEnabled(menu.play == PlayEntry::On);
    }
    controls_.mnuDemosDelete.SetEnabled(menu.fileCommands);
    controls_.mnuDemosRename.SetEnabled(menu.fileCommands);
    controls_.mnuDemosCopy.SetEnabled(menu.fileCommands);
    controls_.mnuDemosMove.SetEnabled(menu.fileCommands);
    controls_.mnuDemosRenameMap.SetEnabled(menu.renameWithMap);
    controls_.mnuDemosSearch.SetEnabled(menu.search);
}

void DemosTab::PlayDemo() {
    const bool offers = unread_;
    ReadNow();
    // A file that turned out to be no demo just now has been offered for its rename already.
    if (!offers || !demo_.NotADemo) {
        playback_.PlayDemo();
    }
}

void DemosTab::mnuDemosRefresh_Click() { RefreshDemoList(); }

}  // namespace zentar
