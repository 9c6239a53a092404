// A timer of a form. It has no window of its own; its form gets its message.
#pragma once

#include <windows.h>

#include <functional>

#include "platform/controls.h"
#include "platform/form_table.h"

namespace zentar {

class EventDispatcher;

class Win32Timer : public Timer {
  public:
    Win32Timer(HWND form, const ControlRow& row, EventDispatcher& dispatcher);

    void SetTick(std::function<void()> tick) override;
    void SetEnabled(bool enabled) override;
    bool Enabled() const override { return enabled_; }

    int Id() const { return row_.id; }
    void Elapse() const;

  private:
    HWND form_;
    const ControlRow& row_;
    EventDispatcher& dispatcher_;
    std::function<void()> tick_;
    bool enabled_ = false;
};

}  // namespace zentar
