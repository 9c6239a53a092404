#include "ui/first_aid_tab_table.h"

#include "ui/anchors.h"
#include "ui/resource.h"

namespace zentar {
namespace {

const ControlRow kRows[] = {
    {.id = IDC_labFirstAid,
     .kind = ControlKind::Label,
     .parent = IDC_pagFirstAid,
     .rect = {10, 8, 576, 46},
     .anchors = kGrowRight,
     .caption = "This area is used to fix known problems associated with the Quake games.  Such "
                "fixes can be done manually by yourself but are automated here for your "
                "convenience.  Simply click on a symptom to see its remedy."},
    {.id = IDC_labSymptom,
     .kind = ControlKind::Label,
     .parent = IDC_pagFirstAid,
     .rect = {10, 58, 300, 16},
     .caption = "Symptoms"},
    {.id = IDC_lstSymptoms,
     .kind = ControlKind::ListBox,
     .parent = IDC_pagFirstAid,
     .rect = {10, 76, 576, 220},
     .anchors = kGrowRight,
     .tooltip = "Shows the game problems that are fixable by Zentar.",
     .name = "Symptoms"},
    {.id = IDC_labRemedy,
     .kind = ControlKind::Label,
     .parent = IDC_pagFirstAid,
     .rect = {10, 302, 300, 16},
     .caption = "Remedies"},
    {.id = IDC_txtRemedy,
     .kind = ControlKind::TextBox,
     .parent = IDC_pagFirstAid,
     .rect = {10, 320, 576, 98},
     .anchors = AnchorAll,
     .tooltip = "Shows remedies for the symptoms selected above.",
     .flags = ReadOnly | ManyLines,
     .name = "Remedies"},
    {.id = IDC_cmdRemedy1,
     .kind = ControlKind::Button,
     .parent = IDC_pagFirstAid,
     .rect = {10, 426, 136, 25},
     .anchors = kBottomLeft,
     .caption = "Apply Remedy #1",
     .tooltip = "Click here to apply Remedy #1 as described above.",
     .flags = StartsDisabled},
    {.id = IDC_cmdRemedy2,
     .kind = ControlKind::Button,
     .parent = IDC_pagFirstAid,
     .rect = {154, 426, 136, 25},
     .anchors = kBottomLeft,
     .caption = "Apply Remedy #2",
     .tooltip = "Click here to apply Remedy #2 as described above.",
     .flags = StartsDisabled},
};

}  // namespace

std::span<const ControlRow> FirstAidTabControlRows() { return kRows; }

}  // namespace zentar
