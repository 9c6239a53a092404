// Window classes of the program's own.
#pragma once

#include <windows.h>

namespace zentar {

// Registers the class, with the arrow as its pointer, unless it is registered; gives its name.
const wchar_t* RegisterWindowClass(WNDCLASSEXW windowClass);

}  // namespace zentar
