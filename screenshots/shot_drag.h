// Dragging a screenshot that is larger than the screen.
#pragma once

#include "platform/geometry.h"

namespace zentar {

// Where an image stands on the screen when it is shown first; negative where it is larger.
Point CentredPlace(Size image, Size screen);

bool IsLargerThanScreen(Size image, Size screen);

// An image under the mouse. All in pixels of the screen.
struct Drag {
    Point place;   // of the image's upper left corner
    Point origin;  // of the mouse, when the image was where it is
    Point mouse;   // where it was last
};

// The mouse has moved. The image follows it, but no further than to its own edges; where it cannot
// follow, the origin goes a little beyond the mouse, so that it answers at once when the mouse
// turns back.
Drag DragTo(const Drag& before, Point mouse, Size image, Size screen);

}  // namespace zentar
