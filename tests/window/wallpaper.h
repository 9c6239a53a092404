// The wallpaper of the user's desktop.
#pragma once

#include <string>

namespace zentar::window_tests {

// As it is kept for the next logon; the system tells each process only what it was at first.
std::wstring CurrentWallpaper();

}  // namespace zentar::window_tests
