// Converting the screenshot that is shown to JPG.
#pragma once

#include <string>

#include "core/file_transfer.h"
#include "core/program_state.h"
#include "platform/bitmap.h"
#include "platform/platform.h"
#include "screenshots/shot_list_view.h"

namespace zentar {

class ShotConversion {
  public:
    ShotConversion(ProgramState& state, const Platform& platform, ShotListView& list)
        : state_(state), platform_(platform), list_(list) {}

    void mnuScreenshotMakeJPEGAndKill_Click();
    void mnuScreenshotMakeJPEGOnly_Click();

  private:
    bool MakeJpg(const Shot& shot, const BitmapPtr& picture, const std::string& jpg);
    bool PutInPlace(const std::string& jpg, bool overwrites, bool kills);
    void MakeCurrentImage(const Shot& shot, const Bitmap& picture);
    OriginalOutcome DeleteOriginal(const Shot& shot, const FileInfo& converted);

    ProgramState& state_;
    Platform platform_;
    ShotListView& list_;
    // The conversion that follows deletes its original. Stays set when that one ends early.
    bool KillOriginal_ = false;
};

}  // namespace zentar
