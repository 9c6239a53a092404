// The hands of the user: real mouse and keyboard input at screen coordinates.
#pragma once

#include <windows.h>

#include <string>

namespace zentar::window_tests {

enum class MouseButton { Left, Right };

POINT CentreOf(HWND window);
// The middle of an entry of a list box, which must be in view.
POINT CentreOfItem(HWND listBox, int index);
// Scrolls a list so that this entry can be seen, unless it can be.
void ScrollTo(HWND listBox, int index);

void MovePointer(POINT place);
void Click(POINT place, MouseButton button = MouseButton::Left);
void DoubleClick(POINT place);

void Press(WORD key);
void PressWith(WORD modifier, WORD key);
// Keeps a key down, and lets it go.
void HoldKey(WORD key);
void ReleaseKey(WORD key);
// Keeps the left button down at a place, moves to others, and lets it go.
void HoldButton(POINT place);
void ReleaseButton();
void Type(const std::string& text);

}  // namespace zentar::window_tests
