#include "tests/doubles/memory_controls.h"

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

std::string Call(const char* name, SystemColour colour) {
    return std::string(name) + (colour == SystemColour::Window ? "(Window)" : "(ButtonFace)");
}

MemoryTab& TabAbove(ControlCore* parent) {
    auto* tab = dynamic_cast<MemoryTab*>(parent);
    if (tab == nullptr)
        Mistake("a tab page whose parent is no tab control");
    return *tab;
}

}  // namespace

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
    : MemoryControl(host, row, parent), background_(FirstBackground(row)) {}

void MemoryTextBox::SetText(const std::string& text) {
    Log("SetText(" + text + ")");
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

void MemoryTextBox::SetBackground(SystemColour colour) {
    Log(Call("SetBackground", colour));
    background_ = colour;
}

void MemoryTextBox::TypeCharacter(const std::string& character) {
    Change(allSelected_ ? character : text_ + character);
}

void MemoryTextBox::EraseCharacter() {
    std::string text = allSelected_ ? std::string() : text_;
    while (!text.empty() && (text.back() & 0xC0) == 0x80)
        text.pop_back();  // UTF-8's later bytes
    if (!text.empty())
        text.pop_back();
    Change(text);
}

MemoryListBox::MemoryListBox(ControlHost& host, const ControlRow& row, ControlCore* parent)
    : MemoryControl(host, row, parent), background_(FirstBackground(row)) {}

void MemoryListBox::SetItems(const std::vector<std::string>& items) {
    Log(Call("SetItems", static_cast<int>(items.size())));
    items_ = items;
    selected_ = -1;
    entryAtPointer_ = -1;
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

void MemoryListBox::SetBackground(SystemColour colour) {
    Log(Call("SetBackground", colour));
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
            return std::make_unique<MemoryButton>(host, row, parent);
        case ControlKind::CheckBox:
            return std::make_unique<MemoryCheckBox>(host, row, parent);
        case ControlKind::OptionButton:
            return std::make_unique<MemoryOptionButton>(host, row, parent);
        case ControlKind::TextBox:
            return std::make_unique<MemoryTextBox>(host, row, parent);
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
