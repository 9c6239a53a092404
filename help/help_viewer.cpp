#include "help/help_viewer.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "help/help_topics.h"

namespace zentar {

HelpViewer::HelpViewer(const ProgramState& state, const HelpControls& controls)
    : state_(state), controls_(controls) {
    ControlEvents list;
    list.doubleClick = [this] { lstQuestions_DblClick(); };
    list.keyDown = [this](Key key) { return lstQuestions_KeyDown(key); };
    controls_.lstQuestions.SetEvents(std::move(list));

    ControlEvents answer;
    answer.keyDown = [this](Key key) { return txtAnswer_KeyDown(key); };
    controls_.txtAnswer.SetEvents(std::move(answer));

    ControlEvents back;
    back.click = [this] { cmdBack_Click(); };
    controls_.cmdBack.SetEvents(std::move(back));
}

void HelpViewer::Form9_Load(int tab) {
    cmdBack_Click();
    controls_.lstQuestions.SetItems(HelpEntries());
    SelectEntry(std::string(HeadingForTab(tab)));
    controls_.lstQuestions.ShowFirst(controls_.lstQuestions.SelectedIndex());
}

void HelpViewer::Form9_Activate() {
    if (state_.settings.Virgin == 1) {
        SelectEntry(EntryOfTopic(kAuthorDetails));
        lstQuestions_DblClick();
    }
}

void HelpViewer::SelectEntry(const std::string& text) {
    const std::vector<std::string> entries = HelpEntries();
    const auto at = std::find(entries.begin(), entries.end(), text);
    controls_.lstQuestions.Select(at == entries.end() ? -1
                                                      : static_cast<int>(at - entries.begin()));
}

// A button tells of its clicks only, so the window looks after this key for it.
bool HelpViewer::Form9_KeyDown(Key key) {
    if (key != Key::Backspace || !controls_.cmdBack.HasFocus()) {
        return false;
    }
    cmdBack_Click();
    return true;
}

void HelpViewer::lstQuestions_DblClick() {
    const int index = controls_.lstQuestions.SelectedIndex();
    const std::string entry = index < 0 ? std::string() : controls_.lstQuestions.Item(index);
    const HelpTopic* topic = TopicOfEntry(entry);
    if (topic == nullptr) {
        return;
    }
    controls_.txtAnswer.SetText(std::string(topic->answer));
    controls_.txtAnswer.PutCaretFirst();
    controls_.labHeader.SetText(entry);
    controls_.lstQuestions.SetVisible(false);
    controls_.txtAnswer.SetVisible(true);
    controls_.cmdBack.SetEnabled(true);
    controls_.cmdBack.SetFocus();
}

bool HelpViewer::lstQuestions_KeyDown(Key key) {
    if (key != Key::Enter) {
        return false;
    }
    lstQuestions_DblClick();
    return true;
}

bool HelpViewer::txtAnswer_KeyDown(Key key) {
    if (key != Key::Enter && key != Key::Backspace) {
        return false;
    }
    cmdBack_Click();
    return true;
}

void HelpViewer::cmdBack_Click() {
    controls_.lstQuestions.SetVisible(true);
    // Before what has the focus goes: the arrow keys then work in the list at once.
    controls_.lstQuestions.SetFocus();
    controls_.txtAnswer.SetVisible(false);
    controls_.cmdBack.SetEnabled(false);
    controls_.labHeader.SetText(kHelpPrompt);
}

}  // namespace zentar
