// The pointer over a control that shows a picture.
#pragma once

#include <windows.h>

#include "platform/controls.h"
#include "platform/win32/win32_handle.h"

namespace zentar {

class BoxCursor {
  public:
    // The custom one is a resource of the module; number 0 is none.
    BoxCursor(HINSTANCE instance, int resource) : instance_(instance), resource_(resource) {}

    // It has the size that pointers have there.
    void SetDpi(int dpi);
    // Takes effect at once where the pointer is over one of the program's windows.
    void Show(BoxPointer pointer);
    BoxPointer Shown() const { return shown_; }
    // The answer to WM_SETCURSOR; false when the window around is to choose.
    bool Choose(LPARAM hit);

  private:
    HCURSOR Custom();

    HINSTANCE instance_;
    int resource_;
    int dpi_ = USER_DEFAULT_SCREEN_DPI;
    UniqueCursor custom_;
    BoxPointer shown_ = BoxPointer::Default;
};

}  // namespace zentar
