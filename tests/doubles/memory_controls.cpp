#include "tests/doubles/memory_controls.h"

#include <array>
#include <cstdio>

#include "tests/doubles/memory_rich_text.h"
#include "tests/doubles/mistake.h"

namespace zentar {
namespace {

bool StartsWith(const ControlRow& row, ControlFlags flag) { return (row.flags & flag) != 0; }

SystemColour FirstBackground(const ControlRow& row) {
    return StartsWith(row, StartsGrey) ? SystemColour::ButtonFace : SystemColour::Window;
}

std::string Call(const char* name, bool value) {
    return std::string(name) + (value ? "(true)" : "(false)");
}

std::string Call(const char* name, int value) {
    return std::string(name) + "(" + std::to_string(value) + ")";
}

MemoryTab& TabAbove(ControlCore* parent) {
    auto* tab = dynamic_cast<MemoryTab*>(parent);
    if (tab == nullptr)
        Mistake("a tab page whose parent is no tab control");
    return *tab;
}

std::string NameOf(SystemColour colour) {
    switch (colour) {
        case SystemColour::Window:
            return "Window";
        case SystemColour::WindowText:
            return "WindowText";
        case SystemColour::ButtonFace:
            break;
    }
    return "ButtonFace";
}

std::string NameOf(ColourRef colour) {
    std::array<char, 9> text{};
    std::snprintf(text.data(), text.size(), "0x%06x", static_cast<unsigned>(colour));
    return text.data();
}

}  // namespace

std::string CallWith(const char* name, Colour colour) {
    return std::string(name) + "(" + std::visit([](auto which) { return NameOf(which); }, colour) +
           ")";
}

MemoryCheckBox::MemoryCheckBox(ControlHost& host, const ControlRow& row, ControlCore* parent)
    : MemoryControl(host, row, parent), checked_(StartsWith(row, StartsChecked)) {}

void MemoryCheckBox::SetChecked(bool checked) {
    Log(Call("SetChecked", checked));
    Change(checked);
}

void MemoryCheckBox::Change(bool checked) {
    if (checked == checked_)
        return;
    checked_ = checked;
    Raise("click", &ControlEvents::click);
}

MemoryOptionButton::MemoryOptionButton(ControlHost& host, const ControlRow& row,
                                       ControlCore* parent)
    : MemoryControl(host, row, parent), selected_(StartsWith(row, StartsChecked)) {}

void MemoryOptionButton::SetSelected(bool selected) {
    Log(Call("SetSelected", selected));
    Change(selected);
}

void MemoryOptionButton::Change(bool selected) {
    if (selected == selected_)
        return;
    if (selected) {
        for (ControlCore* sibling : host_.ChildrenOf(row_.parent))
            sibling->ClearSelection();
    }
    selected_ = selected;
    if (selected)
        Raise("click", &ControlEvents::click);
}

void MemoryOptionButton::SetCaptionColour(CaptionColour colour) {
    switch (colour) {
        case CaptionColour::Normal:
            Log("SetCaptionColour(Normal)");
            break;
        case CaptionColour::Vanished:
            Log("SetCaptionColour(Vanished)");
            break;
        case CaptionColour::Red:
            Log("SetCaptionColour(Red)");
            break;
    }
    captionColour_ = colour;
}

bool MemoryOptionButton::IsTabStop() const {
    if (!CanTakeFocus())
        return false;
    if (selected_)
        return true;
    const MemoryOptionButton* first = nullptr;
    for (ControlCore* sibling : host_.ChildrenOf(row_.parent)) {
        const auto* option = dynamic_cast<MemoryOptionButton*>(sibling);
        if (option == nullptr)
            continue;
        if (option->selected_)
            return false;
        if (first == nullptr)
            first = option;
    }
    return first == this;
}

MemoryTextBox::MemoryTextBox(ControlHost& host, const ControlRow& row, ControlCore* parent)
    : MemoryControl(host, row, parent), background_(FirstBackground(row)), caret_(text_.size()) {}

void MemoryTextBox::SetText(const std::string& text) {
    Log("SetText(" + text + ")");
    caret_ = text.size();
    Change(text);
}

void MemoryTextBox::Change(const std::string& text) {
    allSelected_ = false;
    if (text == text_)
        return;
    text_ = text;
    Raise("change", &ControlEvents::change);
}

void MemoryTextBox::SelectAll() {
    Log("SelectAll()");
    allSelected_ = true;
}

void MemoryTextBox::PutCaretFirst() {
    Log("PutCaretFirst()");
    allSelected_ = false;
    caret_ = 0;
}

void MemoryTextBox::SetForeground(Colour colour) {
    Log(CallWith("SetForeground", colour));
    foreground_ = colour;
}

void MemoryTextBox::SetBackground(Colour colour) {
    Log(CallWith("SetBackground", colour));
    background_ = colour;
}

bool MemoryTextBox::Shows(ColourRef colour) const {
    const bool text = EffectivelyEnabled() && !text_.empty();
    return background_ == Colour(colour) || (text && foreground_ == Colour(colour));
}

void MemoryTextBox::TypeCharacter(const std::string& character) {
    if (ReadOnlyBox())
        return;
    std::string text = text_;
    if (allSelected_) {
        text.clear();
        caret_ = 0;
    }
    text.insert(caret_, character);
    caret_ += character.size();
    Change(text);
}

void MemoryTextBox::Erase(Key key) {
    if (ReadOnlyBox())
        return;
    const auto laterByte = [this](std::size_t at) { return (text_[at] & 0xC0) == 0x80; };
    std::size_t first = allSelected_ ? 0 : caret_;
    std::size_t last = allSelected_ ? text_.size() : caret_;
    if (first == last && key == Key::Backspace && first > 0) {
        do {
            --first;
        } while (first > 0 && laterByte(first));
    }
    if (first == last && key == Key::Delete && last < text_.size()) {
        do {
            ++last;
        } while (last < text_.size() && laterByte(last));
    }
    caret_ = first;
    Change(text_.substr(0, first) + text_.substr(last));
}

MemoryListBox::MemoryListBox(ControlHost& host, const ControlRow& row, ControlCore* parent)
    : MemoryControl(host, row, parent), background_(FirstBackground(row)) {}

void MemoryListBox::SetItems(const std::vector<std::string>& items) {
    Log(Call("SetItems", static_cast<int>(items.size())));
    items_ = items;
    selected_ = -1;
    entryAtPointer_ = -1;
    firstShown_ = 0;
}

void MemoryListBox::CheckIndex(int index) const {
    if (index >= 0 && index < Count())
        return;
    Mistake("entry " + std::to_string(index) + " of list " + std::to_string(row_.id) +
            ", which has " + std::to_string(Count()));
}

std::string MemoryListBox::Item(int index) const {
    CheckIndex(index);
    return items_[static_cast<std::size_t>(index)];
}

void MemoryListBox::Select(int index) {
    Log(Call("Select", index));
    Change(index);
}

void MemoryListBox::Change(int index) {
    if (index != -1)
        CheckIndex(index);
    if (index == selected_)
        return;
    selected_ = index;
    if (index >= 0)
        Raise("click", &ControlEvents::click);
}

void MemoryListBox::SelectAtPointer() {
    Log("SelectAtPointer()");
    if (entryAtPointer_ >= 0 && entryAtPointer_ < Count())
        Change(entryAtPointer_);
}

void MemoryListBox::ShowFirst(int index) {
    Log(Call("ShowFirst", index));
    CheckIndex(index);
    firstShown_ = index;
}

void MemoryListBox::SetBackground(SystemColour colour) {
    Log(CallWith("SetBackground", colour));
    background_ = colour;
}

void MemoryTab::SelectTab(int index) {
    Log(Call("SelectTab", index));
    Change(index);
}

void MemoryTab::Change(int index) {
    if (index < 0 || index >= PageCount()) {
        Mistake("tab " + std::to_string(index) + " of control " + std::to_string(row_.id));
    }
    if (index == selected_)
        return;
    const ControlCore* page = host_.ChildrenOf(row_.id)[static_cast<std::size_t>(selected_)];
    ControlCore* focused = host_.Focused();
    if (focused != nullptr && focused->IsWithin(*page))
        TakeFocus();
    selected_ = index;
    Raise("click", &ControlEvents::click);
}

MemoryTabPage::MemoryTabPage(ControlHost& host, const ControlRow& row, ControlCore* parent)
    : MemoryControl(host, row, parent), tab_(TabAbove(parent)), index_(tab_.PageCount()) {}

std::unique_ptr<ControlCore> MakeMemoryControl(ControlHost& host, const ControlRow& row,
                                               ControlCore* parent) {
    switch (row.kind) {
        case ControlKind::Label:
            return std::make_unique<MemoryLabel>(host, row, parent);
        case ControlKind::Button:
        case ControlKind::ColourButton:
            return std::make_unique<MemoryButton>(host, row, parent);
        case ControlKind::CheckBox:
            return std::make_unique<MemoryCheckBox>(host, row, parent);
        case ControlKind::OptionButton:
            return std::make_unique<MemoryOptionButton>(host, row, parent);
        case ControlKind::TextBox:
            return std::make_unique<MemoryTextBox>(host, row, parent);
        case ControlKind::RichTextBox:
            return std::make_unique<MemoryRichTextBox>(host, row, parent);
        case ControlKind::ListBox:
            return std::make_unique<MemoryListBox>(host, row, parent);
        case ControlKind::Frame:
            return std::make_unique<MemoryFrame>(host, row, parent);
        case ControlKind::Picture:
            return std::make_unique<MemoryPicture>(host, row, parent);
        case ControlKind::ImageBox:
            return std::make_unique<MemoryImageBox>(host, row, parent);
        case ControlKind::PictureBox:
            return std::make_unique<MemoryPictureBox>(host, row, parent);
        case ControlKind::Tab:
            return std::make_unique<MemoryTab>(host, row, parent);
        case ControlKind::TabPage:
            return std::make_unique<MemoryTabPage>(host, row, parent);
        case ControlKind::Timer:
            break;
    }
    Mistake("control " + std::to_string(row.id) + " is of a kind that has no window");
}

}  // namespace zentar
