// What a screen reader calls a control that has no caption.
#pragma once

#include <windows.h>

namespace zentar {

// Does nothing for an empty name, or where the system has no such service.
void SetAccessibleName(HWND control, const char* name);

}  // namespace zentar
