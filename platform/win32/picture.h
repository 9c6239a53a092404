// An icon in a window.
#pragma once

#include "platform/win32/control_window.h"
#include "platform/win32/win32_handle.h"

namespace zentar {

class Win32Picture : public ControlBase<Picture> {
  public:
    using ControlBase::ControlBase;

    void OnLayout() override;
    void OnEnclosingEnabled() override { Redraw(false); }

  protected:
    ControlStyle Style() const override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Paint() const;
    void Draw(HDC context) const;
    bool IsGrey() const;

    SIZE size_{};
    UniqueIcon icon_;
    UniqueIcon grey_;
};

}  // namespace zentar
