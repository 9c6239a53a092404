// Which control of a form has the keyboard, and who gets it next.
#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

namespace zentar {

class FocusKeeper {
  public:
    void SetForm(HWND form) { form_ = form; }
    // A control and its place in the order of the Tab key. The tabs of a tab control do not get the
    // focus when the form comes up: what the user came for is on the page.
    void AddControl(HWND control, std::size_t place, bool getsFirstFocus);

    // Whether the control is visible and enabled, and all that it stands in as well.
    bool CanTake(HWND control) const;
    // Gives the control the focus; in a window that is not in front, once it comes there, since
    // else Windows would bring it there.
    void Give(HWND control);
    bool Has(HWND control) const;
    // Moves the focus on when it is in a control that is about to be disabled or hidden: the
    // keyboard would be dead otherwise.
    void Leave(HWND going);
    void MoveNext(bool backwards);

    // For the moments when the window goes to the background and comes back.
    void Remember();
    void Restore();
    // The next time the form comes up as if it had never had the focus.
    void Forget() { remembered_ = nullptr; }
    // The focus comes back to where it was; to the program's rules it was never away.
    bool Restoring() const { return restoring_; }

  private:
    struct Stop {
        HWND control;
        std::size_t place;
        bool getsFirstFocus;
    };

    bool IsTabStop(HWND control) const;
    HWND NextStop(HWND from, bool backwards) const;
    HWND FirstStop() const;
    void Take(HWND control) const;

    HWND form_ = nullptr;
    std::vector<Stop> stops_;  // by their places
    HWND remembered_ = nullptr;
    bool restoring_ = false;
};

}  // namespace zentar
