#include "tests/monkey/user.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "tests/monkey/last_words.h"
#include "ui/form_tables.h"

namespace zentar::monkey {
namespace {

constexpr std::array<Key, 10> kKeys = {Key::F1,     Key::F2,        Key::F5,    Key::Delete,
                                       Key::Delete, Key::Backspace, Key::Enter, Key::Enter,
                                       Key::Space,  Key::Escape};

constexpr std::array<std::string_view, 12> kTexts = {
    "x", "Fred",         "q2dm1",         "\"", "^1",  "дуэль",
    "😀", "D:\\Remote\\", "C:\\Nowhere\\", "\\", "a b", "1"};

constexpr std::size_t kMostText = 200;
constexpr int kDeepest = 2;

bool HasText(const MemoryForm& form, int id) {
    const auto rows = form.Table().controls;
    return std::any_of(rows.begin(), rows.end(), [id](const ControlRow& row) {
        return row.id == id &&
               (row.kind == ControlKind::TextBox || row.kind == ControlKind::RichTextBox);
    });
}

const MenuRow* MenuRowOf(const MemoryForm& form, int id) {
    const auto rows = form.Table().menus;
    const auto at = std::find_if(rows.begin(), rows.end(), [id](const MenuRow& row) {
        return row.id == id && row.kind != MenuKind::Separator;
    });
    return at == rows.end() ? nullptr : &*at;
}

// The entries that can be picked below a popup menu, or, for 0, in the menu bar.
std::vector<int> EntriesOf(MemoryForm& form, int popup) {
    std::vector<int> entries;
    for (const MenuRow& row : form.Table().menus) {
        if (row.kind != MenuKind::Entry) {
            continue;
        }
        bool usable = form.GetMenu(row.id).Enabled();
        const MenuRow* top = &row;
        while (top->parent != 0) {
            top = MenuRowOf(form, top->parent);
            usable = usable && form.GetMenu(top->id).Enabled();
        }
        const bool wanted = popup == 0 ? top->kind == MenuKind::Menu : top->id == popup;
        if (wanted && usable) {
            entries.push_back(row.id);
        }
    }
    return entries;
}

}  // namespace

User::User(Dice& dice, MemoryFormFactory& forms, Costs& costs)
    : dice_(dice), forms_(forms), costs_(costs) {
    for (const int modal : {IDW_Form3, IDW_Form4, IDW_Form9}) {
        forms_.SetUser(modal, [this](MemoryForm& form) { BeInModal(form); });
    }
}

void User::Uses(ZentarProgram& program) {
    program_ = &program;
    costs_.Begins();
    Main().SetPopupUser([this](int menu) { PickFromPopup(Main(), menu); });
}

void User::Announce(const char* action, int id) {
    Here().action = action;
    Here().control = id;
    costs_.OfCommand(id, Main(), program_->State());
}

bool User::TakesInput(int form, int alwaysUsable) {
    return forms_.Exists(form) && forms_.Get(form).Shown() &&
           forms_.Get(form).CanReach(alwaysUsable);
}

void User::Act() {
    if (TakesInput(IDW_Form9, IDC_labHeader) && dice_.OneIn(6)) {
        ActIn(forms_.Get(IDW_Form9));
    } else if (TakesInput(IDW_Form2, IDC_SSTab1)) {
        ActIn(Main());
    }
}

void User::ActMeanwhile() {
    if (program_ == nullptr || depth_ >= kDeepest || !dice_.OneIn(10)) {
        return;
    }
    ++depth_;
    Act();
    --depth_;
}

void User::BeInModal(MemoryForm& modal) {
    if (program_ == nullptr) {
        return;  // a first run
    }
    for (int left = dice_.Between(0, 6); left > 0 && modal.Shown(); --left) {
        ActIn(modal);
    }
}

void User::ActIn(MemoryForm& form) {
    switch (dice_.Below(16)) {
        case 0:
        case 1:
        case 2:
            PressKey(form);
            return;
        case 3:
            TypeText(form);
            return;
        case 4:
            PickFromMenuBar(form);
            return;
        case 5:
            if (dice_.OneIn(20)) {
                Announce("close", form.Table().id);
                form.UserClose();
            } else if (&form == &Main() && form.GetTimer(IDC_tmrQ3Game).Enabled()) {
                Announce("timer", IDC_tmrQ3Game);
                form.FireTimer(IDC_tmrQ3Game);
            }
            return;
        default:
            break;
    }
    if (const ControlRow* row = SomeControl(form)) {
        ActOn(form, *row);
    }
}

const ControlRow* User::SomeControl(MemoryForm& form) {
    constexpr int kAttempts = 12;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        const ControlRow& row = dice_.Of(form.Table().controls);
        if (row.kind != ControlKind::Timer && form.CanReach(row.id)) {
            return &row;
        }
    }
    return nullptr;
}

void User::ActOn(MemoryForm& form, const ControlRow& row) {
    switch (row.kind) {
        case ControlKind::ListBox:
            ActOnList(form, row.id);
            break;
        case ControlKind::TextBox:
            ActOnTextBox(form, row.id);
            break;
        case ControlKind::RichTextBox:
            ActOnRichText(form, row.id);
            break;
        case ControlKind::PictureBox:
            ActOnPicture(form, row.id);
            break;
        case ControlKind::Tab: {
            const int pages = &form == &Main() ? 5 : 1;
            Announce("tab", row.id);
            form.UserSelectTab(row.id, dice_.Between(0, pages - 1));
            break;
        }
        case ControlKind::ImageBox:
            if (dice_.OneIn(3)) {
                Announce("right click", row.id);
                form.UserRightClick(row.id);
                break;
            }
            [[fallthrough]];
        default:
            Announce("click", row.id);
            form.UserClick(row.id);
    }
}

void User::ActOnList(MemoryForm& form, int list) {
    const int count = form.GetListBox(list).Count();
    const int index = dice_.Between(0, std::max(count - 1, 0));
    switch (dice_.Below(6)) {
        case 0:
            if (count > 0) {
                Announce("double click", list);
                form.UserDoubleClick(list, index);
            }
            break;
        case 1:
        case 2:
            Announce("right click", list);
            form.UserRightClick(list, dice_.OneIn(6) ? -1 : std::min(index, count - 1));
            break;
        default:
            if (count > 0) {
                Announce("select", list);
                form.UserSelect(list, index);
            }
    }
}

void User::ActOnTextBox(MemoryForm& form, int textBox) {
    if (dice_.OneIn(3)) {
        Announce("double click", textBox);
        form.UserDoubleClick(textBox);
        return;
    }
    Announce("click", textBox);
    form.UserClick(textBox);
    TypeText(form);
}

void User::ActOnRichText(MemoryForm& form, int richTextBox) {
    Announce("rich text", richTextBox);
    MemoryRichTextBox& box = form.UserIn(richTextBox);
    switch (dice_.Below(5)) {
        case 0: {
            const int from = dice_.Between(0, 20);
            box.Select(from, from + dice_.Between(0, 10));
            break;
        }
        case 1:
            if (box.Text().size() < kMostText) {
                box.Paste({{std::string(dice_.Of(kTexts)), 0xFF}, {"two", 0xFF00}});
            }
            break;
        case 2:
            box.Undo();
            break;
        case 3:
            box.Erase(dice_.OneIn(2) ? Key::Delete : Key::Backspace);
            break;
        default:
            TypeText(form);
    }
}

void User::ActOnPicture(MemoryForm& form, int pictureBox) {
    Announce("picture", pictureBox);
    MemoryPictureBox& box = form.UserMouseOn(pictureBox);
    const auto place = [this] { return Point{dice_.Between(-50, 2000), dice_.Between(-50, 1500)}; };
    switch (dice_.Below(6)) {
        case 0:
            box.SetView({dice_.Between(0, 2000), dice_.Between(0, 1500)});
            break;
        case 1:
            box.Press(dice_.OneIn(4) ? MouseButton::Right : MouseButton::Left, place());
            break;
        case 2:
            box.Release();
            break;
        case 3:
            form.UserDoubleClick(pictureBox);
            break;
        default:
            box.Drag(place());
    }
}

void User::PressKey(MemoryForm& form) {
    const Key key = dice_.Of(kKeys);
    Announce("key", static_cast<int>(key));
    if (key == Key::Delete || key == Key::Backspace) {
        costs_.OfDeleteKey(Main(), program_->State());
    } else if (key == Key::Enter) {
        // Presses the button that has the focus, if one has.
        costs_.OfCommand(form.FocusedId(), Main(), program_->State());
    }
    form.UserKey(key);
}

void User::TypeText(MemoryForm& form) {
    const int focused = form.FocusedId();
    if (!HasText(form, focused) || form.AnyControl(focused).Text().size() > kMostText) {
        return;
    }
    Announce("type", focused);
    form.UserType(dice_.Of(kTexts));
}

void User::PickFrom(MemoryForm& form, const std::vector<int>& entries) {
    if (entries.empty()) {
        return;
    }
    const int entry = dice_.Of(entries);
    Announce("menu", entry);
    form.UserPickMenu(entry);
}

void User::PickFromMenuBar(MemoryForm& form) { PickFrom(form, EntriesOf(form, 0)); }

void User::PickFromPopup(MemoryForm& form, int menu) {
    if (!dice_.OneIn(5)) {
        PickFrom(form, EntriesOf(form, menu));
    }
}

}  // namespace zentar::monkey
