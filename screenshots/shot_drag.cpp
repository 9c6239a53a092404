#include "screenshots/shot_drag.h"

namespace zentar {
namespace {

constexpr int kBeyond = 3;

// One axis of a drag. The mouse's own step says which way it goes: measured from an origin beyond
// the mouse, a slow push against an edge would look like the way back.
void DragAxis(int& place, int& origin, int from, int to, int image, int screen) {
    if (to == from) {
        return;
    }
    const bool forward = to > from;
    const int edge = forward ? 0 : screen - image;
    const int wanted = place + to - origin;
    const bool follows =
        forward ? wanted > place && wanted <= edge : wanted < place && wanted >= edge;
    place = follows ? wanted : edge;
    origin = to;
    if (!follows) {
        origin += forward ? kBeyond : -kBeyond;
    }
}

}  // namespace

Point CentredPlace(Size image, Size screen) {
    return {(screen.width - image.width) / 2, (screen.height - image.height) / 2};
}

bool IsLargerThanScreen(Size image, Size screen) {
    return image.width > screen.width || image.height > screen.height;
}

Drag DragTo(const Drag& before, Point mouse, Size image, Size screen) {
    Drag after = before;
    DragAxis(after.place.x, after.origin.x, before.mouse.x, mouse.x, image.width, screen.width);
    DragAxis(after.place.y, after.origin.y, before.mouse.y, mouse.y, image.height, screen.height);
    after.mouse = mouse;
    return after;
}

}  // namespace zentar
