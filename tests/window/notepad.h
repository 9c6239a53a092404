// The system's Notepad, when the program opened something in it.
#pragma once

#include <string>

namespace zentar::window_tests {

// What Notepad shows; it is closed afterwards.
struct NotepadWindow {
    std::string title;
    std::string text;
    bool maximised = false;
};

// Waits for a Notepad whose title names the file. Without one, nothing; throws
// std::runtime_error when it does not close.
NotepadWindow CloseNotepad(const std::string& file);

}  // namespace zentar::window_tests
