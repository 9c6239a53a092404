// The colours that the program gives to lists and text boxes.
#pragma once

#include <windows.h>

#include "platform/colour.h"
#include "platform/win32/win32_handle.h"

namespace zentar {

// What the colour looks like now.
COLORREF Rgb(Colour colour);

class TextColours {
  public:
    explicit TextColours(Colour background) : background_(background) {}

    // False when it had that colour already.
    bool SetForeground(Colour colour);
    bool SetBackground(Colour colour);
    Colour Foreground() const { return foreground_; }
    Colour Background() const { return background_; }

    // Prepares the control's device context for text in these colours, or in the system's grey
    // while the control is disabled. Gives the brush behind the text, which is not the caller's.
    HBRUSH Apply(HWND control, HDC context) const;

  private:
    COLORREF ShownForeground() const;

    Colour foreground_ = SystemColour::WindowText;
    Colour background_;
    UniqueBrush brush_;  // of a background that is no colour of the system
};

}  // namespace zentar
