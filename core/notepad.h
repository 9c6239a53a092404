// The system's own text editor.
#pragma once

#include <string>

#include "core/program_state.h"
#include "platform/shell.h"

namespace zentar {

// `argument` is the path of a text file. It stands on Notepad's command line as it is: Notepad
// takes all of it for one path, blanks and all, and quotes around it too.
Status OpenInNotepad(const ProgramState& state, Shell& shell, const std::string& argument);

}  // namespace zentar
