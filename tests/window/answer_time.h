// Whether another program hangs.
#pragma once

#include <windows.h>

#include <chrono>

namespace zentar::window_tests {

// False when the window's thread works for longer than that before it answers, or never answers.
// How long that takes by the clock says more of the machine.
bool AnswersAfter(HWND window, std::chrono::milliseconds longest);

}  // namespace zentar::window_tests
