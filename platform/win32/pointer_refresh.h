// The mouse pointer, when it is to look different though the mouse did not move.
#pragma once

namespace zentar {

// Asks the window under the pointer, if it is one of the program's, to choose the pointer anew.
void RefreshPointer();

}  // namespace zentar
