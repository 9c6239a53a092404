#include "platform/win32/box_cursor.h"

#include "platform/win32/pointer_refresh.h"

namespace zentar {

void BoxCursor::SetDpi(int dpi) {
    const int size = GetSystemMetricsForDpi(SM_CXCURSOR, static_cast<UINT>(dpi));
    custom_.Reset(static_cast<HCURSOR>(LoadImageW(instance_, MAKEINTRESOURCEW(resource_),
                                                  IMAGE_CURSOR, size, size, LR_DEFAULTCOLOR)));
    RefreshPointer();
}

void BoxCursor::Show(BoxPointer pointer) {
    if (pointer != shown_) {
        shown_ = pointer;
        RefreshPointer();
    }
}

bool BoxCursor::Choose(LPARAM hit) const {
    if (LOWORD(hit) != HTCLIENT || shown_ == BoxPointer::Default || !custom_) {
        return false;
    }
    SetCursor(custom_.Get());
    return true;
}

}  // namespace zentar
