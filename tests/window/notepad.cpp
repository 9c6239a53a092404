#include "tests/window/notepad.h"

#include <windows.h>

#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"

namespace zentar::window_tests {

NotepadWindow CloseNotepad(const std::string& file) {
    const HWND window = Eventually([] { return FindWindowW(L"Notepad", nullptr); });
    NotepadWindow seen;
    if (window != nullptr) {
        Ready(window);
        Eventually([&] { return TextOf(window).find(file) != std::string::npos; });
        const HWND editor = GetWindow(window, GW_CHILD);
        seen = {TextOf(window), TextOf(editor), IsZoomed(window) != FALSE};
        PostMessageW(window, WM_CLOSE, 0, 0);
        WaitUntilGone(window);
    }
    return seen;
}

}  // namespace zentar::window_tests
