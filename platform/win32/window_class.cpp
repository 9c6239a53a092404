#include "platform/win32/window_class.h"

namespace zentar {

const wchar_t* RegisterWindowClass(WNDCLASSEXW windowClass) {
    windowClass.cbSize = sizeof windowClass;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    // Fails when it is registered, which is as good.
    RegisterClassExW(&windowClass);
    return windowClass.lpszClassName;
}

}  // namespace zentar
