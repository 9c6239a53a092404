#include "platform/win32/text_box.h"

#include <utility>

#include "platform/win32/control_colour.h"
#include "platform/win32/event_dispatcher.h"
#include "platform/win32/focus_keeper.h"

namespace zentar {

Win32TextBox::Win32TextBox(const ControlPlace& place)
    : ControlBase(place, {L"EDIT", WS_TABSTOP | WS_GROUP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE}),
      known_(place.row.caption),
      background_((place.row.flags & StartsGrey) != 0 ? SystemColour::ButtonFace
                                                      : SystemColour::Window) {
    Send(EM_SETLIMITTEXT, 0);
}

void Win32TextBox::SetText(const std::string& text) {
    ControlBase::SetText(text);
    NoteText();
}

void Win32TextBox::SelectAll() { Send(EM_SETSEL, 0, -1); }

void Win32TextBox::SetBackground(SystemColour colour) {
    if (std::exchange(background_, colour) != colour) {
        InvalidateRect(Handle(), nullptr, TRUE);
    }
}

// Setting the text makes the system tell of a change as well, so both ways end here.
void Win32TextBox::NoteText() {
    std::string text = Text();
    if (text != known_) {
        known_ = std::move(text);
        Raise(&ControlEvents::change);
    }
}

void Win32TextBox::OnCommand(WORD code) {
    if (code == EN_CHANGE) {
        NoteText();
    } else if (code == EN_SETFOCUS && !Host().Focus().Restoring()) {
        Raise(&ControlEvents::gotFocus);
    }
}

HBRUSH Win32TextBox::OnColour(HDC context) { return PaintOnColour(background_, Handle(), context); }

// When getting the focus selected the text, the click that gave it would clear the selection again.
bool Win32TextBox::ClickOnlyFocuses() const {
    if (!Events().gotFocus || GetFocus() == Handle()) {
        return false;
    }
    ::SetFocus(Handle());
    DWORD first = 0;
    DWORD last = 0;
    Send(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    return first != last;
}

std::optional<LRESULT> Win32TextBox::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONDOWN && ClickOnlyFocuses()) {
        return 0;
    }
    return ControlBase::OnMessage(message, wParam, lParam);
}

}  // namespace zentar
