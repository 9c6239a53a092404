#include "platform/win32/control_window.h"

#include <utility>

#include "platform/win32/accessible_control.h"
#include "platform/win32/event_dispatcher.h"
#include "platform/win32/focus_keeper.h"
#include "platform/win32/ole_library.h"
#include "platform/win32/win32_text.h"
#include "platform/win32/window_text.h"

namespace zentar {
namespace {

// Its tab control shows a page.
bool StartsVisible(const ControlRow& row) {
    return (row.flags & StartsHidden) == 0 && row.kind != ControlKind::TabPage;
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

ControlWindow::ControlWindow(const ControlPlace& place)
    : host_(place.host),
      row_(place.row),
      instance_(place.instance),
      surface_(place.surface),
      unmade_{row_.caption, row_.tooltip, (row_.flags & StartsDisabled) == 0, StartsVisible(row_)} {
}

ControlWindow::~ControlWindow() { Detach(); }

void ControlWindow::MakeWindow(HWND parent, const Rect& at, HFONT font) {
    const ControlStyle kind = Style();
    const DWORD state = (unmade_.visible ? WS_VISIBLE : 0) | (unmade_.enabled ? 0 : WS_DISABLED);
    const HWND window = CreateWindowExW(
        kind.exStyle, kind.windowClass, Widen(unmade_.text).c_str(),
        WS_CHILD | WS_CLIPSIBLINGS | state | kind.style, at.left, at.top, at.width, at.height,
        parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(row_.id)), instance_, nullptr);
    if (window == nullptr) {
        return;
    }
    Attach(window);
    // Before anything that is measured or coloured: another font changes both.
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    OnMade();
    if (!unmade_.tooltip.empty()) {
        host_.SetTooltipOf(handle_, unmade_.tooltip);
    }
    unmade_ = {};
}

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

HWND ControlWindow::NeedWindow() const {
    if (handle_ == nullptr) {
        host_.NeedWindow(row_);
    }
    return handle_;
}

void ControlWindow::Redraw(bool erase) const {
    if (handle_ != nullptr) {
        InvalidateRect(handle_, nullptr, erase);
    }
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

std::optional<LRESULT> ControlWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // Others ask by this message, too, whom the system answers.
    const LONG asked = message == WM_GETOBJECT ? static_cast<LONG>(lParam) : 0;
    if (asked == kUiAutomationAsks && !std::exchange(annotated_, true)) {
        host_.Ole().Need();
        AnnotateName(handle_, row_);
    } else if (asked == OBJID_CLIENT) {
        host_.Ole().Need();
        return AnswerScreenReader(handle_, row_, wParam);
    }
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
    if (handle_ == nullptr) {
        unmade_.enabled = enabled;
        return;
    }
    if (!enabled) {
        host_.Focus().Leave(handle_);
    }
    EnableWindow(handle_, enabled);
}

bool ControlWindow::Enabled() const {
    return handle_ == nullptr ? unmade_.enabled
                              : (GetWindowLongPtrW(handle_, GWL_STYLE) & WS_DISABLED) == 0;
}

void ControlWindow::SetVisible(bool visible) {
    if (visible == Visible()) {
        return;
    }
    if (handle_ == nullptr) {
        unmade_.visible = visible;
        return;
    }
    if (!visible) {
        host_.Focus().Leave(handle_);
    }
    ShowWindow(handle_, visible ? SW_SHOWNA : SW_HIDE);
}

bool ControlWindow::Visible() const {
    return handle_ == nullptr ? unmade_.visible
                              : (GetWindowLongPtrW(handle_, GWL_STYLE) & WS_VISIBLE) != 0;
}

void ControlWindow::SetText(const std::string& text) {
    if (handle_ == nullptr) {
        unmade_.text = text;
    } else if (Text() != text) {
        SetWindowTextW(handle_, Widen(text).c_str());
    }
}

std::string ControlWindow::Text() const {
    if (handle_ == nullptr) {
        return unmade_.text;
    }
    return Narrow(WindowText(handle_));
}

void ControlWindow::SetFocus() {
    if (TakesFocus(row_.kind)) {
        host_.Focus().Give(handle_);
    }
}

bool ControlWindow::HasFocus() const { return host_.Focus().Has(handle_); }

void ControlWindow::SetTop(int twips) { host_.MoveTop(row_, twips); }

void ControlWindow::SetTooltip(const std::string& text) {
    if (handle_ == nullptr) {
        unmade_.tooltip = text;
    } else {
        host_.SetTooltipOf(handle_, text);
    }
}

}  // namespace zentar
