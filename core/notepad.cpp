#include "core/notepad.h"

namespace zentar {

Status OpenInNotepad(const ProgramState& state, Shell& shell, const std::string& argument) {
    return shell.StartProgram({.folder = state.WindowsFolder,
                               .executable = "notepad.exe",
                               .arguments = " " + argument,
                               .window = StartWindow::Maximised});
}

}  // namespace zentar
