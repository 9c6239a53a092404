#include "platform/win32/focus_keeper.h"

#include <algorithm>

namespace zentar {

void FocusKeeper::AddControl(HWND control, bool getsFirstFocus) {
    controls_.push_back(control);
    if (!getsFirstFocus) {
        lateOnes_.push_back(control);
    }
}

void FocusKeeper::ReplaceControl(HWND control, HWND by) {
    std::replace(controls_.begin(), controls_.end(), control, by);
    std::replace(lateOnes_.begin(), lateOnes_.end(), control, by);
    if (remembered_ == control) {
        remembered_ = by;
    }
}

// A control of a disabled frame, or of a tab page that is not in front, cannot take the focus.
// Whether the form itself is visible or waits behind a dialog does not matter.
bool FocusKeeper::CanTake(HWND control) const {
    for (HWND window = control; window != form_; window = GetParent(window)) {
        constexpr LONG_PTR kAsked = WS_VISIBLE | WS_DISABLED;
        if (window == nullptr || (GetWindowLongPtrW(window, GWL_STYLE) & kAsked) != WS_VISIBLE) {
            return false;
        }
    }
    return control != nullptr;
}

bool FocusKeeper::IsTabStop(HWND control) const {
    return (GetWindowLongPtrW(control, GWL_STYLE) & WS_TABSTOP) != 0 && CanTake(control);
}

HWND FocusKeeper::NextStop(HWND from, bool backwards) const {
    const auto count = static_cast<std::ptrdiff_t>(controls_.size());
    const auto at = std::find(controls_.begin(), controls_.end(), from);
    std::ptrdiff_t index = at - controls_.begin();
    if (at == controls_.end() && !backwards) {
        index = -1;
    }
    for (std::ptrdiff_t step = 1; step <= count; ++step) {
        const std::ptrdiff_t next = backwards ? index - step + count : index + step;
        const HWND control = controls_[static_cast<std::size_t>((next + count) % count)];
        if (control != from && IsTabStop(control)) {
            return control;
        }
    }
    return nullptr;
}

HWND FocusKeeper::FirstStop() const {
    const auto first = std::find_if(controls_.begin(), controls_.end(), [this](HWND control) {
        return IsTabStop(control) &&
               std::find(lateOnes_.begin(), lateOnes_.end(), control) == lateOnes_.end();
    });
    return first == controls_.end() ? NextStop(nullptr, false) : *first;
}

void FocusKeeper::Give(HWND control) {
    if (!CanTake(control)) {
        return;
    }
    if (GetActiveWindow() == form_) {
        ::SetFocus(control);
    } else {
        remembered_ = control;
    }
}

bool FocusKeeper::Has(HWND control) const {
    return control != nullptr &&
           (GetActiveWindow() == form_ ? GetFocus() == control : remembered_ == control);
}

void FocusKeeper::Leave(HWND going) {
    const HWND focus = GetActiveWindow() == form_ ? GetFocus() : remembered_;
    if (focus == nullptr || (focus != going && !IsChild(going, focus))) {
        return;
    }
    HWND next = NextStop(focus, false);
    while (next != nullptr && next != focus && IsChild(going, next)) {
        next = NextStop(next, false);
    }
    Give(next != focus ? next : nullptr);
}

void FocusKeeper::Take(HWND control) const {
    ::SetFocus(control);
    if ((SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) {
        SendMessageW(control, EM_SETSEL, 0, -1);
    }
}

void FocusKeeper::MoveNext(bool backwards) {
    const HWND next = NextStop(GetFocus(), backwards);
    if (next != nullptr) {
        Take(next);
    }
}

void FocusKeeper::Remember() {
    const HWND focus = GetFocus();
    if (focus != nullptr && IsChild(form_, focus)) {
        remembered_ = focus;
    }
}

void FocusKeeper::Restore() {
    if (!CanTake(remembered_)) {
        if (const HWND first = FirstStop()) {
            Take(first);
        }
        return;
    }
    restoring_ = true;
    ::SetFocus(remembered_);
    restoring_ = false;
}

}  // namespace zentar
