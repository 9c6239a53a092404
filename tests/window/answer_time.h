// Whether another program hangs.
#pragma once

#include <windows.h>

#include <chrono>

namespace zentar::window_tests {

// False when the window does not answer within that time; on a machine that has no time to spare,
// when its thread works for longer than that before it answers.
bool AnswersWithin(HWND window, std::chrono::milliseconds longest);

}  // namespace zentar::window_tests
