#include "platform/win32/picture.h"

#include "platform/win32/grey_icon.h"
#include "platform/win32/panel.h"

namespace zentar {

ControlStyle Win32Picture::Style() const { return {PanelClass(Instance()), WS_GROUP}; }

// Each size has its own image in the icon, which looks better than one that is stretched.
void Win32Picture::OnLayout() {
    RECT client{};
    GetClientRect(Handle(), &client);
    if (client.right == size_.cx && client.bottom == size_.cy) {
        return;
    }
    size_ = {client.right, client.bottom};
    icon_.Reset(static_cast<HICON>(LoadImageW(Instance(), MAKEINTRESOURCEW(Row().icon), IMAGE_ICON,
                                              size_.cx, size_.cy, LR_DEFAULTCOLOR)));
    grey_ = GreyIcon(icon_.Get(), size_);
    Redraw(false);
}

void Win32Picture::Paint() const {
    PAINTSTRUCT paint{};
    Draw(BeginPaint(Handle(), &paint));
    EndPaint(Handle(), &paint);
}

void Win32Picture::Draw(HDC context) const {
    const HBRUSH behind = SurfaceBrush(InnerSurface());
    const HICON icon = IsGrey() ? grey_.Get() : icon_.Get();
    if (icon == nullptr) {
        const RECT client{0, 0, size_.cx, size_.cy};
        FillRect(context, &client, behind);
        return;
    }
    DrawIconEx(context, 0, 0, icon, size_.cx, size_.cy, 0, behind, DI_NORMAL);
}

// A window that waits behind a dialog is disabled too, but keeps its colours: only the controls
// around the picture count.
bool Win32Picture::IsGrey() const {
    HWND window = Handle();
    while (const ControlWindow* control = ControlWindow::Of(window)) {
        if (!control->Enabled()) {
            return true;
        }
        window = GetParent(window);
    }
    return false;
}

std::optional<LRESULT> Win32Picture::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            Paint();
            return 0;
        case WM_PRINTCLIENT:
            Draw(reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_ERASEBKGND:
            return TRUE;
        case WM_ENABLE:
            Redraw(false);
            break;
        default:
            break;
    }
    return ControlBase::OnMessage(message, wParam, lParam);
}

}  // namespace zentar
