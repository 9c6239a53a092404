// The help window: a list of topics, or the answer to one of them in its place.
#pragma once

#include <string>

#include "core/program_state.h"
#include "platform/controls.h"

namespace zentar {

struct HelpControls {
    ListBox& lstQuestions;
    TextBox& txtAnswer;
    Label& labHeader;
    Button& cmdBack;
};

class HelpViewer {
  public:
    // Binds the controls' events; those of the window are its owner's to bind.
    HelpViewer(const ProgramState& state, const HelpControls& controls);

    // Shows the list from the section about this tab of the main window, counted from 0. To be run
    // before the window is seen, whatever it showed the last time.
    void Form9_Load(int tab);
    // Until a new user has been welcomed, brings the author's details.
    void Form9_Activate();
    // Of keys that the control with the focus had no use for.
    bool Form9_KeyDown(Key key);

    // Opens the selected topic; nothing happens on a heading or between two sections.
    void lstQuestions_DblClick();
    bool lstQuestions_KeyDown(Key key);
    bool txtAnswer_KeyDown(Key key);
    // Back to the list, as it was left.
    void cmdBack_Click();

  private:
    void SelectEntry(const std::string& text);

    const ProgramState& state_;
    HelpControls controls_;
};

}  // namespace zentar
