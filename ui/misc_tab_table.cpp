#include "ui/misc_tab_table.h"

#include "ui/resource.h"

namespace zentar {

namespace {

const ControlRow kRows[] = {
    {.id = IDC_fraDemoInstaller,
     .kind = ControlKind::Frame,
     .parent = IDC_pagMisc,
     .rect = {10, 4, 262, 118},
     .caption = "Q2 Demo Installer"},
    {.id = IDC_picDemoInstaller,
     .kind = ControlKind::Picture,
     .parent = IDC_fraDemoInstaller,
     .rect = {12, 26, 32, 32},
     .icon = IDI_INSTALLER},
    {.id = IDC_labDemoInstaller,
     .kind = ControlKind::Label,
     .parent = IDC_fraDemoInstaller,
     .rect = {56, 22, 194, 48},
     .caption = "Click the button to install a folder of demos into Q2."},
    {.id = IDC_cmdDemoInstaller,
     .kind = ControlKind::Button,
     .parent = IDC_fraDemoInstaller,
     .rect = {56, 80, 120, 25},
     .caption = "Install Demos",
     .tooltip = "Click here to select a folder of demos to install."},
    {.id = IDC_fraQ3BackRest,
     .kind = ControlKind::Frame,
     .parent = IDC_pagMisc,
     .rect = {10, 130, 262, 176},
     .caption = "Quake3 Single-Player Progress"},
    {.id = IDC_labQ3BackRest,
     .kind = ControlKind::Label,
     .parent = IDC_fraQ3BackRest,
     .rect = {12, 22, 238, 48},
     .caption = "Click a button below to backup / restore your current Quake3 progress && awards.",
     .flags = PairsOfAmpersands},
    {.id = IDC_cmdQ3Backup,
     .kind = ControlKind::Button,
     .parent = IDC_fraQ3BackRest,
     .rect = {12, 78, 114, 25},
     .caption = "Backup",
     .tooltip = "Click here to backup your current Quake3 single-player progress."},
    {.id = IDC_cmdQ3Restore,
     .kind = ControlKind::Button,
     .parent = IDC_fraQ3BackRest,
     .rect = {136, 78, 114, 25},
     .caption = "Restore",
     .tooltip = "Click here to restore your Quake3 single-player progress."},
    {.id = IDC_chkBackupAll,
     .kind = ControlKind::CheckBox,
     .parent = IDC_fraQ3BackRest,
     .rect = {12, 112, 238, 50},
     .caption = "Include name, model, sex, handicap, and railgun values when backing up.",
     .tooltip = "If unchecked, only your current awards and progress are backed-up."},
    {.id = IDC_fraQ3ConfigEdit,
     .kind = ControlKind::Frame,
     .parent = IDC_pagMisc,
     .rect = {10, 314, 262, 140},
     .caption = "Quake3 Config Editor"},
    {.id = IDC_labQ3ConfigEdit,
     .kind = ControlKind::Label,
     .parent = IDC_fraQ3ConfigEdit,
     .rect = {12, 22, 238, 48},
     .caption =
         "Click the button to edit your \"baseq3\" config file in a more user-friendly format."},
    {.id = IDC_cmdQ3ConfigEdit,
     .kind = ControlKind::Button,
     .parent = IDC_fraQ3ConfigEdit,
     .rect = {12, 80, 150, 25},
     .caption = "Edit Quake3 Config",
     .tooltip = R"(Click here to edit "baseq3\q3config.cfg" in a user-friendly format.)"},
};

}  // namespace

std::span<const ControlRow> MiscTabControlRows() { return kRows; }

}  // namespace zentar
