#include "platform/win32/text_box.h"

#include <utility>

#include "platform/win32/event_dispatcher.h"
#include "platform/win32/focus_keeper.h"

namespace zentar {
namespace {

constexpr WPARAM kControlA = 1;  // as a character

}  // namespace

Win32TextBox::Win32TextBox(const ControlPlace& place)
    : ControlBase(place),
      known_(place.row.caption),
      colours_((place.row.flags & StartsGrey) != 0 ? SystemColour::ButtonFace
                                                   : SystemColour::Window) {}

ControlStyle Win32TextBox::Style() const {
    const DWORD lines = (Row().flags & ManyLines) != 0 ? ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL
                                                       : ES_AUTOHSCROLL;
    const DWORD readOnly = (Row().flags & ReadOnly) != 0 ? ES_READONLY : 0;
    return {L"EDIT", WS_TABSTOP | WS_GROUP | lines | readOnly, WS_EX_CLIENTEDGE};
}

void Win32TextBox::OnMade() { Send(EM_SETLIMITTEXT, 0); }

void Win32TextBox::SetText(const std::string& text) {
    ControlBase::SetText(text);
    NoteText();
}

void Win32TextBox::SelectAll() { Send(EM_SETSEL, 0, -1); }

// Where it stands in a new window.
void Win32TextBox::PutCaretFirst() {
    if (Handle() == nullptr) {
        return;
    }
    Send(EM_SETSEL, 0, 0);
    Send(EM_SCROLLCARET);
}

void Win32TextBox::SetForeground(Colour colour) {
    if (colours_.SetForeground(colour)) {
        Redraw(true);
    }
}

void Win32TextBox::SetBackground(Colour colour) {
    if (colours_.SetBackground(colour)) {
        Redraw(true);
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

HBRUSH Win32TextBox::OnColour(HDC context) { return colours_.Apply(Handle(), context); }

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

// The system selects the word, and follows the mouse from then on. It is told that the button is up
// again, since the program may open a dialog now, where it will really come up.
LRESULT Win32TextBox::DoubleClick(WPARAM keys, LPARAM at) {
    const LRESULT answer = PassOn(WM_LBUTTONDBLCLK, keys, at);
    PassOn(WM_LBUTTONUP, 0, at);
    Raise(&ControlEvents::doubleClick);
    return answer;
}

// A box of one line knows Ctrl+A by itself, but not on every system a box of many. A line ends
// there by Ctrl+M, too, and with the Tab key something would be typed that no line here has.
std::optional<LRESULT> Win32TextBox::OnCharacter(WPARAM character) {
    if (character == kControlA) {
        SelectAll();
        return 0;
    }
    const bool breaks = character == '\r' || character == '\n' || character == '\t';
    return breaks ? std::optional<LRESULT>(0) : std::nullopt;
}

std::optional<LRESULT> Win32TextBox::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONDOWN && ClickOnlyFocuses()) {
        return 0;
    }
    if (message == WM_LBUTTONDBLCLK && Events().doubleClick) {
        return DoubleClick(wParam, lParam);
    }
    if (message == WM_CHAR) {
        if (const std::optional<LRESULT> answer = OnCharacter(wParam)) {
            return answer;
        }
    }
    return ControlBase::OnMessage(message, wParam, lParam);
}

}  // namespace zentar
