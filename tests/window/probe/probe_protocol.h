// What the tests ask of the probe, a DLL that Windows loads into the program under test. Menus and
// icons can only be looked at, and folders only picked, from inside the program that owns them.
#pragma once

#include <windows.h>

namespace zentar::window_tests {

// Registered window messages; sent to any window of the program's thread.
// Menu: wParam is the menu (0: the window's menu bar), lParam an entry's id.
inline constexpr wchar_t kProbeMenuMessage[] = L"ZentarProbeMenu";
// Icon: sent to the static control that shows a message box's icon.
inline constexpr wchar_t kProbeIconMessage[] = L"ZentarProbeIcon";
// Caption: sent to a button or label; how much room its caption needs.
inline constexpr wchar_t kProbeCaptionMessage[] = L"ZentarProbeCaption";
// Queue: whether the thread has input, messages or painting to do.
inline constexpr wchar_t kProbeQueueMessage[] = L"ZentarProbeQueue";
// Pick: sent to the system's folder picker, which then selects the folder in `text`.
inline constexpr wchar_t kProbePickMessage[] = L"ZentarProbePick";
// Dpi: sent to a top-level window, which then hears that it came to a screen of wParam dpi.
inline constexpr wchar_t kProbeDpiMessage[] = L"ZentarProbeDpi";

// The shared memory in which the probe puts its answer.
inline constexpr wchar_t kProbeMemory[] = L"ZentarProbeAnswer";

struct ProbeAnswer {
    UINT menuState;        // as GetMenuState gives it; 0xFFFFFFFF without such an entry
    wchar_t text[512];     // the entry's caption; the folder to pick
    ULONG_PTR systemIcon;  // IDI_… as a number; 0 for any other icon
    SIZE needed;           // pixels
    bool busy;             // something waits to be handled
};

}  // namespace zentar::window_tests
