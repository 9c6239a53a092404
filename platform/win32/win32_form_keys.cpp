// What the keyboard does in a form besides what its controls do with it.

#include <algorithm>
#include <array>

#include "platform/win32/list_box.h"
#include "platform/win32/tab_control.h"
#include "platform/win32/win32_form.h"

namespace zentar {
namespace {

constexpr LPARAM kWasDown = LPARAM{1} << 30U;

bool IsDown(int key) { return GetKeyState(key) < 0; }

std::optional<Key> KeyOf(WPARAM virtualKey) {
    struct Entry {
        WPARAM virtualKey;
        Key key;
    };
    constexpr std::array<Entry, 13> kKeys = {{{VK_F1, Key::F1},
                                              {VK_F2, Key::F2},
                                              {VK_F4, Key::F4},
                                              {VK_F5, Key::F5},
                                              {VK_DELETE, Key::Delete},
                                              {VK_BACK, Key::Backspace},
                                              {VK_RETURN, Key::Enter},
                                              {VK_SPACE, Key::Space},
                                              {VK_ESCAPE, Key::Escape},
                                              {VK_LEFT, Key::Left},
                                              {VK_RIGHT, Key::Right},
                                              {VK_UP, Key::Up},
                                              {VK_DOWN, Key::Down}}};
    const auto* at = std::find_if(kKeys.begin(), kKeys.end(), [virtualKey](const Entry& entry) {
        return entry.virtualKey == virtualKey;
    });
    return at == kKeys.end() ? std::nullopt : std::optional<Key>(at->key);
}

bool IsArrow(Key key) {
    return key == Key::Left || key == Key::Right || key == Key::Up || key == Key::Down;
}

// The lower left corner of the selected entry, if it can be seen.
std::optional<POINT> BelowSelection(HWND list) {
    const LRESULT selected = SendMessageW(list, LB_GETCURSEL, 0, 0);
    RECT entry{};
    RECT client{};
    GetClientRect(list, &client);
    if (selected < 0 || SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(selected),
                                     reinterpret_cast<LPARAM>(&entry)) == LB_ERR) {
        return std::nullopt;
    }
    const POINT corner{entry.left, entry.bottom};
    return corner.y > client.top && corner.y <= client.bottom ? std::optional<POINT>(corner)
                                                              : std::nullopt;
}

}  // namespace

bool Win32Form::PreTranslate(MSG& message) {
    tooltips_->Relay(message);
    if (message.message == WM_KEYDOWN && OnKeyDown(message)) {
        return true;
    }
    return IsDialogMessageW(window_.Get(), &message) != FALSE;
}

bool Win32Form::OnKeyDown(const MSG& message) {
    const WPARAM key = message.wParam;
    const bool repeated = (message.lParam & kWasDown) != 0;
    ControlWindow* control = ControlWindow::Of(message.hwnd);
    if (IsDown(VK_CONTROL) && SwitchTab(key)) {
        return true;
    }
    // A key that is held down counts once: it would else delete, or play, one file after another.
    // Arrows only move.
    const std::optional<Key> known = KeyOf(key);
    if (known && (!repeated || IsArrow(*known)) && OnProgramKey(*known, control)) {
        return true;
    }
    switch (key) {
        case VK_TAB:
            ShowFocus();
            focus_.MoveNext(IsDown(VK_SHIFT));
            return true;
        case VK_RETURN:
            return repeated || OnEnter(control);
        case VK_ESCAPE:
            // One that is held down closes one window, not the one below as well.
            if (!repeated &&
                (table_.kind == FormKind::Dialog || table_.kind == FormKind::Companion)) {
                PostMessageW(window_.Get(), WM_CLOSE, 0, 0);
            }
            return true;
        default:
            return false;
    }
}

bool Win32Form::OnProgramKey(Key key, ControlWindow* control) {
    if (control != nullptr && control->RaiseKey(key)) {
        return true;
    }
    bool used = false;
    if (events_.keyDown) {
        session_.dispatcher.Run([&] { used = events_.keyDown(key); });
    }
    return used;
}

// Presses the button that has the focus, or else the default one. There is no beep when there is
// none: the user only finished typing.
bool Win32Form::OnEnter(ControlWindow* control) {
    const bool isButton =
        control != nullptr && dynamic_cast<Button*>(&control->AsControl()) != nullptr;
    ControlWindow* button = isButton ? control : ControlWindow::Of(DefaultButton());
    if (button != nullptr) {
        button->OnCommand(BN_CLICKED);
    }
    return true;
}

// Of those that Enter presses, the one on the tab page in front.
HWND Win32Form::DefaultButton() const {
    for (const auto& control : controls_) {
        const bool pressed = (control->Row().flags & PressedByEnter) != 0;
        if (pressed && focus_.CanTake(control->Handle())) {
            return control->Handle();
        }
    }
    return nullptr;
}

// Who started the program with the mouse sees no focus until then. The system shows it for the keys
// that it moves the focus by itself.
void Win32Form::ShowFocus() const {
    SendMessageW(window_.Get(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
}

bool Win32Form::SwitchTab(WPARAM key) const {
    if (key != VK_TAB && key != VK_NEXT && key != VK_PRIOR) {
        return false;
    }
    const auto tab = std::find_if(controls_.begin(), controls_.end(), [](const auto& control) {
        return control->Row().kind == ControlKind::Tab;
    });
    if (tab == controls_.end()) {
        return false;
    }
    ShowFocus();
    const bool backwards = key == VK_PRIOR || (key == VK_TAB && IsDown(VK_SHIFT));
    dynamic_cast<Win32TabControl&>((*tab)->AsControl()).Step(backwards);
    return true;
}

// At the pointer; when the keyboard asked, at what has the focus.
POINT Win32Form::PopupPlace() const {
    POINT place{};
    const HWND focused = GetFocus();
    const ControlWindow* control = ControlWindow::Of(focused);
    if (!menuByKeyboard_ || control == nullptr) {
        GetCursorPos(&place);
        return place;
    }
    RECT client{};
    GetClientRect(focused, &client);
    place = {client.right / 2, client.bottom / 2};
    if (control->Row().kind == ControlKind::ListBox) {
        place = BelowSelection(focused).value_or(place);
    }
    ClientToScreen(focused, &place);
    return place;
}

}  // namespace zentar
