#include "tests/window/window_probe_client.h"

#include "platform/win32/win32_text.h"
#include "tests/window/windows_of.h"

namespace zentar::window_tests {

namespace {

HMODULE ProbeModule() {
    static const HMODULE module = LoadLibraryW(L"window_probe.dll");
    return module;
}

}  // namespace

WindowProbe::WindowProbe(DWORD thread)
    : memory_(CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                 sizeof(ProbeAnswer), kProbeMemory)),
      answer_(static_cast<ProbeAnswer*>(MapViewOfFile(memory_, FILE_MAP_WRITE, 0, 0, 0))),
      hook_(SetWindowsHookExW(WH_CALLWNDPROC,
                              reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(
                                  GetProcAddress(ProbeModule(), "ProbeHook"))),
                              ProbeModule(), thread)) {}

WindowProbe::~WindowProbe() {
    UnhookWindowsHookEx(hook_);
    UnmapViewOfFile(answer_);
    CloseHandle(memory_);
}

MenuLine WindowProbe::LookAt(HWND window, int id, HMENU menu) const {
    *answer_ = {};
    answer_->menuState = static_cast<UINT>(-1);
    Send(window, RegisterWindowMessageW(kProbeMenuMessage), reinterpret_cast<WPARAM>(menu), id);
    const UINT state = answer_->menuState;
    if (state == static_cast<UINT>(-1)) {
        return {};
    }
    return {.exists = true,
            .enabled = (state & (MF_GRAYED | MF_DISABLED)) == 0,
            .checked = (state & MF_CHECKED) != 0,
            .selected = (state & MF_HILITE) != 0,
            .caption = Narrow(answer_->text)};
}

ULONG_PTR WindowProbe::SystemIconOf(HWND control) const {
    *answer_ = {};
    Send(control, RegisterWindowMessageW(kProbeIconMessage));
    return answer_->systemIcon;
}

SIZE WindowProbe::CaptionSize(HWND control) const {
    *answer_ = {};
    Send(control, RegisterWindowMessageW(kProbeCaptionMessage));
    return answer_->needed;
}

void WindowProbe::ChangeDpi(HWND window, int dpi) const {
    Send(window, RegisterWindowMessageW(kProbeDpiMessage), static_cast<WPARAM>(dpi));
}

void WindowProbe::Pick(HWND picker, const std::wstring& folder) const {
    *answer_ = {};
    folder.copy(answer_->text, ARRAYSIZE(answer_->text) - 1);
    Send(picker, RegisterWindowMessageW(kProbePickMessage));
}

bool WindowProbe::IsBusy(HWND window) const {
    answer_->busy = true;
    Send(window, RegisterWindowMessageW(kProbeQueueMessage));
    return answer_->busy;
}

}  // namespace zentar::window_tests
