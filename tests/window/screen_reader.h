// What a screen reader says of the program's controls.
#pragma once

#include <windows.h>

#include <ostream>
#include <string>
#include <vector>

#include "platform/nviewlib/win32/resources.h"

namespace zentar::window_tests {

struct Spoken {
    int control = 0;
    std::string role;  // in words: "push button", "list", "group"
    std::string name;

    bool operator==(const Spoken&) const = default;
};

// For the messages of failed tests.
void PrintTo(const Spoken& spoken, std::ostream* out);

// Asks the program as a screen reader does, by way of Active Accessibility.
class ScreenReader {
  public:
    Spoken Of(HWND control) const;
    // All that can be seen inside a window but labels and the pages of tabs, in the order of the
    // windows.
    std::vector<Spoken> Inside(HWND window) const;

  private:
    nviewlib::ComOnThread com_;
};

}  // namespace zentar::window_tests
