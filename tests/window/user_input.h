// The hands of the user: real mouse and keyboard input at screen coordinates.
#pragma once

#include <windows.h>

#include <string>
#include <thread>

namespace zentar::window_tests {

enum class MouseButton { Left, Right };

POINT CentreOf(HWND window);
// The middle of an entry of a list box, which must be in view.
POINT CentreOfItem(HWND listBox, int index);
// Scrolls a list so that this entry can be seen, unless it can be.
void ScrollTo(HWND listBox, int index);

void MovePointer(POINT place);
// Twice at one place is never a double click.
void Click(POINT place, MouseButton button = MouseButton::Left);
void DoubleClick(POINT place);

void Press(WORD key);
void PressWith(WORD modifier, WORD key);
// Keeps the left button down at a place, moves to others, and lets it go.
void HoldButton(POINT place);
void ReleaseButton();
void Type(const std::string& text);
// Replaces what a text box holds; throws std::runtime_error when it does not take it.
void TypeOver(HWND textBox, const std::string& text);

// A key that is kept down for as long as this stands. Like the keyboard's, it repeats itself:
// Wine lets go of a key that the display does not know to be down whenever another window comes to
// the front or the pointer arrives at one.
class HeldKey {
  public:
    explicit HeldKey(WORD key);
    ~HeldKey();
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

  private:
    WORD key_;
    std::jthread repeats_;
};

}  // namespace zentar::window_tests
