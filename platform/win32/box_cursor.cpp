#include "platform/win32/box_cursor.h"

#include "platform/win32/pointer_refresh.h"

namespace zentar {

void BoxCursor::SetDpi(int dpi) {
    dpi_ = dpi;
    custom_.Reset();
    if (shown_ == BoxPointer::Custom) {
        RefreshPointer();
    }
}

// Loaded when it is needed, which may be never.
HCURSOR BoxCursor::Custom() {
    if (!custom_) {
        const int size = GetSystemMetricsForDpi(SM_CXCURSOR, static_cast<UINT>(dpi_));
        custom_.Reset(static_cast<HCURSOR>(LoadImageW(instance_, MAKEINTRESOURCEW(resource_),
                                                      IMAGE_CURSOR, size, size, LR_DEFAULTCOLOR)));
    }
    return custom_.Get();
}

void BoxCursor::Show(BoxPointer pointer) {
    if (pointer != shown_) {
        shown_ = pointer;
        RefreshPointer();
    }
}

bool BoxCursor::Choose(LPARAM hit) {
    if (LOWORD(hit) != HTCLIENT || shown_ == BoxPointer::Default || Custom() == nullptr) {
        return false;
    }
    SetCursor(Custom());
    return true;
}

}  // namespace zentar
