// The system's dialogs for files, and the user in them.
//
// The functions throw std::runtime_error when what they wait for never comes.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace zentar::window_tests {

// Waits for the dialog with that title, until its user can type.
HWND WaitForFileDialog(DWORD process, const std::string& title);

// What the dialog offers as the file's name.
std::string OfferedName(HWND fileDialog);
// The kinds of files, in their order.
std::vector<std::string> KindsIn(HWND fileDialog);
// Files and folders in the folder that the dialog shows, sorted. They come a moment after the
// dialog does.
std::vector<std::string> FilesListed(HWND fileDialog);

// Replaces the name: that of a file in the folder shown, or a whole path.
void TypeFileName(HWND fileDialog, const std::string& name);
// Types a name and presses Open or Save; waits until the dialog has gone.
void ChooseFile(HWND fileDialog, const std::string& name);
void CancelFileDialog(HWND fileDialog);

}  // namespace zentar::window_tests
