// The full-size viewer: a screenshot on a screen of its own.
#pragma once

#include "platform/bitmap.h"
#include "platform/form.h"
#include "screenshots/shot_drag.h"

namespace zentar {

class FullView {
  public:
    // Binds the events of the window and of the picture box that fills it.
    FullView(Form& Form3, PictureBox& picFull);
    FullView(const FullView&) = delete;
    FullView& operator=(const FullView&) = delete;

    // Returns once the user has seen enough.
    void Show(BitmapPtr shot);

    void Form3_Form_Load();
    bool picFull_KeyPress(Key key);
    void picFull_MouseDown(MouseButton button, Point at);
    void picFull_MouseMove(Point to);
    void picFull_MouseUp();
    void picFull_DblClick();

  private:
    bool IsDraggable() const;
    // Moves the image as far as the drag goes; gives the drag as it is then.
    Drag Pull(const Drag& before, Point to);

    Form& Form3_;
    PictureBox& picFull_;
    Point origin_;
    Point mouse_;
};

}  // namespace zentar
