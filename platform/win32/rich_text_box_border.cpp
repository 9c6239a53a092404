#include "platform/win32/rich_text_box_border.h"

#include <uxtheme.h>
#include <vssym32.h>

#include "platform/win32/theme_handle.h"

namespace zentar {
namespace {

int StateOf(HWND window) {
    if (!IsWindowEnabled(window)) {
        return ETS_DISABLED;
    }
    return GetFocus() == window ? ETS_FOCUSED : ETS_NORMAL;
}

}  // namespace

int BorderWidth(HWND window) { return GetSystemMetricsForDpi(SM_CXEDGE, GetDpiForWindow(window)); }

bool DrawStyledBorder(HWND window, COLORREF background) {
    const UniqueTheme theme(IsAppThemed() ? OpenThemeData(window, L"Edit") : nullptr);
    if (!theme) {
        return false;
    }
    RECT edge{};
    GetWindowRect(window, &edge);
    OffsetRect(&edge, -edge.left, -edge.top);
    RECT inside = edge;
    const int width = BorderWidth(window);
    InflateRect(&inside, -width, -width);
    const HDC context = GetWindowDC(window);
    ExcludeClipRect(context, inside.left, inside.top, inside.right, inside.bottom);
    DrawThemeBackground(theme.Get(), context, EP_EDITTEXT, StateOf(window), &edge, nullptr);
    InflateRect(&edge, -1, -1);
    SetDCBrushColor(context, background);
    FillRect(context, &edge, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    ReleaseDC(window, context);
    return true;
}

}  // namespace zentar
