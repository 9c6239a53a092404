// Pictures of what stands on the screen, for people to look at.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace zentar::window_tests {

// Saves the part of the screen that a window takes up as <name>.png in the folder that the
// environment variable ZENTAR_PICTURES names, or in "pictures" beside the built program. Waits
// until there is more to be seen than one colour; false when there never is.
bool TakesPicture(HWND window, const std::string& name);

// The colour of one pixel of the screen.
COLORREF PixelAt(POINT place);

// The pixels of a window as the screen shows it, the lines from the top.
std::vector<RGBQUAD> PixelsOf(HWND window);

// How many pixels of a window on the screen are of that colour, or nearly so.
int CountPixels(HWND window, COLORREF colour);

}  // namespace zentar::window_tests
