#include "q3tools/q3_text_tab.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "core/file_name.h"
#include "core/game_text.h"
#include "core/questions.h"
#include "platform/file_system.h"
#include "platform/window_services.h"
#include "q3tools/colour_codes.h"
#include "q3tools/q3_config.h"
#include "q3tools/q3_config_search.h"
#include "q3tools/q3_text_files.h"
#include "q3tools/q3_text_messages.h"

namespace zentar {
namespace {

// In the order of their buttons.
constexpr std::array<ColourRef, kQ3Colours> kColours = {kQ3Black, kQ3Red,  kQ3Green,   kQ3Yellow,
                                                        kQ3Blue,  kQ3Cyan, kQ3Magenta, kQ3White};

// An orange on which black, white and yellow letters can all be read.
constexpr ColourRef kEditorBackground = 0x006CD8;

}  // namespace

Q3TextTab::Q3TextTab(ProgramState& state, const Platform& platform, const Q3TextControls& controls)
    : state_(state), platform_(platform), controls_(controls) {
    controls_.rtbQ3Text.SetBackground(kEditorBackground);
    BindEditor();
    BindTypes();
    BindCommands();
}

void Q3TextTab::BindEditor() {
    ControlEvents editor;
    editor.change = [this] { rtbQ3Text_Change(); };
    controls_.rtbQ3Text.SetEvents(std::move(editor));
    for (std::size_t i = 0; i < kQ3Colours; ++i) {
        ControlEvents events;
        events.click = [this, i] { ColourSelection(kColours[i]); };
        controls_.cmdColour[i]->SetEvents(std::move(events));
    }
}

void Q3TextTab::BindTypes() {
    for (std::size_t type = 0; type < kQ3TextTypes; ++type) {
        ControlEvents events;
        events.click = [this, type] {
            state_.settings.Q3TextType = static_cast<std::uint8_t>(type);
            BuildQ3TextCode();
        };
        controls_.optQ3Text[type]->SetEvents(std::move(events));
    }
    for (CheckBox* option : {&controls_.chkQ3TextKeyfox, &controls_.chkQ3TextOSP}) {
        ControlEvents events;
        events.click = [this] { BuildQ3TextCode(); };
        option->SetEvents(std::move(events));
    }
}

void Q3TextTab::BindCommands() {
    controls_.cmdQ3TextSave.SetEvents(GuardedClick(guard_, [this] { cmdQ3TextSave_Click(); }));
    controls_.cmdQ3TextOpen.SetEvents(GuardedClick(guard_, [this] { cmdQ3TextOpen_Click(); }));
    controls_.cmdQ3TextClipboard.SetEvents(
        GuardedClick(guard_, [this] { cmdQ3TextClipboard_Click(); }));
    controls_.cmdQ3TextQ3Config.SetEvents(
        GuardedClick(guard_, [this] { cmdQ3TextQ3Config_Click(); }));
}

void Q3TextTab::LoadCurrent() {
    BuildQ3TextCode();
    Load(state_.Q3TextFolder + "current.ini");
}

void Q3TextTab::LoadLastUsed() {
    if (!state_.settings.Q3TextText.empty()) {
        Load(state_.settings.Q3TextText);
    }
    RichTextBox& editor = controls_.rtbQ3Text;
    editor.PutCaret(static_cast<int>(editor.Text().size()));
    BuildQ3TextCode();
}

bool Q3TextTab::Load(const std::string& path) {
    const Result<std::vector<ColouredRun>> runs = LoadColouredText(platform_.files, path);
    if (runs.Ok()) {
        controls_.rtbQ3Text.SetContent(runs.Value());
    }
    return runs.Ok();
}

void Q3TextTab::BuildQ3TextCode() {
    RichTextBox& editor = controls_.rtbQ3Text;
    const RichText content = editor.Content();
    controls_.txtQ3TextCode.SetText(zentar::BuildQ3TextCode(
        content, {.type = static_cast<Q3TextType>(state_.settings.Q3TextType),
                  .keyfox = controls_.chkQ3TextKeyfox.Checked(),
                  .osp = controls_.chkQ3TextOSP.Checked()}));
    editor.PutCaret(editor.Caret());
    const bool hasText = !content.runs.empty();
    for (Button* button :
         {&controls_.cmdQ3TextClipboard, &controls_.cmdQ3TextQ3Config, &controls_.cmdQ3TextSave}) {
        button->SetEnabled(hasText);
    }
}

// A double quote would end the text in the game's console.
void Q3TextTab::rtbQ3Text_Change() {
    RichTextBox& editor = controls_.rtbQ3Text;
    const int caret = editor.Caret();
    std::string text = editor.Text();
    if (text.find('"') != std::string::npos) {
        std::replace(text.begin(), text.end(), '"', '\'');
        editor.SetText(text);
    }
    BuildQ3TextCode();
    editor.PutCaret(caret);
}

void Q3TextTab::ColourSelection(ColourRef colour) {
    controls_.rtbQ3Text.ColourSelection(colour);
    BuildQ3TextCode();
    // Where the user goes on typing.
    controls_.rtbQ3Text.SetFocus();
}

void Q3TextTab::cmdQ3TextSave_Click() {
    const RichText content = controls_.rtbQ3Text.Content();
    const std::optional<std::string> path =
        platform_.windows.ChooseFileToSave(messages::ColouredTextToSave(
            state_.Q3TextFolder, SuggestedFileName(controls_.rtbQ3Text.Text())));
    if (!path || path->empty() ||
        !MayReplaceFile(state_, platform_, *path,
                        messages::ReallyOverwriteColouredText(StemOf(*path)),
                        messages::OverwriteReadOnlyColouredText())) {
        return;
    }
    state_.settings.Q3TextText = *path;
    // Usually it is not there yet.
    IgnoreFailure(platform_.files.ClearAttributes(*path));
    if (!SaveColouredText(platform_.files, *path, content.runs).Ok()) {
        platform_.windows.Ask(messages::ColouredTextNotSaved());
    }
}

void Q3TextTab::cmdQ3TextOpen_Click() {
    const std::optional<std::string> path =
        platform_.windows.ChooseFileToOpen(messages::ColouredTextToOpen(state_.Q3TextFolder));
    if (!path || path->empty()) {
        return;
    }
    state_.settings.Q3TextText = *path;
    if (!Load(*path)) {
        platform_.windows.Ask(messages::ColouredTextNotOpened());
    }
}

void Q3TextTab::cmdQ3TextClipboard_Click() {
    if (!Confirmed(state_, platform_.windows, messages::ReallyCopyCode())) {
        return;
    }
    // As a command in the game's console, where a word alone would be speech.
    const std::string slash = controls_.chkQ3TextAddSlash.Checked() ? "\\" : "";
    if (!platform_.windows.PutOnClipboard(slash + controls_.txtQ3TextCode.Text()).Ok()) {
        platform_.windows.Ask(messages::CodeNotCopied());
    }
}

void Q3TextTab::cmdQ3TextQ3Config_Click() {
    const std::optional<std::string> path = FindQ3Config(state_, platform_, "add to");
    if (!path || !Confirmed(state_, platform_.windows, messages::ReallyAddCode()) ||
        !MayChangeFile(platform_, *path, messages::AddToReadOnlyConfig())) {
        return;
    }
    // Where that is refused, so is the line, and its message says why.
    IgnoreFailure(platform_.files.ClearAttributes(*path));
    const std::string line = Utf8ToGameText(controls_.txtQ3TextCode.Text()) + "\r\n";
    if (!AppendToConfig(platform_.files, *path, line).Ok()) {
        platform_.windows.Ask(messages::CodeNotAdded());
        return;
    }
    platform_.windows.Sound(Beep::Information);
}

}  // namespace zentar
