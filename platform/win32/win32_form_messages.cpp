// The window messages of a form, each with its own procedure.

#include <algorithm>
#include <iterator>

#include "platform/win32/reflect.h"
#include "platform/win32/win32_form.h"

namespace zentar {

struct Win32Form::Handler {
    UINT message;
    std::optional<LRESULT> (Win32Form::*run)(WPARAM, LPARAM);
};

// What a procedure here does not answer goes to the system.
const Win32Form::Handler Win32Form::kHandlers[] = {
    {WM_ACTIVATE, &Win32Form::OnActivate},
    {WM_CLOSE, &Win32Form::OnClose},
    {WM_COMMAND, &Win32Form::OnCommand},
    {WM_DPICHANGED, &Win32Form::OnDpiChanged},
    {WM_ENABLE, &Win32Form::OnEnable},
    {WM_ENDSESSION, &Win32Form::OnEndSession},
    {WM_GETMINMAXINFO, &Win32Form::OnMinMaxInfo},
    {WM_QUERYENDSESSION, &Win32Form::OnQueryEndSession},
    {WM_SETCURSOR, &Win32Form::OnSetCursor},
    {WM_SETFOCUS, &Win32Form::OnSetFocus},
    {WM_SETTINGCHANGE, &Win32Form::OnSettingChange},
    {WM_SIZE, &Win32Form::OnSize},
    {WM_SYSCOLORCHANGE, &Win32Form::OnSystemColours},
    {WM_TIMER, &Win32Form::OnTimer},
    {DM_GETDEFID, &Win32Form::OnDefaultId},
    {kResumeMessage, &Win32Form::OnResume},
};

LRESULT CALLBACK Win32Form::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* form = reinterpret_cast<Win32Form*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    std::optional<LRESULT> answer;
    try {
        if (form != nullptr) {
            answer = form->OnMessage(message, wParam, lParam);
        }
    } catch (...) {
        // Out of memory; the system's own handling needs none of ours.
        answer.reset();
    }
    return answer ? *answer : DefWindowProcW(window, message, wParam, lParam);
}

std::optional<LRESULT> Win32Form::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto* handler =
        std::find_if(std::begin(kHandlers), std::end(kHandlers),
                     [message](const Handler& entry) { return entry.message == message; });
    if (handler != std::end(kHandlers)) {
        return (this->*handler->run)(wParam, lParam);
    }
    return ReflectToControl(message, wParam, lParam);
}

std::optional<LRESULT> Win32Form::OnActivate(WPARAM wParam, LPARAM /*lParam*/) {
    if (LOWORD(wParam) == WA_INACTIVE) {
        focus_.Remember();
        return std::nullopt;
    }
    session_.forms.MoveToFront(*this);
    activationWaits_ = true;
    PostMessageW(window_.Get(), kResumeMessage, 0, 0);
    return std::nullopt;
}

std::optional<LRESULT> Win32Form::OnClose(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    Close();
    return 0;
}

std::optional<LRESULT> Win32Form::OnCommand(WPARAM wParam, LPARAM lParam) {
    const Win32MenuEntry* entry = lParam == 0 ? menus_.Find(LOWORD(wParam)) : nullptr;
    if (entry != nullptr) {
        entry->Pick();
        return 0;
    }
    return ReflectToControl(WM_COMMAND, wParam, lParam);
}

std::optional<LRESULT> Win32Form::OnDefaultId(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    const HWND button = DefaultButton();
    return button == nullptr ? 0 : MAKELRESULT(GetDlgCtrlID(button), DC_HASDEFID);
}

std::optional<LRESULT> Win32Form::OnDpiChanged(WPARAM wParam, LPARAM lParam) {
    UseDpi(HIWORD(wParam));
    ApplyDpi();
    if (table_.kind == FormKind::FullScreen) {
        // A screen has one size, whatever its dpi.
        return 0;
    }
    const RECT& suggested = *reinterpret_cast<const RECT*>(lParam);
    SIZE size{suggested.right - suggested.left, suggested.bottom - suggested.top};
    if (!CanGrow()) {
        // The frame does not grow in step with the rest.
        size = DesignedSize();
    }
    SetWindowPos(window_.Get(), nullptr, suggested.left, suggested.top, size.cx, size.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}

// Takes input again: what waited for that goes on.
std::optional<LRESULT> Win32Form::OnEnable(WPARAM wParam, LPARAM /*lParam*/) {
    if (wParam != FALSE) {
        Resume();
    }
    return std::nullopt;
}

std::optional<LRESULT> Win32Form::OnEndSession(WPARAM wParam, LPARAM /*lParam*/) {
    if (wParam != FALSE) {
        session_.dispatcher.Run(events_.sessionEnding);
    }
    return 0;
}

std::optional<LRESULT> Win32Form::OnMinMaxInfo(WPARAM /*wParam*/, LPARAM lParam) {
    if (!CanGrow()) {
        return std::nullopt;
    }
    const SIZE smallest = DesignedSizeOnScreen();
    reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {smallest.cx, smallest.cy};
    return 0;
}

std::optional<LRESULT> Win32Form::OnQueryEndSession(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    return TRUE;
}

std::optional<LRESULT> Win32Form::OnResume(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    if (activationWaits_ && MayRunOutermost()) {
        activationWaits_ = false;
        session_.dispatcher.Run(events_.activate);
    }
    if (closeWaits_ && MayRunOutermost()) {
        TryToClose();
    }
    return 0;
}

// NOLINTNEXTLINE(readability-make-member-function-const): the table of handlers holds one type
std::optional<LRESULT> Win32Form::OnSetCursor(WPARAM /*wParam*/, LPARAM lParam) {
    if (!ShowsHourglass() || LOWORD(lParam) != HTCLIENT) {
        return std::nullopt;
    }
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    return TRUE;
}

std::optional<LRESULT> Win32Form::OnSetFocus(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    focus_.Restore();
    return 0;
}

std::optional<LRESULT> Win32Form::OnSettingChange(WPARAM wParam, LPARAM /*lParam*/) {
    if (wParam == SPI_SETNONCLIENTMETRICS) {
        ApplyDpi();
    }
    return std::nullopt;
}

std::optional<LRESULT> Win32Form::OnSize(WPARAM wParam, LPARAM /*lParam*/) {
    if (wParam != SIZE_MINIMIZED) {
        Layout();
    }
    return 0;
}

// The system tells only the form.
std::optional<LRESULT> Win32Form::OnSystemColours(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    ForEachMade([](const ControlWindow& control) {
        SendMessageW(control.Handle(), WM_SYSCOLORCHANGE, 0, 0);
    });
    return std::nullopt;
}

std::optional<LRESULT> Win32Form::OnTimer(WPARAM wParam, LPARAM /*lParam*/) {
    const auto at = std::find_if(timers_.begin(), timers_.end(), [wParam](const auto& timer) {
        return static_cast<WPARAM>(timer->Id()) == wParam;
    });
    if (at == timers_.end()) {
        return std::nullopt;
    }
    (*at)->Elapse();
    return 0;
}

}  // namespace zentar
