// All services of Windows that the program uses, put together.
//
// One of these a process, made, used and destroyed on the thread that runs the windows.
#pragma once

#include <windows.h>

#include "platform/platform.h"
#include "platform/win32/win32_file_system.h"
#include "platform/win32/win32_form_factory.h"
#include "platform/win32/win32_image_library.h"
#include "platform/win32/win32_locale.h"
#include "platform/win32/win32_pictures.h"
#include "platform/win32/win32_registry.h"
#include "platform/win32/win32_session.h"
#include "platform/win32/win32_shell.h"
#include "platform/win32/win32_window_services.h"

namespace zentar {

class Win32Platform {
  public:
    // The module whose icons the windows show, and the function that places their controls.
    Win32Platform(HINSTANCE instance, LayoutFunction layout);
    Win32Platform(const Win32Platform&) = delete;
    Win32Platform& operator=(const Win32Platform&) = delete;

    Platform Services();
    // Runs the program until its main window has gone; gives its exit code.
    int RunMessageLoop() const;

  private:
    Win32Session session_;
    Win32FileSystem files_;
    Win32Shell shell_{session_};
    Win32WindowServices windows_{session_};
    Win32Locale locale_;
    Win32ImageLibrary library_{shell_.WindowsFolder()};
    Win32Pictures pictures_{session_};
    Win32Registry registry_{session_};
    Win32FormFactory forms_{session_};
};

}  // namespace zentar
