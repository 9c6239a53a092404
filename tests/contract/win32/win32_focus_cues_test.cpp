// Windows hides where the focus is from who uses the mouse.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "tests/contract/controls_contract.h"
#include "tests/contract/win32/the_platform.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

std::vector<WPARAM> g_changes;

LRESULT CALLBACK NoteChange(int code, WPARAM wParam, LPARAM lParam) {
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && sent.message == WM_CHANGEUISTATE) {
        g_changes.push_back(sent.wParam);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// Asks the system nothing, since not every one hides it.
TEST(Win32FocusCues, TheTabKeyShowsTheFocus) {
    const std::unique_ptr<Form> form = ThePlatform().Services().forms.Create(ContractDialogTable());
    form->Show();
    Settle();
    g_changes.clear();
    const HHOOK hook = SetWindowsHookExW(WH_CALLWNDPROC, NoteChange, nullptr, GetCurrentThreadId());
    PostKey(GetFocus(), VK_TAB);
    Settle();
    UnhookWindowsHookEx(hook);
    EXPECT_THAT(g_changes, testing::Contains(MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS)));
}

}  // namespace
}  // namespace zentar
