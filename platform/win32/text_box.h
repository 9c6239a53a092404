// One line of text that the user edits.
#pragma once

#include "platform/win32/control_window.h"

namespace zentar {

class Win32TextBox : public ControlBase<TextBox> {
  public:
    explicit Win32TextBox(const ControlPlace& place);

    void SetText(const std::string& text) override;
    void SelectAll() override;
    void SetBackground(SystemColour colour) override;
    SystemColour Background() const override { return background_; }

    void OnCommand(WORD code) override;
    HBRUSH OnColour(HDC context) override;

  protected:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void NoteText();
    bool ClickOnlyFocuses() const;

    std::string known_;  // the text that the program has been told
    SystemColour background_;
};

}  // namespace zentar
