// The look of an icon that stands for something unavailable.
#pragma once

#include <windows.h>

#include "platform/win32/win32_handle.h"

namespace zentar {

// The icon in pale greys, of that size; none when the system lacks the memory, or for no icon.
UniqueIcon GreyIcon(HICON icon, SIZE size);

}  // namespace zentar
