// The menus of a form: its menu bar, its popups, and their entries.
#pragma once

#include <windows.h>

#include <memory>
#include <span>
#include <vector>

#include "platform/controls.h"
#include "platform/form_table.h"
#include "platform/win32/win32_handle.h"

namespace zentar {

class EventDispatcher;

// A line of a menu: an entry, or a menu inside another, which can be disabled as well.
class Win32MenuEntry : public MenuEntry {
  public:
    Win32MenuEntry(const MenuRow& row, HMENU parent, EventDispatcher& dispatcher);

    void SetClick(std::function<void()> click) override;
    void SetEnabled(bool enabled) override;
    bool Enabled() const override { return enabled_; }
    void SetChecked(bool checked) override;
    bool Checked() const override;

    const MenuRow& Row() const { return row_; }
    // The user picked it.
    void Pick() const;

  private:
    bool Offered() const;
    void ShowWhetherOffered() const;

    const MenuRow& row_;
    HMENU parent_;
    UINT position_;  // in the parent; a number would not find a menu inside another
    EventDispatcher& dispatcher_;
    bool enabled_;
    std::function<void()> click_;
};

class FormMenus {
  public:
    FormMenus(std::span<const MenuRow> rows, EventDispatcher& dispatcher);

    // The menu bar, which the window that it is set in owns; null when there is none.
    HMENU TakeBar() { return bar_.Release(); }
    bool HasBar() const { return hasBar_; }
    // A popup, or a menu inside another; null when there is none of that number.
    HMENU MenuOf(int id) const;
    Win32MenuEntry* Find(int id) const;

  private:
    void AddRow(const MenuRow& row, EventDispatcher& dispatcher);

    struct Opened {
        int id;
        HMENU menu;
    };

    UniqueMenu bar_;
    bool hasBar_ = false;
    std::vector<UniqueMenu> popups_;
    std::vector<Opened> menus_;  // by their rows' numbers
    std::vector<std::unique_ptr<Win32MenuEntry>> entries_;
};

}  // namespace zentar
