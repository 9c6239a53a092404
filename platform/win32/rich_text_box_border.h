// The border of a box of rich text, which is to look like that of other text boxes. The editor
// draws one of the time before visual styles, at least on some systems.
#pragma once

#include <windows.h>

namespace zentar {

// How wide it is, in pixels.
int BorderWidth(HWND window);

// Draws the border of a window with a sunken edge as visual styles have it, `background` between it
// and the inside. False without visual styles: the system's own border is right then.
bool DrawStyledBorder(HWND window, COLORREF background);

}  // namespace zentar
