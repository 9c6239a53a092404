#include "platform/win32/reflect.h"

#include "platform/win32/control_window.h"

namespace zentar {

std::optional<LRESULT> ReflectToControl(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && lParam != 0) {
        ControlWindow* control = ControlWindow::Of(reinterpret_cast<HWND>(lParam));
        if (control == nullptr) {
            return std::nullopt;
        }
        control->OnCommand(HIWORD(wParam));
        return 0;
    }
    if (message == WM_NOTIFY) {
        const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
        ControlWindow* control = ControlWindow::Of(header.hwndFrom);
        if (control == nullptr) {
            return std::nullopt;
        }
        return control->OnNotify(header);
    }
    if (message >= WM_CTLCOLOREDIT && message <= WM_CTLCOLORSTATIC) {
        ControlWindow* control = ControlWindow::Of(reinterpret_cast<HWND>(lParam));
        if (control == nullptr) {
            return std::nullopt;
        }
        return reinterpret_cast<LRESULT>(control->OnColour(reinterpret_cast<HDC>(wParam)));
    }
    return std::nullopt;
}

}  // namespace zentar
