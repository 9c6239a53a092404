// A user in a dialog of the system.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zentar {

// What the user does, one after another; each is tried until it gives true.
using DialogSteps = std::vector<std::function<bool()>>;

// While this stands, a user does the steps in whatever dialog runs its message loop. A step that
// never gives true, or a dialog that stays after the last one, fails the test.
class DialogUser {
  public:
    explicit DialogUser(DialogSteps steps);
    ~DialogUser() = default;
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;

  private:
    std::shared_ptr<const DialogSteps> steps_;
};

// The visible dialog of this thread that has this title; null when there is none.
HWND FindDialog(const std::string& title);

// Steps of a user, in the dialog of that title.
std::function<bool()> ClickButton(const std::string& title, int button);
// Replaces what a text box of the dialog holds.
std::function<bool()> TypeInto(const std::string& title, int textBox, const std::string& text);
std::function<bool()> PressKeyIn(const std::string& title, int control, WPARAM virtualKey);

}  // namespace zentar
