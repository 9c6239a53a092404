// Form9, the help window: a list of topics, or an answer in its place.

#include "help/help_topics.h"
#include "ui/anchors.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar {
namespace {

// The list and the answer take turns.
constexpr Rect kListAndAnswer = {8, 44, 289, 266};

const ControlRow kRows[] = {
    {.id = IDC_labHeader,
     .kind = ControlKind::Label,
     .rect = {8, 8, 289, 32},
     .anchors = kGrowRight,
     .caption = kHelpPrompt},
    {.id = IDC_lstQuestions,
     .kind = ControlKind::ListBox,
     .rect = kListAndAnswer,
     .anchors = AnchorAll,
     .name = "Help topics"},
    {.id = IDC_txtAnswer,
     .kind = ControlKind::TextBox,
     .rect = kListAndAnswer,
     .anchors = AnchorAll,
     .flags = ReadOnly | ManyLines | StartsHidden,
     .name = "Answer"},
    {.id = IDC_cmdBack,
     .kind = ControlKind::Button,
     .rect = {8, 317, 90, 25},
     .anchors = kBottomLeft,
     .caption = "&Back",
     .tooltip = "Click here to return to the list of help topics.",
     .flags = StartsDisabled},
};

}  // namespace

const FormTable& HelpTable() {
    static const FormTable table = {.id = IDW_Form9,
                                    .kind = FormKind::Companion,
                                    .caption = "Zentar Help",
                                    .clientSize = {305, 350},
                                    .controls = kRows,
                                    .menus = {},
                                    .outerSize = {321, 389}};
    return table;
}

}  // namespace zentar
