// The Q3 Text tab: a text whose characters the user colours, and the code that shows it in the
// game.
#pragma once

#include <string>

#include "core/command_guard.h"
#include "core/program_state.h"
#include "platform/platform.h"
#include "q3tools/q3_text_controls.h"

namespace zentar {

class Q3TextTab {
  public:
    // Binds the controls' events and prepares the editor.
    Q3TextTab(ProgramState& state, const Platform& platform, const Q3TextControls& controls);
    Q3TextTab(const Q3TextTab&) = delete;
    Q3TextTab& operator=(const Q3TextTab&) = delete;

    // At start-up: the text kept as "current.ini", if there is one, and then the one used last.
    void LoadCurrent();
    void LoadLastUsed();

    // Makes the code anew; nothing is selected afterwards.
    void BuildQ3TextCode();

    void rtbQ3Text_Change();
    void cmdQ3TextSave_Click();
    void cmdQ3TextOpen_Click();
    void cmdQ3TextClipboard_Click();
    void cmdQ3TextQ3Config_Click();

  private:
    void BindEditor();
    void BindTypes();
    void BindCommands();
    void ColourSelection(ColourRef colour);
    bool Load(const std::string& path);

    ProgramState& state_;
    Platform platform_;
    Q3TextControls controls_;
    CommandGuard guard_;
};

}  // namespace zentar
