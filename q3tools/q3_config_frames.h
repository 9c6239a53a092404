// The two frames of the Misc tab that work on Quake 3's configuration: single-player progress, and
// the config editor.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/command_guard.h"
#include "core/program_state.h"
#include "platform/controls.h"
#include "platform/platform.h"
#include "platform/window_services.h"

namespace zentar {

struct Q3ConfigControls {
    Button& cmdQ3Backup;
    Button& cmdQ3Restore;
    CheckBox& chkBackupAll;
    Button& cmdQ3ConfigEdit;
};

class Q3ConfigFrames {
  public:
    // Binds the buttons' event procedures.
    Q3ConfigFrames(ProgramState& state, const Platform& platform, const Q3ConfigControls& controls);
    Q3ConfigFrames(const Q3ConfigFrames&) = delete;
    Q3ConfigFrames& operator=(const Q3ConfigFrames&) = delete;

    void cmdQ3Backup_Click();
    void cmdQ3Restore_Click();
    void cmdQ3ConfigEdit_Click();

  private:
    std::optional<std::string> ChooseBackup(const std::string& config);
    // Under the hourglass.
    Status AtWork(const std::function<Status()>& work);
    void Report(const Status& done, const Message& failure);

    ProgramState& state_;
    Platform platform_;
    Q3ConfigControls controls_;
    CommandGuard guard_;
};

}  // namespace zentar
