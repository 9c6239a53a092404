// A control of Windows tells its parent what happens to it; here the parent hands that back to the
// control's own object.
#pragma once

#include <windows.h>

#include <optional>

namespace zentar {

// The answer to a message that a parent got about one of its controls; nothing when the message is
// about something else.
std::optional<LRESULT> ReflectToControl(UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace zentar
