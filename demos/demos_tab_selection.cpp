// The Demos tab: what happens when a demo is selected.
#include <algorithm>
#include <utility>

#include "core/hourglass.h"
#include "core/messages.h"
#include "demos/demo_menu.h"
#include "demos/demo_messages.h"
#include "demos/demo_name.h"
#include "demos/demos_tab.h"

namespace zentar {

namespace {

std::string SearchTermOf(std::string name) {
    std::replace(name.begin(), name.end(), ' ', '+');
    std::replace(name.begin(), name.end(), '-', '+');
    return name;
}

}  // namespace

void DemosTab::lstDemos_Click() {
    const int index = controls_.lstDemos.SelectedIndex();
    if (index < 0) {
        return;
    }
    const std::string item = controls_.lstDemos.Item(index);
    if (item == demo_.Item) {
        return;
    }
    controls_.fraDemos.SetText("Demo Filter");
    controls_.fraDemos.SetEnabled(true);
    controls_.chkShowAllDemos.SetEnabled(true);
    ++selections_;
    demo_ = {};
    unread_ = true;
    demo_.Item = item;
    demo_.Path = PathOfListed(item);
    demo_.Extension = RealExtension(item, listedExtension_);
    if (!pending_.entry.empty()) {
        // The user clicked while a rebuild was about to begin; the newer wish counts.
        SetPendingReselection(item);
    }
    if (demo_.Path.ends_with(kDm66) && ForceShowAll()) {
        return;
    }
    ShowSelectedFile();
    ReadSelectedDemo();
}

// A phrase cannot be found in compressed demos, so the filter is out of use while one is selected.
// Gives true when that has rebuilt the list and the demo was selected anew there.
bool DemosTab::ForceShowAll() {
    controls_.fraDemos.SetText("Demo Filter (n/a for v1.29f and higher)");
    controls_.fraDemos.SetEnabled(false);
    controls_.chkShowAllDemos.SetEnabled(false);
    if (controls_.chkShowAllDemos.Checked()) {
        return false;
    }
    SetPendingReselection(demo_.Item);
    controls_.chkShowAllDemos.SetChecked(true);
    return true;
}

void DemosTab::ShowSelectedFile() {
    const Result<FileInfo> file = platform_.files.Info(demo_.Path);
    if (file.Ok()) {
        demo_.SizeBytes = file.Value().length;
        demo_.Stamp = file.Value().lastWrite;
    }
    properties_.ShowFile(demo_, file.Ok());
    controls_.mnuDemosSearch.SetEnabled(true);
}

void DemosTab::ReadSelectedDemo() {
    reading_.Run([this] { ReadIfStillSelected(); });
}

void DemosTab::ReadIfStillSelected() {
    const std::uint64_t selection = selections_;
    bool isADemo = true;
    {
        const Hourglass hourglass(platform_.windows);
        platform_.windows.PumpPending();
        if (selection != selections_ || !unread_) {
            return;
        }
        isADemo = ReadHeader();
    }
    if (!isADemo) {
        OfferNotADemoRename();
    }
}

// A double click plays the demo before the procedure of its first click goes on; so whoever needs
// what the file holds has it read first.
void DemosTab::ReadNow() {
    if (unread_ && !ReadHeader()) {
        OfferNotADemoRename();
    }
}

// False when the file is no demo.
bool DemosTab::ReadHeader() {
    unread_ = false;
    HeaderResult header = ReadDemoHeader(platform_.files, demo_.Path, state_.settings.Game);
    if (!header.Ok()) {
        demo_.Unreadable = true;
    } else if (header.Value()) {
        TakeHeader(std::move(*header.Value()));
    } else {
        return false;
    }
    return true;
}

void DemosTab::TakeHeader(DemoHeader header) {
    demo_.Map = std::move(header.Map);
    demo_.Name = std::move(header.Name);
    demo_.Generation = header.Generation;
    if (header.Generation != Q3Generation::None) {
        state_.generation = header.Generation;
    }
    properties_.ShowHeader(demo_);
    controls_.mnuDemosRenameMap.SetEnabled(state_.generation != Q3Generation::V129f &&
                                           !CarriesMapPrefix(demo_));
    demo_.SearchTerm = SearchTermOf(demo_.Name);
}

void DemosTab::OfferNotADemoRename() {
    demo_.NotADemo = true;
    // Another demo may be selected while the box is open.
    const std::string path = demo_.Path;
    if (platform_.windows.Ask(messages::OfferNotADemoRename(state_.settings.Game)) != Answer::Yes) {
        return;
    }
    const Status renamed = platform_.files.Rename(path, path + "!");
    if (!renamed.Ok() && renamed.Error() != FileError::NotFound) {
        platform_.windows.Ask(messages::NotADemoRenameFailed(renamed.Error()));
        return;
    }
    if (!renamed.Ok()) {
        platform_.windows.Ask(messages::IsGone("demo"));
    }
    RefreshDemoList();
}

void DemosTab::ResetDemoProperties() {
    ++selections_;
    demo_ = {};
    unread_ = false;
    properties_.Reset();
}

void DemosTab::ArrangeProperties(bool quake3) { properties_.Arrange(quake3); }

}  // namespace zentar
