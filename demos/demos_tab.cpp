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
      showPopup_(std::move(showPopup)),
      startupFinished_(std::move(startupFinished)) {
    BindEvents();
}

void DemosTab::BindEvents() {
    ControlEvents list;
    list.click = [this] { lstDemos_Click(); };
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

    controls_.mnuDemosRefresh.SetClick([this] { mnuDemosRefresh_Click(); });
}

bool DemosTab::lstDemos_KeyDown(Key key) {
    if (key == Key::F5) {
        RefreshDemoList();
        return true;
    }
    if (key == Key::Enter && demo_.NotADemo) {
        OfferNotADemoRename();
        return true;
    }
    return false;
}

void DemosTab::lstDemos_MouseDown() {
    controls_.lstDemos.SetFocus();
    platform_.windows.PumpPending();
    controls_.lstDemos.SelectAtPointer();
    platform_.windows.PumpPending();
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

void DemosTab::mnuDemosRefresh_Click() { RefreshDemoList(); }

}  // namespace zentar
