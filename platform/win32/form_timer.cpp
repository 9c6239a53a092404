#include "platform/win32/form_timer.h"

#include <utility>

#include "platform/win32/event_dispatcher.h"

namespace zentar {

Win32Timer::Win32Timer(HWND form, const ControlRow& row, EventDispatcher& dispatcher)
    : form_(form), row_(row), dispatcher_(dispatcher) {}

void Win32Timer::SetTick(std::function<void()> tick) { tick_ = std::move(tick); }

void Win32Timer::SetEnabled(bool enabled) {
    if (enabled == enabled_) {
        return;
    }
    enabled_ = enabled;
    const auto id = static_cast<UINT_PTR>(row_.id);
    if (enabled) {
        SetTimer(form_, id, static_cast<UINT>(row_.interval), nullptr);
    } else {
        KillTimer(form_, id);
    }
}

void Win32Timer::Elapse() const {
    // A message of a timer may still be in the queue when the timer is stopped.
    if (enabled_) {
        dispatcher_.Run(tick_);
    }
}

}  // namespace zentar
