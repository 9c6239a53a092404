// Looking at the windows of another program, as an accessibility tool does.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace zentar::window_tests {

// The classes of the program's own windows, and of what the system has.
inline constexpr char kFormClass[] = "ZentarForm";
inline constexpr char kDialogClass[] = "#32770";
inline constexpr char kMenuClass[] = "#32768";
inline constexpr char kTooltipClass[] = "tooltips_class32";

// Functions that wait throw std::runtime_error when what they wait for never comes.

// The window; throws std::runtime_error, which tells what was never seen, when there is none.
HWND Found(HWND window, const std::string& what);

// The visible top-level windows of a process, the front one first.
std::vector<HWND> TopWindows(DWORD process);
// The first of them with that class, and that title if one is given; null when there is none.
HWND FindTop(DWORD process, const std::string& windowClass, const std::string& title = "");

// All windows inside another, in reading order of their creation.
std::vector<HWND> Descendants(HWND window);
// The control with a number, however deep it lies; null when there is none.
HWND FindControl(HWND window, int id);

// Whether a window is gone, or hidden.
bool IsGone(HWND window);
// Waits until it is.
void WaitUntilGone(HWND window);

// Waits until a window that has come has the keyboard and stands still: the window manager moves
// it, and may take the keyboard away once more, some time after it can be seen. Gives the window.
HWND Ready(HWND window);
// The same, for whichever window of a process is in front, after another one of it has gone.
void WaitForKeyboard(DWORD process);

std::string ClassOf(HWND window);
std::string TextOf(HWND window);
// Whether a user can use it: it and everything around it is enabled.
bool IsUsable(HWND window);

std::vector<std::string> ItemsOf(HWND listBox);
// The text of the selected entry; empty when none is selected.
std::string SelectedItemOf(HWND listBox);
bool IsChecked(HWND button);

// SendMessage that gives up after a while instead of hanging with the program.
LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

}  // namespace zentar::window_tests
