// The tooltips of a form's controls.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace zentar {

class Tooltips {
  public:
    Tooltips(HWND form, HINSTANCE instance) : form_(form), instance_(instance) {}
    // In the place of what the control had; an empty text is no tooltip.
    void Set(HWND control, const std::string& text);
    void SetDpi(int dpi);
    // Shows the tips what the mouse does. (They could look at each control's messages themselves,
    // but that makes a list slow to fill.)
    void Relay(const MSG& message);

  private:
    struct Tip {
        HWND control;
        std::string text;
    };

    void CreateTipWindow();
    void SetWidth() const;
    void SendTool(UINT message, const Tip& tip) const;

    HWND form_;
    HINSTANCE instance_;
    int dpi_ = 96;
    std::vector<Tip> tips_;
    // Made when the mouse first moves over the form, to keep the start short; goes with the form's.
    HWND window_ = nullptr;
};

}  // namespace zentar
