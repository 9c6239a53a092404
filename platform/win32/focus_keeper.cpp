#include "platform/win32/focus_keeper.h"

#include <algorithm>

namespace zentar {

void FocusKeeper::AddControl(HWND control, std::size_t place, bool getsFirstFocus) {
    const auto behind =
        std::upper_bound(stops_.begin(), stops_.end(), place,
                         [](std::size_t wanted, const Stop& stop) { return wanted < stop.place; });
    stops_.insert(behind, {control, place, getsFirstFocus});
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
    const auto count = static_cast<std::ptrdiff_t>(stops_.size());
    const auto at = std::find_if(stops_.begin(), stops_.end(),
                                 [from](const Stop& stop) { return stop.control == from; });
    std::ptrdiff_t index = at - stops_.begin();
    if (at == stops_.end() && !backwards) {
        index = -1;
    }
    for (std::ptrdiff_t step = 1; step <= count; ++step) {
        const std::ptrdiff_t next = backwards ? index - step + count : index + step;
        const HWND control = stops_[static_cast<std::size_t>((next + count) % count)].control;
        if (control != from && IsTabStop(control)) {
            return control;
        }
    }
    return nullptr;
}

HWND FocusKeeper::FirstStop() const {
    const auto first = std::find_if(stops_.begin(), stops_.end(), [this](const Stop& stop) {
        return stop.getsFirstFocus && IsTabStop(stop.control);
    });
    return first == stops_.end() ? NextStop(nullptr, false) : first->control;
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
