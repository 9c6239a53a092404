// Form2, the main window: game and mod selection on the left, five tabs on the right.

#include <vector>

#include "ui/anchors.h"
#include "ui/chat_frame_table.h"
#include "ui/demos_tab_table.h"
#include "ui/first_aid_tab_table.h"
#include "ui/form_tables.h"
#include "ui/misc_tab_table.h"
#include "ui/q3_text_tab_table.h"
#include "ui/resource.h"
#include "ui/shots_tab_table.h"

namespace zentar {
namespace {

const ControlRow kGameRows[] = {
    {.id = IDC_optGameQuake1,
     .kind = ControlKind::OptionButton,
     .rect = {12, 12, 50, 20},
     .caption = "Q1",
     .tooltip = "Click here to select Quake1 as the current game."},
    {.id = IDC_optGameQuake2,
     .kind = ControlKind::OptionButton,
     .rect = {66, 12, 50, 20},
     .caption = "Q2",
     .tooltip = "Click here to select Quake2 as the current game."},
    {.id = IDC_optGameQuake3,
     .kind = ControlKind::OptionButton,
     .rect = {120, 12, 50, 20},
     .caption = "Q3",
     .tooltip = "Click here to select Quake3 as the current game."},
    {.id = IDC_labMod,
     .kind = ControlKind::Label,
     .rect = {12, 42, 160, 16},
     .caption = "Mod Selection:"},
    {.id = IDC_lstMods,
     .kind = ControlKind::ListBox,
     .rect = {12, 60, 160, 448},
     .anchors = kGrowDown,
     .name = "Mod Selection"},
};

const ControlRow kTabRows[] = {
    {.id = IDC_SSTab1,
     .kind = ControlKind::Tab,
     .rect = {184, 10, 604, 498},
     .anchors = AnchorAll,
     .name = "Tools"},
    {.id = IDC_pagShots,
     .kind = ControlKind::TabPage,
     .parent = IDC_SSTab1,
     .caption = " Shots",
     .icon = IDI_TAB_SHOTS},
    {.id = IDC_pagDemos,
     .kind = ControlKind::TabPage,
     .parent = IDC_SSTab1,
     .caption = " Demos",
     .icon = IDI_TAB_DEMOS},
    {.id = IDC_pagMisc,
     .kind = ControlKind::TabPage,
     .parent = IDC_SSTab1,
     .caption = " Misc",
     .icon = IDI_TAB_MISC},
    {.id = IDC_pagQ3Text,
     .kind = ControlKind::TabPage,
     .parent = IDC_SSTab1,
     .caption = " Q3 Text",
     .icon = IDI_TAB_Q3TEXT},
    {.id = IDC_pagFirstAid,
     .kind = ControlKind::TabPage,
     .parent = IDC_SSTab1,
     .caption = " First Aid",
     .icon = IDI_TAB_FIRSTAID},
};

// The watch over a running game looks every three seconds.
const ControlRow kTimerRows[] = {
    {.id = IDC_tmrQ3Game, .kind = ControlKind::Timer, .interval = 3000},
};

const MenuRow kMenuBar[] = {
    {.id = IDM_mnuProgram, .kind = MenuKind::Menu, .caption = "&Program"},
    {.id = IDM_mnuProgramPreferences, .parent = IDM_mnuProgram, .caption = "&Preferences..."},
    {.kind = MenuKind::Separator, .parent = IDM_mnuProgram},
    {.id = IDM_mnuProgramExit, .parent = IDM_mnuProgram, .caption = "E&xit"},
    {.id = IDM_mnuGame, .kind = MenuKind::Menu, .caption = "&Game"},
    {.id = IDM_mnuGameQuake1, .parent = IDM_mnuGame, .caption = "&Quake"},
    {.id = IDM_mnuGameQuake2, .parent = IDM_mnuGame, .caption = "Quake &2"},
    {.id = IDM_mnuGameQuake3, .parent = IDM_mnuGame, .caption = "Quake &3: Arena"},
    {.kind = MenuKind::Separator, .parent = IDM_mnuGame},
    {.id = IDM_mnuGameGetFolder, .parent = IDM_mnuGame, .caption = "Specify &Folder..."},
    {.id = IDM_mnuGameCurrentFolders, .parent = IDM_mnuGame, .caption = "&Current Folders"},
    {.id = IDM_mnuHelp, .kind = MenuKind::Menu, .caption = "&Help"},
    {.id = IDM_mnuHelpTopics, .parent = IDM_mnuHelp, .caption = "&Help Topics"},
    {.kind = MenuKind::Separator, .parent = IDM_mnuHelp},
    {.id = IDM_mnuHelpAbout, .parent = IDM_mnuHelp, .caption = "&About Zentar"},
};

template <typename Row>
void Append(std::vector<Row>& rows, std::span<const Row> more) {
    rows.insert(rows.end(), more.begin(), more.end());
}

std::vector<ControlRow> AllControls() {
    std::vector<ControlRow> rows;
    Append<ControlRow>(rows, kGameRows);
    Append<ControlRow>(rows, kTabRows);
    Append<ControlRow>(rows, ShotsTabControlRows());
    Append<ControlRow>(rows, DemosTabControlRows());
    Append<ControlRow>(rows, MiscTabControlRows());
    Append<ControlRow>(rows, ChatFrameControlRows());
    Append<ControlRow>(rows, Q3TextTabControlRows());
    Append<ControlRow>(rows, FirstAidTabControlRows());
    Append<ControlRow>(rows, kTimerRows);
    return rows;
}

std::vector<MenuRow> AllMenus() {
    std::vector<MenuRow> rows;
    Append<MenuRow>(rows, kMenuBar);
    Append<MenuRow>(rows, ShotsMenuRows());
    Append<MenuRow>(rows, DemosMenuRows());
    return rows;
}

}  // namespace

const FormTable& MainWindowTable() {
    static const std::vector<ControlRow> controls = AllControls();
    static const std::vector<MenuRow> menus = AllMenus();
    static const FormTable table = {.id = IDW_Form2,
                                    .kind = FormKind::Main,
                                    .caption = "Zentar",
                                    .clientSize = {800, 520},
                                    .controls = controls,
                                    .menus = menus};
    return table;
}

}  // namespace zentar
