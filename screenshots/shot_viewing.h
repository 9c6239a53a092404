// Showing a screenshot: the picture itself, or its small preview image.
#pragma once

#include "core/program_state.h"
#include "platform/platform.h"
#include "screenshots/shot.h"
#include "screenshots/shots_tab_controls.h"

namespace zentar {

class ShotViewing {
  public:
    ShotViewing(ProgramState& state, const Platform& platform, const ShotsTabControls& controls)
        : state_(state), platform_(platform), controls_(controls) {}

    const ActualShot& picShotActual() const { return actual_; }

    void ClearShotView();
    // Another shot is going to be shown; nothing can be done any more with the picture before it.
    void BeginLoading();
    // Until ShowReal or ShowPreview has shown it, or it was cleared away.
    bool IsLoading() const { return loading_; }
    // Shown while a shot is being loaded.
    void ShowBusyImage();
    // Decodes the shot, shows it, makes its preview image anew and fills in its properties.
    void ShowReal(Shot& shot);
    // Shows the preview image alone, if there is one.
    void ShowPreview(Shot& shot);

  private:
    void EnablePictureCommands(bool convert, bool show);
    void Decode(const Shot& shot);
    void FillFileProperties(Shot& shot);
    void MakePreview(const Shot& shot);

    ProgramState& state_;
    Platform platform_;
    ShotsTabControls controls_;
    bool loading_ = false;
    ActualShot actual_;
    BitmapPtr busyImage_;
};

}  // namespace zentar
