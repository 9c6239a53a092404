#include "platform/win32/win32_platform.h"

#include <commctrl.h>

#include <utility>

namespace zentar {

Win32Platform::Win32Platform(HINSTANCE instance, LayoutFunction layout)
    : session_(instance, std::move(layout)) {
    INITCOMMONCONTROLSEX classes{};
    classes.dwSize = sizeof classes;
    classes.dwICC = ICC_STANDARD_CLASSES | ICC_TAB_CLASSES | ICC_BAR_CLASSES;
    InitCommonControlsEx(&classes);
    session_.dispatcher.SetOnIdle([this] { session_.forms.ResumeAll(); });
}

Platform Win32Platform::Services() {
    return {files_, shell_, windows_, locale_, library_, pictures_, registry_, forms_};
}

int Win32Platform::RunMessageLoop() const { return session_.loop.Run(); }

}  // namespace zentar
