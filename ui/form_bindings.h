// Which controls of a window belong to which part of the program.
#pragma once

#include "core/game_selection.h"
#include "core/preferences.h"
#include "core/settings_file.h"
#include "demos/demo_installer.h"
#include "demos/demos_tab_controls.h"
#include "firstaid/first_aid_tab.h"
#include "help/help_viewer.h"
#include "platform/form.h"
#include "q3tools/q3_config_frames.h"
#include "q3tools/q3_text_controls.h"
#include "screenshots/shots_tab_controls.h"
#include "transcripts/chat_frame_controls.h"

namespace zentar {

GameSelectionControls GameSelectionControlsOf(Form& Form2);
SettingsControls SettingsControlsOf(Form& Form2);
DemosTabControls DemosTabControlsOf(Form& Form2);
ShotsTabControls ShotsTabControlsOf(Form& Form2);
DemoInstallerControls DemoInstallerControlsOf(Form& Form2);
ChatFrameControls ChatFrameControlsOf(Form& Form2);
Q3TextControls Q3TextControlsOf(Form& Form2);
Q3ConfigControls Q3ConfigControlsOf(Form& Form2);
FirstAidControls FirstAidControlsOf(Form& Form2);
PreferencesControls PreferencesControlsOf(Form& Form4);
HelpControls HelpControlsOf(Form& Form9);

}  // namespace zentar
