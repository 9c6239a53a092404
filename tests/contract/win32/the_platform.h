// The one platform of the test process.
#pragma once

#include "platform/win32/win32_platform.h"

namespace zentar {

Win32Platform& ThePlatform();

}  // namespace zentar
