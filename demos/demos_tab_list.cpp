// The Demos tab: the list and its filter.
#include <utility>

#include "core/game_text.h"
#include "core/hourglass.h"
#include "core/text.h"
#include "demos/demo_list.h"
#include "demos/demo_name.h"
#include "demos/demos_tab.h"

namespace zentar {

void DemosTab::RefreshDemoList() {
    const std::uint64_t refresh = ++refreshes_;
    std::uint64_t total = 0;
    controls_.lstDemos.SetItems({});
    ResetDemoProperties();
    const Result<FileInfo> folder = platform_.files.Info(state_.current.DemoFolder);
    if (folder.Ok() && folder.Value().isFolder) {
        controls_.labNumDemos.SetEnabled(true);
        controls_.labNumDemos.SetText("Scanning...");
        const Hourglass hourglass(platform_.windows);
        platform_.windows.PumpPending();
        if (refresh != refreshes_) {
            return;
        }
        total = ScanFolder();
    }
    ShowCount(total);
    SelectPending();
}

// Fills the list; gives the number of demos in the folder.
std::uint64_t DemosTab::ScanFolder() {
    listedFolder_ = state_.current.DemoFolder;
    listedExtension_ = state_.current.DemoExtension;
    const DemoListing listing =
        ListDemos(platform_.files, listedFolder_, listedExtension_, Filter());
    controls_.lstDemos.SetItems(listing.entries);
    return listing.total;
}

DemoFilter DemosTab::Filter() const {
    return {.showAll = controls_.chkShowAllDemos.Checked(),
            .phrase = Utf8ToGameText(controls_.txtDemoFilter.Text()),
            .contain = controls_.optTextYes.Selected()};
}

void DemosTab::ShowCount(std::uint64_t total) {
    const int listed = controls_.lstDemos.Count();
    controls_.labNumDemos.SetText("Total listed: " + std::to_string(listed) + " of " +
                                  std::to_string(total) + ".");
    controls_.lstDemos.SetEnabled(listed > 0);
    controls_.lstDemos.SetBackground(listed > 0 ? SystemColour::Window : SystemColour::ButtonFace);
    controls_.labNumDemos.SetEnabled(listed > 0);
}

std::vector<std::string> DemosTab::ListedDemos() const {
    std::vector<std::string> entries;
    entries.reserve(static_cast<std::size_t>(controls_.lstDemos.Count()));
    for (int index = 0; index < controls_.lstDemos.Count(); ++index) {
        entries.push_back(controls_.lstDemos.Item(index));
    }
    return entries;
}

std::string DemosTab::PathOfListed(const std::string& entry) const {
    return RealPath(listedFolder_, entry, listedExtension_);
}

void DemosTab::SetPendingReselection(const std::string& entry) {
    pending_ = {.folder = state_.current.DemoFolder, .entry = entry};
}

void DemosTab::SelectPending() {
    // The selection runs further procedures, for which nothing is pending any more.
    const PendingReselection wanted = std::exchange(pending_, {});
    // After a change of mod the entry would be another demo of the same name.
    if (wanted.entry.empty() || wanted.folder != state_.current.DemoFolder) {
        return;
    }
    for (int index = 0; index < controls_.lstDemos.Count(); ++index) {
        if (controls_.lstDemos.Item(index) == wanted.entry) {
            controls_.lstDemos.Select(index);
            return;
        }
    }
}

void DemosTab::FillPhraseList(const GameInfo& game) {
    std::vector<std::string> phrases = game.MapNames();
    SortAlphabetically(phrases);
    controls_.lstDemoFilter.SetItems(phrases);
}

void DemosTab::chkShowAllDemos_Click() {
    const bool filtering = !controls_.chkShowAllDemos.Checked();
    const SystemColour background = filtering ? SystemColour::Window : SystemColour::ButtonFace;
    controls_.labDemo1.SetEnabled(filtering);
    controls_.labDemo2.SetEnabled(filtering);
    controls_.optTextYes.SetEnabled(filtering);
    controls_.optTextNo.SetEnabled(filtering);
    controls_.txtDemoFilter.SetEnabled(filtering);
    controls_.lstDemoFilter.SetEnabled(filtering);
    controls_.cmdFilter.SetEnabled(filtering);
    controls_.txtDemoFilter.SetBackground(background);
    controls_.lstDemoFilter.SetBackground(background);
    if (filtering && startupFinished_()) {
        controls_.cmdFilter.SetFocus();
    }
    const std::uint64_t refreshes = refreshes_;
    platform_.windows.PumpPending();
    if (refreshes == refreshes_) {
        RefreshDemoList();
    }
}

void DemosTab::cmdFilter_Click() { RefreshDemoList(); }

void DemosTab::txtDemoFilter_GotFocus() { controls_.txtDemoFilter.SelectAll(); }

bool DemosTab::txtDemoFilter_KeyDown(Key key) {
    if (key != Key::Enter) {
        return false;
    }
    RefreshDemoList();
    return true;
}

void DemosTab::lstDemoFilter_DblClick() { UseChosenPhrase(); }

bool DemosTab::lstDemoFilter_KeyDown(Key key) {
    if (key != Key::Enter) {
        return false;
    }
    UseChosenPhrase();
    return true;
}

void DemosTab::UseChosenPhrase() {
    const int index = controls_.lstDemoFilter.SelectedIndex();
    if (index >= 0) {
        controls_.txtDemoFilter.SetText(controls_.lstDemoFilter.Item(index));
        RefreshDemoList();
    }
}

}  // namespace zentar
