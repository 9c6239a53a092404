// Menu entries and timers of a window in memory.
#pragma once

#include <functional>
#include <string>

#include "platform/controls.h"
#include "platform/form_table.h"

namespace zentar {

class MemoryMenuEntry : public MenuEntry {
  public:
    explicit MemoryMenuEntry(const MenuRow& row) : row_(row), enabled_(!row.startsDisabled) {}

    void SetClick(std::function<void()> click) override { click_ = std::move(click); }
    void SetEnabled(bool enabled) override { enabled_ = enabled; }
    bool Enabled() const override { return enabled_; }
    void SetChecked(bool checked) override { checked_ = checked; }
    bool Checked() const override { return checked_; }

    const MenuRow& Row() const { return row_; }
    const std::function<void()>& Click() const { return click_; }

  private:
    const MenuRow& row_;
    bool enabled_;
    bool checked_ = false;
    std::function<void()> click_;
};

class MemoryTimer : public Timer {
  public:
    void SetTick(std::function<void()> tick) override { tick_ = std::move(tick); }
    void SetEnabled(bool enabled) override {
        starts_ += !enabled_ && enabled ? 1 : 0;
        enabled_ = enabled;
    }
    bool Enabled() const override { return enabled_; }
    // How often it began to run, each time with a whole interval before it.
    int Starts() const { return starts_; }

    const std::function<void()>& Tick() const { return tick_; }

  private:
    bool enabled_ = false;
    int starts_ = 0;
    std::function<void()> tick_;
};

}  // namespace zentar
