// A user in front of a real box of rich text.
#pragma once

#include <windows.h>

#include <array>
#include <initializer_list>
#include <memory>
#include <string>

#include "tests/contract/rich_text_contract.h"
#include "tests/contract/win32/clipboard_content.h"

namespace zentar {

// What the keyboard of this thread says while this stands.
class HeldKeys {
  public:
    explicit HeldKeys(std::initializer_list<int> keys);
    ~HeldKeys();
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

  private:
    std::array<BYTE, 256> before_{};
};

// The contract's window, shown, with the focus in the box.
class RichTextUser : public testing::Test {
  protected:
    RichTextUser();
    ~RichTextUser() override;
    RichTextUser(const RichTextUser&) = delete;
    RichTextUser& operator=(const RichTextUser&) = delete;

    Form& Main() { return *form_; }
    RichTextBox& Box() { return form_->GetRichTextBox(kRich); }
    HWND Top() const;
    HWND Editor() const;

    void SelectText(LONG from, LONG to) const;
    // Presses and releases a key while others are held down.
    void PressWith(std::initializer_list<int> held, WPARAM key) const {
        PressIn(Editor(), held, key);
    }
    static void PressIn(HWND window, std::initializer_list<int> held, WPARAM key);

    // Counts the box's change events from now on.
    void NoteChanges();
    int Changes() const { return changes_; }

    // Of the whole text, without moving what is selected: face, height and effects, with a question
    // mark for each that is not the same everywhere.
    std::string FormatOfAll() const;
    bool HasOneFont() const { return FormatOfAll().find('?') == std::string::npos; }
    int ObjectsInside() const;

  private:
    std::unique_ptr<Form> form_;
    int changes_ = 0;
};

}  // namespace zentar
