#include "platform/win32/buttons.h"

#include <commctrl.h>

#include <algorithm>

#include "platform/win32/themed_option.h"
#include "platform/win32/units.h"

namespace zentar {
namespace {

DWORD Wrapping(const ControlRow& row) { return row.rect.height < kTwoLines ? 0 : BS_MULTILINE; }

bool IsTicked(HWND button) { return SendMessageW(button, BM_GETCHECK, 0, 0) == BST_CHECKED; }

void TickButton(HWND button, bool ticked) {
    SendMessageW(button, BM_SETCHECK, ticked ? BST_CHECKED : BST_UNCHECKED, 0);
}

DWORD PushStyle(const ControlRow& row) {
    return (row.flags & PressedByEnter) != 0 ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
}

void MakeDefault(HWND button, bool isDefault) {
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(button, GWL_STYLE));
    SendMessageW(button, BM_SETSTYLE,
                 (isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) | (style & BS_MULTILINE), TRUE);
}

}  // namespace

ControlStyle Win32Button::Style() const {
    return {L"BUTTON", WS_TABSTOP | WS_GROUP | PushStyle(Row()) | Wrapping(Row())};
}

void Win32Button::OnCommand(WORD code) {
    if (code == BN_CLICKED) {
        Raise(&ControlEvents::click);
    }
}

std::optional<LRESULT> Win32Button::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // Enter presses the button that has the focus, so that one looks like it, and no other.
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
        const bool focused = message == WM_SETFOCUS;
        const HWND otherwise = Host().DefaultButton();
        MakeDefault(Handle(), focused || otherwise == Handle());
        if (otherwise != nullptr && otherwise != Handle()) {
            MakeDefault(otherwise, !focused);
        }
    }
    return ControlBase::OnMessage(message, wParam, lParam);
}

Win32CheckBox::Win32CheckBox(const ControlPlace& place)
    : ControlBase(place), known_((place.row.flags & StartsChecked) != 0) {}

ControlStyle Win32CheckBox::Style() const {
    return {L"BUTTON", WS_TABSTOP | WS_GROUP | BS_AUTOCHECKBOX | Wrapping(Row())};
}

void Win32CheckBox::OnMade() { TickButton(Handle(), known_); }

void Win32CheckBox::SetChecked(bool checked) {
    if (Handle() != nullptr) {
        TickButton(Handle(), checked);
        NoteState();
    } else if (known_ != checked) {
        known_ = checked;
        Raise(&ControlEvents::click);
    }
}

bool Win32CheckBox::Checked() const { return Handle() == nullptr ? known_ : IsTicked(Handle()); }

void Win32CheckBox::OnCommand(WORD code) {
    if (code == BN_CLICKED) {
        NoteState();
    }
}

void Win32CheckBox::NoteState() {
    if (known_ != Checked()) {
        known_ = !known_;
        Raise(&ControlEvents::click);
    }
}

Win32OptionButton::Win32OptionButton(const ControlPlace& place, bool startsRun, OptionGroup& group)
    : ControlBase(place),
      startsRun_(startsRun),
      ticked_((place.row.flags & StartsChecked) != 0),
      group_(group),
      known_(ticked_) {
    group_.buttons.push_back(this);
}

ControlStyle Win32OptionButton::Style() const {
    return {L"BUTTON", BS_AUTORADIOBUTTON | Wrapping(Row()) | (startsRun_ ? WS_GROUP : 0)};
}

void Win32OptionButton::OnMade() {
    TickButton(Handle(), ticked_);
    KeepOneStop();
}

void Win32OptionButton::Tick(bool ticked) {
    if (Handle() == nullptr) {
        ticked_ = ticked;
    } else {
        TickButton(Handle(), ticked);
    }
}

// The Tab key stops at the selected button alone; with none selected, at the first, or the group
// would be out of the keyboard's reach.
void Win32OptionButton::KeepOneStop() const {
    const auto selected =
        std::find_if(group_.buttons.begin(), group_.buttons.end(),
                     [](const Win32OptionButton* option) { return option->Selected(); });
    const Win32OptionButton* stop =
        selected == group_.buttons.end() ? group_.buttons.front() : *selected;
    for (const Win32OptionButton* option : group_.buttons) {
        if (option->Handle() == nullptr) {
            continue;
        }
        const LONG_PTR style = GetWindowLongPtrW(option->Handle(), GWL_STYLE);
        const LONG_PTR wanted = option == stop ? style | WS_TABSTOP : style & ~LONG_PTR{WS_TABSTOP};
        if (style != wanted) {
            SetWindowLongPtrW(option->Handle(), GWL_STYLE, wanted);
        }
    }
}

void Win32OptionButton::SetSelected(bool selected) {
    if (selected) {
        for (Win32OptionButton* option : group_.buttons) {
            if (option != this && option->Selected()) {
                option->Tick(false);
            }
        }
    }
    Tick(selected);
    NoteState();
}

bool Win32OptionButton::Selected() const {
    return Handle() == nullptr ? ticked_ : IsTicked(Handle());
}

void Win32OptionButton::SetCaptionColour(CaptionColour colour) {
    if (captionColour_ != colour) {
        captionColour_ = colour;
        Redraw(true);
    }
}

// One that takes no input is grey, as every other is.
bool Win32OptionButton::CaptionIsColoured() const {
    return captionColour_ != CaptionColour::Normal && IsWindowEnabled(Handle());
}

// The colour of the context counts only without visual styles.
HBRUSH Win32OptionButton::OnColour(HDC context) {
    const HBRUSH behind = ControlWindow::OnColour(context);
    if (CaptionIsColoured()) {
        SetTextColor(context,
                     captionColour_ == CaptionColour::Red ? kRedCaption : GetBkColor(context));
    }
    return behind;
}

// With them the button draws its caption in the style's colour, unless someone else draws it.
LRESULT Win32OptionButton::OnNotify(const NMHDR& header) {
    if (header.code != static_cast<UINT>(NM_CUSTOMDRAW) || !CaptionIsColoured()) {
        return CDRF_DODEFAULT;
    }
    const auto& drawing = reinterpret_cast<const NMCUSTOMDRAW&>(header);
    if (drawing.dwDrawStage != CDDS_PREPAINT) {
        return CDRF_DODEFAULT;
    }
    return DrawThemedOption(Handle(), drawing, SurfaceBrush(InnerSurface()), captionColour_)
               ? CDRF_SKIPDEFAULT
               : CDRF_DODEFAULT;
}

void Win32OptionButton::OnCommand(WORD code) {
    // Windows sends this for a button that only got the focus, too.
    if (code == BN_CLICKED && Selected()) {
        SetSelected(true);
    }
}

void Win32OptionButton::NoteState() {
    const bool becameSelected = !known_ && Selected();
    for (Win32OptionButton* option : group_.buttons) {
        option->known_ = option->Selected();
    }
    KeepOneStop();
    if (becameSelected) {
        Raise(&ControlEvents::click);
    }
}

}  // namespace zentar
