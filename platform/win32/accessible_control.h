// What a control is to a screen reader.
#pragma once

#include <windows.h>

#include <optional>

#include "platform/form_table.h"

namespace zentar {

// Answers WM_GETOBJECT where that asks for the control itself (OBJID_CLIENT): what the system says
// of such a window, but with the name of the row where it has one, and in the role of its kind. No
// answer where the system has no such service. Needs COM on this thread.
std::optional<LRESULT> AnswerScreenReader(HWND control, const ControlRow& row, WPARAM wParam);

}  // namespace zentar
