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

// What WM_GETOBJECT asks for when UI Automation meets a window: UiaRootObjectId, whose header takes
// in a large part of OLE.
inline constexpr LONG kUiAutomationAsks = -25;

// Tells the system the row's name, if it has one. UI Automation looks at the system's controls by
// itself and takes their names from there, not from the answer above. Needs COM on this thread.
void AnnotateName(HWND control, const ControlRow& row);

}  // namespace zentar
