// Deleting and renaming screenshots and their preview images.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/program_state.h"
#include "platform/platform.h"
#include "platform/window_services.h"
#include "screenshots/shot_list_view.h"

namespace zentar {

class ShotFileOperations {
  public:
    ShotFileOperations(ProgramState& state, const Platform& platform, ShotListView& list)
        : state_(state), platform_(platform), list_(list) {}

    void mnuScreenshotDelete_Click();
    void mnuScreenshotDeletePreview_Click();
    void mnuScreenshotDeleteAll_Click();
    void mnuScreenshotDeleteAllPreview_Click();
    void mnuScreenshotDeleteAllJPG_Click();
    void mnuScreenshotDeleteAllTGA_Click();
    void mnuScreenshotDeleteAllPCX_Click();
    void mnuScreenshotRename_Click();

  private:
    // Deleting every file of a kind.
    struct Sweep {
        Message question;
        std::function<bool(std::string_view name)> isMeant;
        Message readOnlyQuestion;
        std::function<void(const std::string& path)> afterwards;  // of each that has gone
    };
    void DeleteAll(const Sweep& sweep);
    void DeletePreviewOf(const std::string& shotPath);
    void DeletePreviewOfJpg(const std::string& jpgPath);
    // `listed` are the shots that were listed when the command began.
    void Rename(const Shot& shot, const std::string& name, const std::vector<std::string>& listed);
    void RenamePreview(const std::string& from, const std::string& to,
                       const std::vector<std::string>& listed);

    ProgramState& state_;
    Platform platform_;
    ShotListView& list_;
};

}  // namespace zentar
