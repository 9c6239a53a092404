// The Shots tab: the list of the current mod's screenshots, the view of the selected one, and the
// list's popup menu.
//
// Its procedures let waiting window messages run, so any of them can run inside another. Each then
// looks whether something newer has taken its place, and if so leaves the rest to that.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/command_guard.h"
#include "core/latest_only.h"
#include "core/popup_request.h"
#include "core/program_state.h"
#include "platform/platform.h"
#include "screenshots/shot.h"
#include "screenshots/shot_conversion.h"
#include "screenshots/shot_file_operations.h"
#include "screenshots/shot_list.h"
#include "screenshots/shot_list_view.h"
#include "screenshots/shot_transfer.h"
#include "screenshots/shot_viewing.h"
#include "screenshots/shots_tab_controls.h"
#include "screenshots/wallpaper.h"

namespace zentar {

class ShotsTab : public ShotListView {
  public:
    // Binds the event procedures. `showPopup` opens the popup menu at the pointer; `showFull` shows
    // a picture in its full size until the user has seen it.
    ShotsTab(ProgramState& state, const Platform& platform, const ShotsTabControls& controls,
             std::function<void()> showPopup, std::function<void(BitmapPtr)> showFull);
    ShotsTab(const ShotsTab&) = delete;
    ShotsTab& operator=(const ShotsTab&) = delete;

    const Shot& CurrentShot() const override { return shot_; }
    const ActualShot& picShotActual() const override { return viewing_.picShotActual(); }
    std::vector<std::string> ListedShots() const override;
    const std::string& ListedFolder() const override { return listedFolder_; }
    void RefreshScreenshotList() override;
    void RefreshAndSelect(const std::string& shot) override;
    void RefreshAndReselect(const std::string& shot) override;
    void DecideDeleteAllWallpaper() override;

    // In Real mode the "Preview." caption is as any other. For the selection of a mod.
    void ResetPreviewCaption();
    void FlashPreviewOption();

    void lstScreenshots_Click();
    bool lstScreenshots_KeyDown(Key key);
    void lstScreenshots_MouseDown();
    void optModePreview_Click();
    void optModeReal_Click();
    void imgShotView_Click();
    void imgShotView_MouseDown();
    void mnuScreenshotShowFull_Click();
    void mnuScreenshotProperties_Click();

  private:
    void BindEvents();
    void BindMenu();
    std::function<void()> AsCommand(std::function<void()> command);

    bool Rebuild();
    bool HasScreenshotFolder();
    void Show(ShotListing listing);
    bool SelectShot(const std::string& shot);
    void TakeEntry(const std::string& entry);
    void ShowSelectedShot();
    void LoadSelectedShot();
    void OpenMenu();
    void DeleteByKey();
    void EnterOnList();
    void DecideMenu();

    ProgramState& state_;
    Platform platform_;
    ShotsTabControls controls_;
    ShotViewing viewing_;
    ShotFileOperations files_;
    ShotTransfer transfer_;
    ShotConversion conversion_;
    Wallpaper wallpaper_;
    std::function<void()> showPopup_;
    std::function<void(BitmapPtr)> showFull_;

    // What is listed, and of which folder.
    std::vector<std::string> entries_;
    std::string listedFolder_;
    Shot shot_;
    int lastSelected_ = -1;
    // The next selection shows nothing anew: its shot is on the screen already.
    bool KeepShotView_ = false;
    CommandGuard commands_;
    LatestOnly showing_;
    PopupRequest popup_;
    bool menuWaits_ = false;  // until the shot has been loaded
    // Counted up with every selection that shows a shot and with every refresh: how a procedure
    // notices that another one ran inside it.
    std::uint64_t changes_ = 0;
};

}  // namespace zentar
