// A picture, pixel by pixel, that can be moved.
#pragma once

#include <utility>

#include "platform/win32/box_cursor.h"
#include "platform/win32/control_window.h"
#include "platform/win32/win32_handle.h"

namespace zentar {

class Win32PictureBox : public ControlBase<PictureBox> {
  public:
    explicit Win32PictureBox(const ControlPlace& place);

    void SetMouseEvents(MouseEvents events) override { mouse_ = std::move(events); }
    void SetImage(BitmapPtr image) override;
    BitmapPtr Image() const override { return image_; }
    void MoveImage(Point to) override;
    Point ImagePlace() const override { return place_; }
    Size View() const override;
    void SetPointer(BoxPointer pointer) override { cursor_.Show(pointer); }
    BoxPointer ShownPointer() const override { return cursor_.Shown(); }

    void OnDpi(int dpi) override { cursor_.SetDpi(dpi); }

  protected:
    ControlStyle Style() const override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    RECT ImageRect() const;
    void Paint() const;
    void Draw(HDC context, const RECT& wanted) const;
    std::optional<LRESULT> OnMouse(UINT message, Point at);
    void Press(Point at);
    void LeftIsUp() const;
    void EndDrag();
    void RaiseDown(MouseButton button, Point at);

    BoxCursor cursor_;
    MouseEvents mouse_;
    BitmapPtr image_;
    // The same in the screen's own form, from which it is drawn several times faster.
    UniqueBitmap onScreen_;
    Point place_;
    bool leftDown_ = false;
};

}  // namespace zentar
