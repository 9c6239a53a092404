// Starts other programs.
#pragma once

#include <windows.h>

#include "platform/shell.h"

namespace zentar {

// As Shell::StartProgram says. The owner is the window over which Windows asks the user for an
// administrator's consent, if the program needs that.
Status StartProgramFile(const ProgramStart& start, HWND owner);

}  // namespace zentar
