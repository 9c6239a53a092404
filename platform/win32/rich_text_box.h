// Text of which each character has a colour, edited by the user.
#pragma once

#include <optional>

#include "platform/win32/control_colour.h"
#include "platform/win32/control_window.h"
#include "platform/win32/rich_text_box_editor.h"

namespace zentar {

// The system's editor takes long to load; the text is kept here until the control's window is
// needed, and where the system has none.
class Win32RichTextBox : public ControlBase<RichTextBox> {
  public:
    explicit Win32RichTextBox(const ControlPlace& place);

    void SetText(const std::string& text) override;
    std::string Text() const override;
    RichText Content() const override;
    void SetContent(const std::vector<ColouredRun>& runs) override;
    void ColourSelection(ColourRef colour) override;
    int Caret() const override;
    void PutCaret(int place) override;
    void SetBackground(Colour colour) override;

    void OnCommand(WORD code) override;
    HBRUSH OnColour(HDC context) override;

  protected:
    ControlStyle Style() const override;
    void OnMade() override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    class Busy;

    void Replace(const std::vector<ColouredRun>& runs);
    void Insert(const std::vector<ColouredRun>& runs);
    bool Copy() const;
    void Paste();
    void NoteContent();
    COLORREF ShownBackground() const;
    void ShowBackground();
    void RedrawBorder() const;
    std::optional<LRESULT> OnBorder() const;
    std::optional<LRESULT> OnForbiddenMessage(UINT message, WPARAM wParam) const;
    std::optional<LRESULT> OnClipboardMessage(UINT message);
    std::optional<LRESULT> OnTextMessage(UINT message, LPARAM lParam);
    void OnHandledMessage(UINT message);

    std::optional<RichTextEditor> editor_;
    RichText content_;  // that the program has been told of; all there is while there's no editor
    int caret_ = 0;     // while there is no editor
    TextColours colours_{SystemColour::Window};
    int busy_ = 0;          // messages that the editor is handling, and changes by the program
    bool changed_ = false;  // the editor said so; the program has not been told yet
};

}  // namespace zentar
