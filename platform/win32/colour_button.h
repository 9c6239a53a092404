// A push button whose face is a colour instead of a caption.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include "platform/win32/buttons.h"

namespace zentar {

class Win32ColourButton : public Win32Button {
  public:
    using Win32Button::Win32Button;

    LRESULT OnNotify(const NMHDR& header) override;
    void OnDpi(int dpi) override { dpi_ = dpi; }

  private:
    void DrawFace(const NMCUSTOMDRAW& drawing) const;

    int dpi_ = 96;
};

}  // namespace zentar
