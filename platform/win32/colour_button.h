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

  protected:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void DrawFace(HDC context) const;

    int dpi_ = 96;
    bool drawn_ = false;  // the face, by the message that is being handled
};

}  // namespace zentar
