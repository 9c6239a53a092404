#include "tests/contract/win32/the_platform.h"

#include "ui/layout.h"

namespace zentar {

Win32Platform& ThePlatform() {
    static Win32Platform platform(GetModuleHandleW(nullptr), &LayoutControls);
    return platform;
}

}  // namespace zentar
