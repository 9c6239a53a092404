// Looks into the program under test by way of the probe DLL.
#pragma once

#include <windows.h>

#include <string>

#include "tests/window/probe/probe_protocol.h"

namespace zentar::window_tests {

struct MenuLine {
    bool exists = false;
    bool enabled = false;
    bool checked = false;
    bool selected = false;
    std::string caption;
};

class WindowProbe {
  public:
    // Hooks the thread that owns the program's windows.
    explicit WindowProbe(DWORD thread);
    ~WindowProbe();
    WindowProbe(const WindowProbe&) = delete;
    WindowProbe& operator=(const WindowProbe&) = delete;

    // An entry of a window's menu bar, or of `menu`.
    MenuLine LookAt(HWND window, int id, HMENU menu = nullptr) const;
    // Which of the system's icons a static control shows: IDI_… as a number, or 0.
    ULONG_PTR SystemIconOf(HWND control) const;

    // How much room the caption of a button or label needs, in pixels.
    SIZE CaptionSize(HWND control) const;
    // Whether the window's thread has input, messages or painting to do.
    bool IsBusy(HWND window) const;
    // Tells a window that it came to a screen of that dpi.
    void ChangeDpi(HWND window, int dpi) const;
    // Selects a folder in the system's folder picker.
    void Pick(HWND picker, const std::wstring& folder) const;

  private:
    HANDLE memory_;
    ProbeAnswer* answer_;
    HHOOK hook_;
};

}  // namespace zentar::window_tests
