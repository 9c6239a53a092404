// The wallpaper of the user's desktop.
#pragma once

#include <string>

namespace zentar::window_tests {

// As it is kept for the next logon; the system tells each process only what it was at first.
std::wstring CurrentWallpaper();

// Puts the wallpaper of before back, and takes away those that the program made, whatever became
// of the test.
class KeptWallpaper {
  public:
    KeptWallpaper();
    ~KeptWallpaper();
    KeptWallpaper(const KeptWallpaper&) = delete;
    KeptWallpaper& operator=(const KeptWallpaper&) = delete;

  private:
    std::wstring before_;
};

}  // namespace zentar::window_tests
