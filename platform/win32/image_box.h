// A picture, scaled to fit.
#pragma once

#include <memory>

#include "platform/win32/box_cursor.h"
#include "platform/win32/control_window.h"
#include "platform/win32/win32_bitmap.h"

namespace zentar {

class Win32ImageBox : public ControlBase<ImageBox> {
  public:
    explicit Win32ImageBox(const ControlPlace& place);

    void SetImage(BitmapPtr image) override;
    BitmapPtr Image() const override { return image_; }
    void SetPointer(BoxPointer pointer) override { cursor_.Show(pointer); }
    BoxPointer ShownPointer() const override { return cursor_.Shown(); }

    void OnLayout() override;
    void OnDpi(int dpi) override { cursor_.SetDpi(dpi); }

  protected:
    ControlStyle Style() const override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    RECT Client() const;
    void Paint();
    void Draw(HDC context, const RECT& wanted);
    void Scale(const RECT& place);
    void Press();
    void Release(POINT at);

    BoxCursor cursor_;
    BitmapPtr image_;
    // As it is shown; none until it is, and whenever another one is needed.
    std::shared_ptr<const Win32Bitmap> scaled_;
    bool pressed_ = false;
};

}  // namespace zentar
