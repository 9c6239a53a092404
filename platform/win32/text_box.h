// Text that the user edits, or only reads and copies: one line of it, or as many as it needs.
#pragma once

#include "platform/win32/control_colour.h"
#include "platform/win32/control_window.h"

namespace zentar {

class Win32TextBox : public ControlBase<TextBox> {
  public:
    explicit Win32TextBox(const ControlPlace& place);

    void SetText(const std::string& text) override;
    void SelectAll() override;
    void PutCaretFirst() override;
    void SetForeground(Colour colour) override;
    Colour Foreground() const override { return colours_.Foreground(); }
    void SetBackground(Colour colour) override;
    Colour Background() const override { return colours_.Background(); }

    void OnCommand(WORD code) override;
    HBRUSH OnColour(HDC context) override;

  protected:
    ControlStyle Style() const override;
    void OnMade() override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void NoteText();
    bool ClickOnlyFocuses() const;
    LRESULT DoubleClick(WPARAM keys, LPARAM at);
    std::optional<LRESULT> OnCharacter(WPARAM character);

    std::string known_;  // the text that the program has been told
    TextColours colours_;
};

}  // namespace zentar
