// Text with its colours on the clipboard.
#pragma once

#include <windows.h>

#include <vector>

#include "platform/rich_text.h"

namespace zentar {

bool ClipboardHoldsText();

// Rich text with its colours, or else plain text in that colour, without the line ends at its end.
// Empty when there is none, or another program keeps the clipboard to itself.
std::vector<ColouredRun> RunsOnClipboard(HWND owner, ColourRef colour);

// Gives text to other programs: with its colours to those that know Rich Text Format, plain to the
// others. The system's editor would do it in a format that depends on the program's code page, and
// which not every program reads.
bool PutRunsOnClipboard(HWND owner, const std::vector<ColouredRun>& runs);

}  // namespace zentar
