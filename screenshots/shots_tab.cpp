#include "screenshots/shots_tab.h"

#include <utility>

#include "platform/image_library.h"
#include "platform/window_services.h"
#include "screenshots/shot_menu.h"
#include "screenshots/shot_messages.h"

namespace zentar {

ShotsTab::ShotsTab(ProgramState& state, const Platform& platform, const ShotsTabControls& controls,
                   std::function<void()> showPopup, std::function<void(BitmapPtr)> showFull)
    : state_(state),
      platform_(platform),
      controls_(controls),
      viewing_(state, platform, controls_),
      files_(state, platform, *this),
      transfer_(state, platform, *this),
      conversion_(state, platform, *this),
      wallpaper_(state, platform, *this),
      showPopup_(std::move(showPopup)),
      showFull_(std::move(showFull)) {
    BindEvents();
    BindMenu();
}

void ShotsTab::BindEvents() {
    ControlEvents list;
    list.click = [this] { lstScreenshots_Click(); };
    list.menuRequested = [this] { lstScreenshots_MouseDown(); };
    list.keyDown = [this](Key key) { return lstScreenshots_KeyDown(key); };
    controls_.lstScreenshots.SetEvents(std::move(list));

    ControlEvents view;
    view.click = [this] { imgShotView_Click(); };
    view.menuRequested = [this] { imgShotView_MouseDown(); };
    controls_.imgShotView.SetEvents(std::move(view));

    ControlEvents preview;
    preview.click = [this] { optModePreview_Click(); };
    controls_.optModePreview.SetEvents(std::move(preview));

    ControlEvents real;
    real.click = [this] { optModeReal_Click(); };
    controls_.optModeReal.SetEvents(std::move(real));
}

void ShotsTab::BindMenu() {
    const auto bind = [this](MenuEntry& entry, std::function<void()> command) {
        entry.SetClick(AsCommand(std::move(command)));
    };
    bind(controls_.mnuScreenshotShowFull, [this] { mnuScreenshotShowFull_Click(); });
    bind(controls_.mnuScreenshotProperties, [this] { mnuScreenshotProperties_Click(); });
    bind(controls_.mnuScreenshotMakeJPEGOnly,
         [this] { conversion_.mnuScreenshotMakeJPEGOnly_Click(); });
    bind(controls_.mnuScreenshotMakeJPEGAndKill,
         [this] { conversion_.mnuScreenshotMakeJPEGAndKill_Click(); });
    bind(controls_.mnuScreenshotSetWallpaper,
         [this] { wallpaper_.mnuScreenshotSetWallpaper_Click(); });
    bind(controls_.mnuScreenshotDelete, [this] { files_.mnuScreenshotDelete_Click(); });
    bind(controls_.mnuScreenshotDeletePreview,
         [this] { files_.mnuScreenshotDeletePreview_Click(); });
    bind(controls_.mnuScreenshotRename, [this] { files_.mnuScreenshotRename_Click(); });
    bind(controls_.mnuScreenshotCopy,
         [this] { transfer_.TransferShotToRemote(TransferVerb::Copy); });
    bind(controls_.mnuScreenshotMove,
         [this] { transfer_.TransferShotToRemote(TransferVerb::Move); });
    bind(controls_.mnuScreenshotDeleteAllWallpaper,
         [this] { wallpaper_.mnuScreenshotDeleteAllWallpaper_Click(); });
    bind(controls_.mnuScreenshotDeleteAll, [this] { files_.mnuScreenshotDeleteAll_Click(); });
    bind(controls_.mnuScreenshotDeleteAllPreview,
         [this] { files_.mnuScreenshotDeleteAllPreview_Click(); });
    bind(controls_.mnuScreenshotDeleteAllJPG, [this] { files_.mnuScreenshotDeleteAllJPG_Click(); });
    bind(controls_.mnuScreenshotDeleteAllTGA, [this] { files_.mnuScreenshotDeleteAllTGA_Click(); });
    bind(controls_.mnuScreenshotDeleteAllPCX, [this] { files_.mnuScreenshotDeleteAllPCX_Click(); });
    controls_.mnuScreenshotRefresh.SetClick([this] { RefreshScreenshotList(); });
}

std::function<void()> ShotsTab::AsCommand(std::function<void()> command) {
    return [this, command = std::move(command)] { commands_.Run(command); };
}

bool ShotsTab::lstScreenshots_KeyDown(Key key) {
    switch (key) {
        case Key::F2:
            commands_.Run([this] { files_.mnuScreenshotRename_Click(); });
            return true;
        case Key::F5:
            RefreshScreenshotList();
            return true;
        case Key::Delete:
        case Key::Backspace:
            DeleteByKey();
            return true;
        case Key::Enter:
            EnterOnList();
            return true;
        default:
            return false;
    }
}

void ShotsTab::DeleteByKey() {
    if (platform_.windows.IsDown(PollKey::Shift)) {
        commands_.Run([this] { files_.mnuScreenshotDeletePreview_Click(); });
    } else {
        commands_.Run([this] { files_.mnuScreenshotDelete_Click(); });
    }
}

void ShotsTab::EnterOnList() {
    if (controls_.optModePreview.Selected()) {
        commands_.Run([this] { FlashPreviewOption(); });
    } else if (controls_.mnuScreenshotShowFull.Enabled()) {
        commands_.Run([this] { mnuScreenshotShowFull_Click(); });
    }
}

void ShotsTab::lstScreenshots_MouseDown() {
    if (!popup_.SelectAtPointer(controls_.lstScreenshots, platform_.windows)) {
        return;
    }
    if (showing_.Runs()) {
        menuWaits_ = true;  // for the shot, which is still being loaded
        return;
    }
    OpenMenu();
}

void ShotsTab::OpenMenu() {
    DecideMenu();
    showPopup_();
}

void ShotsTab::DecideMenu() {
    const bool previewOnly = controls_.optModePreview.Selected() || state_.ShiftHeld;
    const ShotMenu menu = DecideShotMenu(shot_, platform_.images.Present(), previewOnly);
    controls_.mnuScreenshotShowFull.SetEnabled(menu.showFull);
    controls_.mnuScreenshotMakeJPEGOnly.SetEnabled(menu.convert);
    controls_.mnuScreenshotMakeJPEGAndKill.SetEnabled(menu.convert);
    controls_.mnuScreenshotSetWallpaper.SetEnabled(menu.setWallpaper);
    controls_.mnuScreenshotDeletePreview.SetEnabled(menu.deletePreview);
    controls_.mnuScreenshotDelete.SetEnabled(menu.fileCommands);
    controls_.mnuScreenshotRename.SetEnabled(menu.fileCommands);
    controls_.mnuScreenshotCopy.SetEnabled(menu.fileCommands);
    controls_.mnuScreenshotMove.SetEnabled(menu.fileCommands);
    DecideDeleteAllWallpaper();
}

void ShotsTab::DecideDeleteAllWallpaper() {
    controls_.mnuScreenshotDeleteAllWallpaper.SetEnabled(
        !FindWallpapers(platform_.files, state_.WindowsFolder).empty());
}

void ShotsTab::optModePreview_Click() {
    controls_.optModePreview.SetCaptionColour(CaptionColour::Red);
    RefreshScreenshotList();
}

void ShotsTab::optModeReal_Click() {
    controls_.optModePreview.SetCaptionColour(CaptionColour::Normal);
    RefreshScreenshotList();
}

void ShotsTab::ResetPreviewCaption() {
    if (controls_.optModeReal.Selected()) {
        controls_.optModePreview.SetCaptionColour(CaptionColour::Normal);
    }
}

void ShotsTab::FlashPreviewOption() {
    constexpr int kSteps = 6;
    constexpr int kStepMilliseconds = 100;
    platform_.windows.Sound(Beep::Exclamation);
    for (int step = 1; step <= kSteps; ++step) {
        controls_.optModePreview.SetCaptionColour(step % 2 == 0 ? CaptionColour::Red
                                                                : CaptionColour::Vanished);
        platform_.windows.PumpPending();
        if (!controls_.optModePreview.Selected()) {
            return;  // the user has understood, and the caption is as it should be
        }
        platform_.windows.Sleep(kStepMilliseconds);
    }
}

void ShotsTab::imgShotView_Click() {
    if (controls_.optModeReal.Selected() && controls_.mnuScreenshotShowFull.Enabled()) {
        commands_.Run([this] { mnuScreenshotShowFull_Click(); });
    }
}

void ShotsTab::imgShotView_MouseDown() { showPopup_(); }

void ShotsTab::mnuScreenshotShowFull_Click() {
    if (const BitmapPtr picture = viewing_.picShotActual().picture) {
        showFull_(picture);
    }
}

void ShotsTab::mnuScreenshotProperties_Click() {
    if (!shot_.Name.empty()) {
        platform_.windows.Ask(messages::ShotProperties(shot_));
    }
}

}  // namespace zentar
