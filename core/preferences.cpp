#include "core/preferences.h"

#include "core/messages.h"
#include "core/text.h"
#include "platform/shell.h"

namespace zentar {

Preferences::Preferences(ProgramState& state, const Platform& platform,
                         const PreferencesControls& controls)
    : state_(state), platform_(platform), controls_(controls) {
    ControlEvents remote;
    remote.change = [this] { txtRemote_Change(); };
    controls_.txtRemote.SetEvents(std::move(remote));
    controls_.cmdRemote.SetEvents(OnClick([this] { cmdRemote_Click(); }));
    controls_.chkExpert.SetEvents(OnClick([this] { chkExpert_Click(); }));
    controls_.chkAutoShowAll.SetEvents(OnClick([this] { chkAutoShowAll_Click(); }));
    controls_.chkAutoNextShot.SetEvents(OnClick([this] { chkAutoNextShot_Click(); }));
    controls_.chkAutoNextDemo.SetEvents(OnClick([this] { chkAutoNextDemo_Click(); }));
}

void Preferences::Form4_Load() {
    PrefsLoading_ = true;
    controls_.chkExpert.SetChecked(state_.settings.Expert == 1);
    controls_.chkAutoShowAll.SetChecked(state_.settings.AutoShowAll == 1);
    controls_.chkAutoNextShot.SetChecked(state_.settings.AutoNextShot == 1);
    controls_.chkAutoNextDemo.SetChecked(state_.settings.AutoNextDemo == 1);
    controls_.txtRemote.SetText(state_.settings.Remote);
}

void Preferences::Form4_Activate() { PrefsLoading_ = false; }

void Preferences::txtRemote_Change() { state_.settings.Remote = controls_.txtRemote.Text(); }

void Preferences::cmdRemote_Click() {
    const auto folder = platform_.shell.PickFolder(messages::LocateRemoteFolder());
    if (!folder) {
        return;
    }
    state_.settings.Remote = WithBackslash(*folder);
    controls_.txtRemote.SetText(state_.settings.Remote);
}

void Preferences::chkExpert_Click() {
    if (PrefsLoading_) {
        return;
    }
    state_.settings.Expert = controls_.chkExpert.Checked() ? 1 : 0;
    if (state_.settings.Expert == 0) {
        return;
    }
    if (platform_.windows.Ask(messages::SwitchingToExpertMode()) != Answer::Yes) {
        state_.settings.Expert = 0;
        controls_.chkExpert.SetChecked(false);
    }
}

void Preferences::chkAutoShowAll_Click() {
    state_.settings.AutoShowAll = controls_.chkAutoShowAll.Checked() ? 1 : 0;
}

void Preferences::chkAutoNextShot_Click() {
    state_.settings.AutoNextShot = controls_.chkAutoNextShot.Checked() ? 1 : 0;
}

void Preferences::chkAutoNextDemo_Click() {
    state_.settings.AutoNextDemo = controls_.chkAutoNextDemo.Checked() ? 1 : 0;
}

}  // namespace zentar
