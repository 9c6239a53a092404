#include "platform/win32/form_menus.h"

#include <algorithm>

#include "platform/win32/event_dispatcher.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

void AppendLine(HMENU parent, const MenuRow& row, HMENU opens) {
    std::wstring caption = Widen(row.caption);
    MENUITEMINFOW line{};
    line.cbSize = sizeof line;
    line.fMask = MIIM_FTYPE | MIIM_ID;
    line.fType = row.kind == MenuKind::Separator ? MFT_SEPARATOR : MFT_STRING;
    line.wID = static_cast<UINT>(row.id);
    if (row.kind != MenuKind::Separator) {
        line.fMask |= MIIM_STRING;
        line.dwTypeData = caption.data();
    }
    if (opens != nullptr) {
        line.fMask |= MIIM_SUBMENU;
        line.hSubMenu = opens;
    }
    InsertMenuItemW(parent, static_cast<UINT>(GetMenuItemCount(parent)), TRUE, &line);
}

}  // namespace

Win32MenuEntry::Win32MenuEntry(const MenuRow& row, HMENU parent, EventDispatcher& dispatcher)
    : row_(row),
      parent_(parent),
      position_(static_cast<UINT>(GetMenuItemCount(parent) - 1)),
      dispatcher_(dispatcher),
      enabled_(!row.startsDisabled) {
    ShowWhetherOffered();
}

void Win32MenuEntry::SetClick(std::function<void()> click) {
    click_ = std::move(click);
    ShowWhetherOffered();
}

void Win32MenuEntry::SetEnabled(bool enabled) {
    enabled_ = enabled;
    ShowWhetherOffered();
}

bool Win32MenuEntry::Offered() const { return enabled_ && (click_ || row_.kind == MenuKind::Menu); }

void Win32MenuEntry::ShowWhetherOffered() const {
    EnableMenuItem(parent_, position_, MF_BYPOSITION | (Offered() ? MF_ENABLED : MF_GRAYED));
}

void Win32MenuEntry::SetChecked(bool checked) {
    CheckMenuItem(parent_, position_, MF_BYPOSITION | (checked ? MF_CHECKED : MF_UNCHECKED));
}

bool Win32MenuEntry::Checked() const {
    MENUITEMINFOW line{};
    line.cbSize = sizeof line;
    line.fMask = MIIM_STATE;
    GetMenuItemInfoW(parent_, position_, TRUE, &line);
    return (line.fState & MFS_CHECKED) != 0;
}

void Win32MenuEntry::Pick() const {
    if (Offered()) {
        dispatcher_.Run(click_);
    }
}

FormMenus::FormMenus(std::span<const MenuRow> rows, EventDispatcher& dispatcher) {
    for (const MenuRow& row : rows) {
        AddRow(row, dispatcher);
    }
}

void FormMenus::AddRow(const MenuRow& row, EventDispatcher& dispatcher) {
    if (row.kind == MenuKind::Popup) {
        popups_.emplace_back(CreatePopupMenu());
        menus_.push_back({row.id, popups_.back().Get()});
        return;
    }
    if (row.parent == 0 && !bar_) {
        bar_.Reset(CreateMenu());
        hasBar_ = true;
    }
    const HMENU parent = row.parent == 0 ? bar_.Get() : MenuOf(row.parent);
    const HMENU opens = row.kind == MenuKind::Menu ? CreatePopupMenu() : nullptr;
    AppendLine(parent, row, opens);
    if (opens != nullptr) {
        menus_.push_back({row.id, opens});
    }
    if (row.kind != MenuKind::Separator) {
        entries_.push_back(std::make_unique<Win32MenuEntry>(row, parent, dispatcher));
    }
}

HMENU FormMenus::MenuOf(int id) const {
    const auto at = std::find_if(menus_.begin(), menus_.end(),
                                 [id](const Opened& opened) { return opened.id == id; });
    return at == menus_.end() ? nullptr : at->menu;
}

Win32MenuEntry* FormMenus::Find(int id) const {
    const auto at = std::find_if(entries_.begin(), entries_.end(),
                                 [id](const auto& entry) { return entry->Row().id == id; });
    return at == entries_.end() ? nullptr : at->get();
}

}  // namespace zentar
