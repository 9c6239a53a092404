// The backgrounds that the program gives to lists and text boxes.
#pragma once

#include <windows.h>

#include "platform/controls.h"

namespace zentar {

// Prepares a control's device context for text on that colour; gives the brush behind it, which is
// the system's.
HBRUSH PaintOnColour(SystemColour colour, HWND control, HDC context);

}  // namespace zentar
