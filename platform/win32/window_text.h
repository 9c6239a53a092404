// The text of a window: a caption, or the content of an edit control.
#pragma once

#include <windows.h>

#include <string>

namespace zentar {

std::wstring WindowText(HWND window);

}  // namespace zentar
