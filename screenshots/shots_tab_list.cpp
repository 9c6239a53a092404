// The Shots tab: the list, and what happens when a shot is selected.
#include <algorithm>
#include <utility>

#include "core/hourglass.h"
#include "core/program_life.h"
#include "platform/file_system.h"
#include "platform/image_library.h"
#include "screenshots/shot_list.h"
#include "screenshots/shot_messages.h"
#include "screenshots/shot_name.h"
#include "screenshots/shots_tab.h"

namespace zentar {

void ShotsTab::RefreshScreenshotList() { Rebuild(); }

// False when another refresh, or a selection, took its place meanwhile.
bool ShotsTab::Rebuild() {
    const std::uint64_t change = ++changes_;
    viewing_.ClearShotView();
    shot_ = {};
    entries_.clear();
    listedFolder_ = state_.current.ScreenshotFolder;
    controls_.lstScreenshots.SetItems({});
    ShotListing listing;
    if (HasScreenshotFolder()) {
        const Hourglass hourglass(platform_.windows);
        platform_.windows.PumpPending();
        if (change != changes_) {
            return false;
        }
        listing = ListShots(platform_.files, state_.current.ScreenshotFolder);
    }
    Show(std::move(listing));
    return true;
}

bool ShotsTab::HasScreenshotFolder() {
    const Result<FileInfo> folder = platform_.files.Info(state_.current.ScreenshotFolder);
    return folder.Ok() && folder.Value().isFolder;
}

void ShotsTab::Show(ShotListing listing) {
    listedFolder_ = state_.current.ScreenshotFolder;
    controls_.labNumShots.SetText(CountText(listing));
    if (entries_ != listing.entries) {
        controls_.lstScreenshots.UpdateItems(listing.entries);
        entries_ = std::move(listing.entries);
    }
    const bool any = !entries_.empty();
    controls_.lstScreenshots.SetBackground(any ? SystemColour::Window : SystemColour::ButtonFace);
    controls_.lstScreenshots.SetEnabled(any);
    controls_.labNumShots.SetEnabled(any);
    if (any) {
        lastSelected_ = -1;
    }
}

void ShotsTab::RefreshAndSelect(const std::string& shot) {
    if (Rebuild()) {
        SelectShot(shot);
    }
}

// What is listed changes in one step, without the list being seen empty.
void ShotsTab::RefreshAndReselect(const std::string& shot) {
    if (listedFolder_ != state_.current.ScreenshotFolder) {
        // Another mod was picked meanwhile, which may have a shot of that name.
        RefreshScreenshotList();
        return;
    }
    if (viewing_.IsLoading()) {
        // The user did not wait for the picture, so there is none yet that could stay.
        RefreshAndSelect(shot);
        return;
    }
    const Hourglass hourglass(platform_.windows);
    ++changes_;
    Show(HasScreenshotFolder() ? ListShots(platform_.files, state_.current.ScreenshotFolder)
                               : ShotListing());
    KeepShotView_ = true;
    if (SelectShot(shot)) {
        lastSelected_ = controls_.lstScreenshots.SelectedIndex();
    } else {
        // It has gone meanwhile.
        viewing_.ClearShotView();
        shot_ = {};
    }
    KeepShotView_ = false;
}

// The list is in alphabetical order, but an entry's place depends on its marker.
bool ShotsTab::SelectShot(const std::string& shot) {
    const auto at =
        std::find_if(entries_.begin(), entries_.end(), [&shot](const std::string& entry) {
            return entry.starts_with(shot) && ShotOfEntry(entry) == shot;
        });
    if (at == entries_.end()) {
        return false;
    }
    controls_.lstScreenshots.Select(static_cast<int>(at - entries_.begin()));
    return true;
}

std::vector<std::string> ShotsTab::ListedShots() const {
    std::vector<std::string> shots;
    shots.reserve(entries_.size());
    for (const std::string& entry : entries_) {
        shots.push_back(ShotOfEntry(entry));
    }
    return shots;
}

void ShotsTab::TakeEntry(const std::string& entry) {
    shot_.Name = ShotOfEntry(entry);
    shot_.Path = listedFolder_ + shot_.Name;
    shot_.ShotExtension = ShotExtension(shot_.Name);
    shot_.HasPreview = IsMarked(entry);
}

void ShotsTab::lstScreenshots_Click() {
    const int index = controls_.lstScreenshots.SelectedIndex();
    if (index < 0 || index == lastSelected_) {
        return;
    }
    lastSelected_ = index;
    TakeEntry(controls_.lstScreenshots.Item(index));
    if (std::exchange(KeepShotView_, false)) {
        return;
    }
    shot_.ShotSizeText = kUnknownSize;
    shot_.ShotDateText = kUnknownDate;
    shot_.ShotDimsText = kUnknownDims;
    if (platform_.images.Present()) {
        ShowSelectedShot();
    } else {
        ++changes_;
        viewing_.ClearShotView();
        platform_.windows.Ask(messages::ImageLibraryMissing());
    }
}

void ShotsTab::ShowSelectedShot() {
    ++changes_;
    PollShiftKey(state_, platform_);
    viewing_.BeginLoading();
    const bool inside = showing_.Runs();
    showing_.Run([this] { LoadSelectedShot(); });
    if (!inside && std::exchange(menuWaits_, false)) {
        OpenMenu();
    }
}

void ShotsTab::LoadSelectedShot() {
    const std::uint64_t change = changes_;
    if (shot_.Name.empty()) {
        return;  // the list was refreshed since
    }
    bool shown = false;
    {
        const Hourglass hourglass(platform_.windows);
        platform_.windows.PumpPending();
        if (change != changes_) {
            return;
        }
        viewing_.ShowBusyImage();
        platform_.windows.PumpPending();
        if (change != changes_) {
            return;
        }
        if (controls_.optModeReal.Selected() && !state_.ShiftHeld) {
            viewing_.ShowReal(shot_);
            shown = true;
        } else {
            viewing_.ShowPreview(shot_);
        }
        DecideDeleteAllWallpaper();
    }
    if (shown) {
        // The list then tells of the new preview image.
        const std::string name = shot_.Name;
        RefreshAndReselect(name);
    }
}

}  // namespace zentar
