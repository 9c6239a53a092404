// The system's dialog for a colour, and the user in it.
//
// The functions throw std::runtime_error when what they wait for never comes.
#pragma once

#include <windows.h>

namespace zentar::window_tests {

HWND WaitForColourDialog(DWORD process);

// Mixes a colour and presses OK; waits until the dialog has gone.
void ChooseColour(HWND colourDialog, COLORREF colour);
void CancelColourDialog(HWND colourDialog);

}  // namespace zentar::window_tests
