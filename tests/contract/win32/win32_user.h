// A user in front of real windows: mouse and keyboard messages as Windows sends them.
#pragma once

#include <windows.h>

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace zentar {

// The window of this thread that has this title; null when there is none.
HWND FindTopWindow(std::string_view title);
// The control of this number, however deep in the window; it must be there.
HWND FindControlWindow(HWND top, int id);
// The same, but null when it has no window.
HWND SearchControlWindow(HWND top, int id);

// The tooltip of a control; empty when it has none. There is none at all before the mouse moved.
std::string TooltipOf(HWND top, HWND control);

std::string TextOf(HWND window);

// Whether the mouse would reach the window: all that it stands in is visible and enabled.
bool MouseReaches(HWND window);

// Each posts what the hardware would cause; the message loop handles it.
void PostMove(HWND window, POINT at);
void PostClick(HWND window, POINT at);
void PostDoubleClick(HWND window, POINT at);
// The left or the right button goes down; the left one comes up.
void PostPress(HWND window, bool left, POINT at);
void PostRelease(HWND window, POINT at);
// Moves the real pointer there as well.
void PostRightClick(HWND window, POINT at);
void PostKey(HWND window, WPARAM virtualKey);
void PostText(HWND window, std::string_view text);

// What has not come after this time never will.
inline constexpr auto kPatience = std::chrono::seconds(20);
// What nothing came in for so long is quiet.
inline constexpr DWORD kQuietMilliseconds = 60;

// Handles what has come.
void PumpPending();

// Runs the message loop until nothing comes; the window manager answers a shown or closed window
// only some time later.
void Settle();

// Runs the step again and again from inside whatever message loop runs, until it gives true, or
// the test is over. One at a time. A step that never gives true fails the test, which then says
// `what`; and what waits for a user, a menu, a dialog or a window, is cancelled, so that it goes
// on.
void TryMeanwhile(const std::string& what, std::function<bool()> step);

POINT MiddleOf(const RECT& rect);
POINT MiddleOf(HWND window);
// The middle of a list's entry; for -1, of the empty space below the last one.
POINT MiddleOfEntry(HWND list, int index);

}  // namespace zentar
