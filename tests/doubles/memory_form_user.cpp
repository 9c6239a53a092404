// What the user does in a window in memory.
#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "tests/doubles/memory_form.h"

namespace zentar {

// Why the window takes no input; empty when it does.
std::string MemoryForm::Obstacle() const {
    if (!shown_)
        return "the window is not shown";
    const bool behind = !session_->modals.empty() && session_->modals.back() != this;
    return behind ? "a modal window is in front" : "";
}

std::string MemoryForm::Obstacle(int id) const {
    const ControlCore& control = Core(id);
    if (!Obstacle().empty())
        return Obstacle();
    if (!control.EffectivelyVisible())
        return "it is hidden";
    return control.EffectivelyEnabled() ? "" : "it is disabled";
}

bool MemoryForm::TakesInput(const std::string& action) const {
    const std::string obstacle = Obstacle();
    if (obstacle.empty())
        return true;
    ADD_FAILURE() << action << " in \"" << table_.caption << "\": " << obstacle;
    return false;
}

// The control, ready for the user's input; null, and a failure of the test, when it takes none.
ControlCore* MemoryForm::Reach(int id, const std::string& action, bool focuses) {
    const std::string obstacle = Obstacle(id);
    if (!obstacle.empty()) {
        ADD_FAILURE() << action << " " << NameOf(id) << ": " << obstacle;
        return nullptr;
    }
    ControlCore& control = Core(id);
    if (focuses && control.CanTakeFocus())
        MoveFocus(&control);
    return &control;
}

void MemoryForm::UserClick(int id) {
    ControlCore* control = Reach(id, "UserClick");
    if (control != nullptr)
        control->Clicked();
}

void MemoryForm::UserSelect(int list, int index) {
    MemoryListBox& box = Get<MemoryListBox>(list);
    if (Reach(list, "UserSelect") != nullptr)
        box.Change(index);
}

void MemoryForm::UserSelect(int list, std::string_view text) {
    const std::vector<std::string> items = Items(list);
    const auto item = std::find(items.begin(), items.end(), text);
    if (item == items.end()) {
        ADD_FAILURE() << "UserSelect: " << NameOf(list) << " has no entry \"" << text << "\"";
        return;
    }
    UserSelect(list, static_cast<int>(item - items.begin()));
}

void MemoryForm::UserDoubleClick(int list, int index) {
    MemoryListBox& box = Get<MemoryListBox>(list);
    if (Reach(list, "UserDoubleClick") == nullptr)
        return;
    box.Change(index);
    if (!box.EffectivelyEnabled())
        return;  // the first click's procedure may have seen to that
    box.Raise("doubleClick", &ControlEvents::doubleClick);
}

void MemoryForm::UserRightClick(int list, int index) {
    MemoryListBox& box = Get<MemoryListBox>(list);
    if (Reach(list, "UserRightClick", false) == nullptr)
        return;
    box.SetEntryAtPointer(index);
    box.Raise("menuRequested", &ControlEvents::menuRequested);
    box.SetEntryAtPointer(-1);
}

void MemoryForm::UserRightClick(int imageBox) {
    MemoryImageBox& box = Get<MemoryImageBox>(imageBox);
    if (Reach(imageBox, "UserRightClick", false) != nullptr)
        box.Raise("menuRequested", &ControlEvents::menuRequested);
}

MemoryPictureBox& MemoryForm::UserMouseOn(int pictureBox) {
    Reach(pictureBox, "UserMouseOn");
    return Get<MemoryPictureBox>(pictureBox);
}

void MemoryForm::UserDoubleClick(int id) {
    if (ControlCore* control = Reach(id, "UserDoubleClick"))
        control->Raise("doubleClick", &ControlEvents::doubleClick);
}

MemoryRichTextBox& MemoryForm::UserIn(int richTextBox) {
    Reach(richTextBox, "UserIn");
    return Get<MemoryRichTextBox>(richTextBox);
}

void MemoryForm::UserSelectTab(int tab, int index) {
    MemoryTab& control = Get<MemoryTab>(tab);
    if (Reach(tab, "UserSelectTab") != nullptr)
        control.Change(index);
}

void MemoryForm::UserType(std::string_view text) {
    if (!TakesInput("UserType"))
        return;
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at + 1;
        while (end < text.size() && (text[end] & 0xC0) == 0x80)
            ++end;  // UTF-8's later bytes
        const std::string character(text.substr(at, end - at));
        if (auto* box = dynamic_cast<MemoryTextBox*>(focused_)) {
            box->TypeCharacter(character);
        } else if (auto* richBox = dynamic_cast<MemoryRichTextBox*>(focused_)) {
            richBox->TypeCharacter(character);
        } else {
            ADD_FAILURE() << "UserType: no text box has the focus";
            return;
        }
        at = end;
    }
}

bool MemoryForm::Uses(const std::function<bool(Key)>& procedure, Key key) {
    bool used = false;
    const std::function<bool(Key)> copy = procedure;  // it may set other procedures
    if (copy)
        RunProcedure([&] { used = copy(key); });
    return used;
}

void MemoryForm::UserKey(Key key) {
    if (!TakesInput("UserKey"))
        return;
    const auto isKind = [this](ControlKind kind) {
        return focused_ != nullptr && focused_->Row().kind == kind;
    };
    const bool raisesKeys = isKind(ControlKind::TextBox) || isKind(ControlKind::RichTextBox) ||
                            isKind(ControlKind::ListBox) || isKind(ControlKind::PictureBox);
    if (raisesKeys && Uses(focused_->Events().keyDown, key))
        return;
    if (Uses(events_.keyDown, key))
        return;
    UnusedKey(key);
}

// What the controls themselves make of a key that no event procedure wanted.
void MemoryForm::UnusedKey(Key key) {
    if (key == Key::Backspace || key == Key::Delete) {
        if (auto* box = dynamic_cast<MemoryTextBox*>(focused_))
            box->Erase(key);
        if (auto* richBox = dynamic_cast<MemoryRichTextBox*>(focused_))
            richBox->Erase(key);
    }
    if (key != Key::Enter)
        return;
    if (auto* button = dynamic_cast<MemoryButton*>(focused_)) {
        button->Clicked();
        return;
    }
    for (const auto& control : controls_) {
        const bool byEnter = (control->Row().flags & PressedByEnter) != 0;
        if (!byEnter || !control->EffectivelyEnabled() || !control->EffectivelyVisible())
            continue;
        control->Clicked();
        return;
    }
}

bool MemoryForm::CanPick(int id) {
    const MemoryMenuEntry& entry = MenuOf(id);
    const int parent = entry.Row().parent;
    return entry.Enabled() && (parent == 0 || CanPick(parent));
}

void MemoryForm::UserPickMenu(int id) {
    const MemoryMenuEntry& entry = MenuOf(id);
    if (!TakesInput("UserPickMenu " + NameOf(id)))
        return;
    if (entry.Row().kind != MenuKind::Entry) {
        ADD_FAILURE() << "UserPickMenu: " << NameOf(id) << " is a menu, not an entry";
    } else if (!CanPick(id)) {
        ADD_FAILURE() << "UserPickMenu: " << NameOf(id) << " is disabled";
    } else if (entry.Click()) {
        RunProcedure(entry.Click());
    }
}

void MemoryForm::UserClose() {
    if (TakesInput("UserClose"))
        Close();
}

void MemoryForm::FireTimer(int id) {
    const MemoryTimer& timer = TimerOf(id);
    if (!timer.Enabled()) {
        ADD_FAILURE() << "FireTimer: " << NameOf(id) << " is disabled";
        return;
    }
    if (timer.Tick())
        RunProcedure(timer.Tick());
}

}  // namespace zentar
