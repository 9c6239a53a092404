#include "screenshots/full_view.h"

#include <utility>

namespace zentar {

FullView::FullView(Form& Form3, PictureBox& picFull) : Form3_(Form3), picFull_(picFull) {
    FormEvents form;
    form.load = [this] { Form3_Form_Load(); };
    Form3_.SetEvents(std::move(form));

    ControlEvents events;
    events.keyDown = [this](Key key) { return picFull_KeyPress(key); };
    events.doubleClick = [this] { picFull_DblClick(); };
    picFull_.SetEvents(std::move(events));

    MouseEvents mouse;
    mouse.down = [this](MouseButton button, Point at) { picFull_MouseDown(button, at); };
    mouse.drag = [this](Point to) { picFull_MouseMove(to); };
    mouse.up = [this] { picFull_MouseUp(); };
    picFull_.SetMouseEvents(std::move(mouse));
}

void FullView::Show(BitmapPtr shot) {
    picFull_.SetImage(std::move(shot));
    Form3_.ShowModal();
    picFull_.SetImage(nullptr);
}

void FullView::Form3_Form_Load() {
    if (const BitmapPtr shot = picFull_.Image()) {
        picFull_.MoveImage(CentredPlace(shot->Dimensions(), picFull_.View()));
    }
    picFull_.SetPointer(BoxPointer::Default);
    picFull_.SetFocus();
}

bool FullView::picFull_KeyPress(Key key) {
    if (key != Key::Space && key != Key::Escape && key != Key::Enter) {
        return false;
    }
    Form3_.Close();
    return true;
}

bool FullView::IsDraggable() const {
    const BitmapPtr shot = picFull_.Image();
    return shot && IsLargerThanScreen(shot->Dimensions(), picFull_.View());
}

void FullView::picFull_MouseDown(MouseButton button, Point at) {
    if (button == MouseButton::Right) {
        Form3_.Close();
        return;
    }
    origin_ = at;
    mouse_ = at;
    if (IsDraggable()) {
        picFull_.SetPointer(BoxPointer::Custom);
    }
}

void FullView::picFull_MouseMove(Point to) {
    if (!IsDraggable()) {
        return;
    }
    const Drag after = DragTo({.place = picFull_.ImagePlace(), .origin = origin_, .mouse = mouse_},
                              to, picFull_.Image()->Dimensions(), picFull_.View());
    origin_ = after.origin;
    mouse_ = after.mouse;
    if (after.place != picFull_.ImagePlace()) {
        picFull_.MoveImage(after.place);
    }
}

void FullView::picFull_MouseUp() { picFull_.SetPointer(BoxPointer::Default); }

void FullView::picFull_DblClick() { Form3_.Close(); }

}  // namespace zentar
