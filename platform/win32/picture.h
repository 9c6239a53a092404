// An icon in a window.
#pragma once

#include "platform/win32/control_window.h"
#include "platform/win32/win32_handle.h"

namespace zentar {

class Win32Picture : public ControlBase<Picture> {
  public:
    explicit Win32Picture(const ControlPlace& place);

    void OnLayout() override;
    void OnEnclosingEnabled() override { Redraw(); }

  protected:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Redraw() const;
    void Paint() const;
    void Draw(HDC context) const;
    bool IsGrey() const;

    HINSTANCE instance_;
    SIZE size_{};
    UniqueIcon icon_;
    UniqueIcon grey_;
};

}  // namespace zentar
