// What all windows of the program share.
#pragma once

#include <windows.h>

#include <utility>

#include "platform/form_table.h"
#include "platform/win32/event_dispatcher.h"
#include "platform/win32/form_registry.h"
#include "platform/win32/message_loop.h"
#include "platform/win32/ole_library.h"
#include "platform/window_services.h"

namespace zentar {

struct Win32Session {
    Win32Session(HINSTANCE module, LayoutFunction layoutFunction)
        : instance(module), layout(std::move(layoutFunction)) {}

    HINSTANCE instance;
    LayoutFunction layout;
    OleLibrary ole;
    EventDispatcher dispatcher;
    FormRegistry forms;
    MessageLoop loop{forms};
    Pointer pointer = Pointer::Default;
};

}  // namespace zentar
