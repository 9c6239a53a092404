// The Preferences dialog. Every change counts at once; there is nothing to confirm or cancel.
#pragma once

#include "core/program_state.h"
#include "platform/controls.h"
#include "platform/platform.h"

namespace zentar {

struct PreferencesControls {
    TextBox& txtRemote;
    Button& cmdRemote;
    CheckBox& chkExpert;
    CheckBox& chkAutoShowAll;
    CheckBox& chkAutoNextShot;
    CheckBox& chkAutoNextDemo;
};

class Preferences {
  public:
    // Binds the controls' events.
    Preferences(ProgramState& state, const Platform& platform, const PreferencesControls& controls);

    // Fills the controls; to be run before the dialog is shown.
    void Form4_Load();
    void Form4_Activate();

    void txtRemote_Change();
    void cmdRemote_Click();
    void chkExpert_Click();
    void chkAutoShowAll_Click();
    void chkAutoNextShot_Click();
    void chkAutoNextDemo_Click();

  private:
    ProgramState& state_;
    Platform platform_;
    PreferencesControls controls_;
    // Set while the dialog fills its controls, so that ticking the Expert box by program asks
    // nothing.
    bool PrefsLoading_ = false;
};

}  // namespace zentar
