#include "platform/win32/control_window.h"

#include <utility>

#include "platform/win32/event_dispatcher.h"
#include "platform/win32/focus_keeper.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

// Its tab control shows a page.
bool StartsVisible(const ControlRow& row) {
    return (row.flags & StartsHidden) == 0 && row.kind != ControlKind::TabPage;
}

DWORD CommonStyle(const ControlRow& row) {
    return WS_CHILD | WS_CLIPSIBLINGS | (StartsVisible(row) ? WS_VISIBLE : 0) |
           ((row.flags & StartsDisabled) != 0 ? WS_DISABLED : 0);
}

// Where the keyboard could do nothing, it is not to go.
bool TakesFocus(ControlKind kind) {
    switch (kind) {
        case ControlKind::Label:
        case ControlKind::Frame:
        case ControlKind::Picture:
        case ControlKind::ImageBox:
        case ControlKind::TabPage:
        case ControlKind::Timer:
            return false;
        default:
            return true;
    }
}

}  // namespace

ControlWindow::ControlWindow(const ControlPlace& place, const ControlStyle& style)
    : host_(place.host), row_(place.row), surface_(place.surface) {
    Attach(CreateWindowExW(style.exStyle, style.windowClass, Widen(row_.caption).c_str(),
                           CommonStyle(row_) | style.style, place.at.left, place.at.top,
                           place.at.width, place.at.height, place.parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(row_.id)), place.instance,
                           nullptr));
}

ControlWindow::~ControlWindow() { Detach(); }

void ControlWindow::Attach(HWND window) {
    handle_ = window;
    SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    // Not by the common controls' own way to do this, which asks for a property as well.
    system_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
}

void ControlWindow::Detach() {
    if (handle_ != nullptr) {
        SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(system_));
        handle_ = nullptr;
    }
}

bool ControlWindow::ReplaceWindow(const ControlStyle& style, const std::function<void()>& prepare) {
    const HWND former = handle_;
    const HWND parent = GetParent(former);
    RECT place{};
    GetWindowRect(former, &place);
    MapWindowPoints(HWND_DESKTOP, parent, reinterpret_cast<POINT*>(&place), 2);
    const DWORD disabled = Enabled() ? 0 : WS_DISABLED;
    const HWND window = CreateWindowExW(
        style.exStyle, style.windowClass, L"", WS_CHILD | WS_CLIPSIBLINGS | disabled | style.style,
        place.left, place.top, place.right - place.left, place.bottom - place.top, parent,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(row_.id)),
        reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(former, GWLP_HINSTANCE)), nullptr);
    if (window == nullptr) {
        return false;
    }
    const bool visible = Visible();
    const bool focused = GetFocus() == former;
    const auto font = static_cast<WPARAM>(Send(WM_GETFONT));
    Detach();
    Attach(window);
    host_.OnControlReplaced(row_, former, window);
    Send(WM_SETFONT, font, FALSE);
    prepare();
    SetWindowPos(window, former, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | (visible ? SWP_SHOWWINDOW : 0));
    if (focused) {
        ::SetFocus(window);
    }
    DestroyWindow(former);
    return true;
}

// Only a control's window has this procedure. (A property would say it as well, but costs Wine a
// call of its server.)
ControlWindow* ControlWindow::Of(HWND window) {
    if (GetWindowLongPtrW(window, GWLP_WNDPROC) != reinterpret_cast<LONG_PTR>(Procedure)) {
        return nullptr;
    }
    return reinterpret_cast<ControlWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

LRESULT CALLBACK ControlWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<ControlWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    const WNDPROC system = self->system_;
    std::optional<LRESULT> answer;
    try {
        answer = self->OnMessage(message, wParam, lParam);
    } catch (...) {
        // Out of memory; the system's own handling needs none of ours.
        answer.reset();
    }
    if (message == WM_NCDESTROY) {
        self->Detach();
    }
    return answer ? *answer : CallWindowProcW(system, window, message, wParam, lParam);
}

LRESULT ControlWindow::PassOn(UINT message, WPARAM wParam, LPARAM lParam) const {
    return CallWindowProcW(system_, handle_, message, wParam, lParam);
}

std::optional<LRESULT> ControlWindow::OnMessage(UINT message, WPARAM /*wParam*/, LPARAM lParam) {
    if (!events_.menuRequested) {
        return std::nullopt;
    }
    // Two clicks shortly one after the other ask twice.
    if (message == WM_RBUTTONDOWN || message == WM_RBUTTONDBLCLK) {
        RaiseMenuRequest(false);
        return 0;
    }
    if (message == WM_CONTEXTMENU) {
        // The mouse asked already when its button went down; -1 stands for the keyboard.
        if (lParam == -1) {
            RaiseMenuRequest(true);
        }
        return 0;
    }
    return std::nullopt;
}

HBRUSH ControlWindow::OnColour(HDC context) { return PaintOn(surface_, context); }

void ControlWindow::Raise(std::function<void()> ControlEvents::*event) {
    host_.Dispatcher().Run(events_.*event);
}

void ControlWindow::RaiseMenuRequest(bool byKeyboard) {
    host_.NoteMenuRequest(byKeyboard);
    keyboardAsks_ = byKeyboard;
    Raise(&ControlEvents::menuRequested);
    keyboardAsks_ = false;
}

bool ControlWindow::RaiseKey(Key key) {
    bool used = false;
    if (events_.keyDown) {
        const std::function<bool(Key)> procedure = events_.keyDown;
        host_.Dispatcher().Run([&] { used = procedure(key); });
    }
    return used;
}

// What does not change anything costs calls of the system all the same.
void ControlWindow::SetEnabled(bool enabled) {
    if (enabled == Enabled()) {
        return;
    }
    if (!enabled) {
        host_.Focus().Leave(handle_);
    }
    EnableWindow(handle_, enabled);
}

bool ControlWindow::Enabled() const {
    return (GetWindowLongPtrW(handle_, GWL_STYLE) & WS_DISABLED) == 0;
}

void ControlWindow::SetVisible(bool visible) {
    if (visible == Visible()) {
        return;
    }
    if (!visible) {
        host_.Focus().Leave(handle_);
    }
    ShowWindow(handle_, visible ? SW_SHOWNA : SW_HIDE);
}

bool ControlWindow::Visible() const {
    return (GetWindowLongPtrW(handle_, GWL_STYLE) & WS_VISIBLE) != 0;
}

void ControlWindow::SetText(const std::string& text) {
    if (Text() != text) {
        SetWindowTextW(handle_, Widen(text).c_str());
    }
}

std::string ControlWindow::Text() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(handle_)) + 1, L'\0');
    const int length = GetWindowTextW(handle_, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return Narrow(text);
}

void ControlWindow::SetFocus() {
    if (TakesFocus(row_.kind)) {
        host_.Focus().Give(handle_);
    }
}

bool ControlWindow::HasFocus() const { return host_.Focus().Has(handle_); }

void ControlWindow::SetTop(int twips) { host_.MoveTop(row_, twips); }

void ControlWindow::SetTooltip(const std::string& text) { host_.SetTooltipOf(handle_, text); }

}  // namespace zentar
