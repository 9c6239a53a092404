#include "platform/win32/panel.h"

#include <algorithm>

#include "platform/win32/win32_text.h"
#include "platform/win32/window_class.h"

namespace zentar {
namespace {

BOOL CALLBACK TellOne(HWND window, LPARAM /*unused*/) {
    if (ControlWindow* control = ControlWindow::Of(window)) {
        control->OnEnclosingEnabled();
    }
    return TRUE;
}

}  // namespace

const wchar_t* PanelClass(HINSTANCE instance) {
    WNDCLASSEXW windowClass{};
    windowClass.lpfnWndProc = DefWindowProcW;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = L"ZentarPanel";
    return RegisterWindowClass(windowClass);
}

void TellEnclosed(HWND panel) { EnumChildWindows(panel, TellOne, 0); }

Win32Frame::Win32Frame(const ControlPlace& place)
    : Panel(place, place.surface), bordered_((place.row.flags & Borderless) == 0) {}

void Win32Frame::SetText(const std::string& text) {
    if (Text() != text) {
        Panel::SetText(text);
        Redraw(true);
    }
}

void Win32Frame::OnLayout() {
    RECT client{};
    GetClientRect(Handle(), &client);
    if (client.right != drawn_.cx || client.bottom != drawn_.cy) {
        drawn_ = {client.right, client.bottom};
        Redraw(true);
    }
}

void Win32Frame::Paint() const {
    PAINTSTRUCT paint{};
    const HDC context = BeginPaint(Handle(), &paint);
    Draw(context);
    EndPaint(Handle(), &paint);
}

void Win32Frame::Draw(HDC context) const {
    if (!bordered_) {
        return;
    }
    const HGDIOBJ oldFont = SelectObject(context, font_);
    const HBRUSH behind = PaintOn(InnerSurface(), context);
    const std::wstring caption = Widen(Text());
    const int length = static_cast<int>(caption.size());
    SIZE text{};
    GetTextExtentPoint32W(context, caption.c_str(), length, &text);
    RECT border{};
    GetClientRect(Handle(), &border);
    border.top = text.cy / 2;
    FrameRect(context, &border, GetSysColorBrush(COLOR_BTNSHADOW));
    if (length > 0) {
        const int indent = text.cy / 2;
        const int margin = text.cy / 5;
        const RECT gap{indent, 0, std::min(indent + text.cx + 2 * margin, border.right - indent),
                       text.cy};
        FillRect(context, &gap, behind);
        if (!Enabled()) {
            SetTextColor(context, GetSysColor(COLOR_GRAYTEXT));
        }
        RECT room{gap.left + margin, gap.top, gap.right, gap.bottom};
        DrawTextW(context, caption.c_str(), length, &room,
                  DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
    SelectObject(context, oldFont);
}

std::optional<LRESULT> Win32Frame::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            Paint();
            return 0;
        case WM_ENABLE:
            Redraw(true);
            break;
        case WM_SETFONT:
            font_ = reinterpret_cast<HFONT>(wParam);
            break;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(font_);
        default:
            break;
    }
    return Panel::OnMessage(message, wParam, lParam);
}

}  // namespace zentar
