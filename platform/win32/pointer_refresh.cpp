#include "platform/win32/pointer_refresh.h"

#include <windows.h>

namespace zentar {

void RefreshPointer() {
    POINT place{};
    GetCursorPos(&place);
    const HWND window = WindowFromPoint(place);
    if (window == nullptr || GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId()) {
        return;
    }
    const LRESULT hit = SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(place.x, place.y));
    SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                 MAKELPARAM(hit, WM_MOUSEMOVE));
}

}  // namespace zentar
