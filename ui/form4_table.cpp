// Form4, the Preferences dialog.

#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar {
namespace {

const ControlRow kRows[] = {
    {.id = IDC_tabPreferences,
     .kind = ControlKind::Tab,
     .rect = {10, 10, 548, 214},
     .name = "Preferences"},
    {.id = IDC_pagGeneral,
     .kind = ControlKind::TabPage,
     .parent = IDC_tabPreferences,
     .caption = "General "},
    {.id = IDC_labRemote,
     .kind = ControlKind::Label,
     .parent = IDC_pagGeneral,
     .rect = {14, 14, 508, 16},
     .caption = "Location of Remote Folder:",
     .tooltip = "Specifies the folder where screenshots and demos can be copied/moved to."},
    {.id = IDC_txtRemote,
     .kind = ControlKind::TextBox,
     .parent = IDC_pagGeneral,
     .rect = {14, 33, 472, 23},
     .tooltip = "Specifies the folder where screenshots and demos can be copied/moved to.",
     .name = "Location of Remote Folder"},
    {.id = IDC_cmdRemote,
     .kind = ControlKind::Button,
     .parent = IDC_pagGeneral,
     .rect = {494, 32, 32, 25},
     .caption = "...",
     .tooltip = "Click here to select a folder that you wish to be the Remote Folder.",
     .name = "Select the Remote Folder"},
    {.id = IDC_chkExpert,
     .kind = ControlKind::CheckBox,
     .parent = IDC_pagGeneral,
     .rect = {14, 74, 512, 18},
     .caption = "Use Zentar in Expert Mode (no warnings are given before any harmful actions).",
     .tooltip = "If checked, you are NOT warned before any harmful actions are done."},
    {.id = IDC_chkAutoShowAll,
     .kind = ControlKind::CheckBox,
     .parent = IDC_pagGeneral,
     .rect = {14, 100, 512, 18},
     .caption = "Automatically show all demos when initially switching to a different game mod.",
     .tooltip = "If checked, all demos for a mod are shown when initially switching to it."},
    {.id = IDC_chkAutoNextShot,
     .kind = ControlKind::CheckBox,
     .parent = IDC_pagGeneral,
     .rect = {14, 126, 512, 18},
     .caption = "Automatically select the next screenshot or image after deleting the current.",
     .tooltip =
         "If checked, the next screenshot or image is selected after you delete the current."},
    {.id = IDC_chkAutoNextDemo,
     .kind = ControlKind::CheckBox,
     .parent = IDC_pagGeneral,
     .rect = {14, 152, 512, 18},
     .caption = "Automatically select the next demo after deleting the current.",
     .tooltip = "If checked, the next demo is selected after you delete the current."},
};

}  // namespace

const FormTable& PreferencesTable() {
    static const FormTable table = {.id = IDW_Form4,
                                    .kind = FormKind::Dialog,
                                    .caption = "Preferences",
                                    .clientSize = {568, 234},
                                    .controls = kRows,
                                    .menus = {}};
    return table;
}

}  // namespace zentar
