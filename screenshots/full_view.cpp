#include "screenshots/full_view.h"

#include <optional>
#include <utility>

namespace zentar {
namespace {

constexpr int kArrowStep = 64;

// The way the image goes, so that what lies in the arrow's direction comes into view.
std::optional<Point> StepOf(Key key) {
    switch (key) {
        case Key::Left:
            return Point{kArrowStep, 0};
        case Key::Right:
            return Point{-kArrowStep, 0};
        case Key::Up:
            return Point{0, kArrowStep};
        case Key::Down:
            return Point{0, -kArrowStep};
        default:
            return std::nullopt;
    }
}

}  // namespace

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
    if (const std::optional<Point> step = StepOf(key)) {
        Pull({.place = picFull_.ImagePlace(), .origin = {}, .mouse = {}}, *step);
        return true;
    }
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
    const Drag after =
        Pull({.place = picFull_.ImagePlace(), .origin = origin_, .mouse = mouse_}, to);
    origin_ = after.origin;
    mouse_ = after.mouse;
}

Drag FullView::Pull(const Drag& before, Point to) {
    if (!IsDraggable()) {
        return before;
    }
    const Drag after = DragTo(before, to, picFull_.Image()->Dimensions(), picFull_.View());
    if (after.place != before.place) {
        picFull_.MoveImage(after.place);
    }
    return after;
}

void FullView::picFull_MouseUp() { picFull_.SetPointer(BoxPointer::Default); }

void FullView::picFull_DblClick() { Form3_.Close(); }

}  // namespace zentar
