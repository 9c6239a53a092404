// The controls in memory that show pictures.
#include <utility>

#include "tests/doubles/memory_controls.h"

namespace zentar {

void MemoryImageBox::SetImage(BitmapPtr image) {
    Log(image ? "SetImage(picture)" : "SetImage(none)");
    image_ = std::move(image);
}

void MemoryPictureBox::MoveImage(Point to) {
    ++moves_;
    place_ = to;
}

void MemoryPictureBox::Press(MouseButton button, Point at) {
    if (button == MouseButton::Right)
        Release();
    leftDown_ = button == MouseButton::Left;
    if (mouse_.down)
        host_.RunProcedure([down = mouse_.down, button, at] { down(button, at); });
}

void MemoryPictureBox::Drag(Point to) {
    if (leftDown_ && mouse_.drag)
        host_.RunProcedure([drag = mouse_.drag, to] { drag(to); });
}

void MemoryPictureBox::Release() {
    if (std::exchange(leftDown_, false) && mouse_.up)
        host_.RunProcedure([up = mouse_.up] { up(); });
}

}  // namespace zentar
