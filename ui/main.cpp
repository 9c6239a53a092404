// The program's entry.

#include <windows.h>

#include "platform/win32/win32_platform.h"
#include "ui/layout.h"
#include "ui/zentar_program.h"

int WINAPI wWinMain(HINSTANCE hInstance, HINSTANCE /*previous*/, PWSTR /*commandLine*/,
                    int /*show*/) {
    zentar::Win32Platform platform(hInstance, zentar::LayoutControls);
    zentar::ZentarProgram program(platform.Services());
    program.Start();
    return platform.RunMessageLoop();
}
