#include "platform/win32/control_colour.h"

namespace zentar {

HBRUSH PaintOnColour(SystemColour colour, HWND control, HDC context) {
    const int index = colour == SystemColour::Window ? COLOR_WINDOW : COLOR_BTNFACE;
    SetBkColor(context, GetSysColor(index));
    SetTextColor(context,
                 GetSysColor(IsWindowEnabled(control) ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
    return GetSysColorBrush(index);
}

}  // namespace zentar
