// A window of the program, built from its table.
#pragma once

#include <functional>
#include <memory>

#include "platform/controls.h"
#include "platform/form_table.h"

namespace zentar {

struct FormEvents {
    // The window has its size and is about to be seen. Only of windows that are shown modally.
    std::function<void()> load;
    // The window came to the front. Runs from the message loop, never inside another procedure, so
    // it may show message boxes.
    std::function<void()> activate;
    // The window is about to go; false keeps it. Runs only when no other event procedure is under
    // way.
    std::function<bool()> queryUnload;
    // Windows ends the session; the program has a few seconds and gets no further call.
    std::function<void()> sessionEnding;
    // A key pressed anywhere in the window that the focused control did not use up.
    std::function<bool(Key)> keyDown;
};

class Form {
  public:
    virtual ~Form() = default;

    virtual void SetEvents(FormEvents events) = 0;
    virtual void Show() = 0;
    // Shows the window over the one that is in front and returns once it is closed.
    virtual void ShowModal() = 0;
    // Asks the window to go, as its close button does: queryUnload may refuse.
    virtual void Close() = 0;
    // Opens a Popup of the menu table at the pointer (or at the focused control, if the keyboard
    // asked) and runs the entry that the user picks.
    virtual void ShowPopup(int menuId) = 0;

    // The controls by their numbers. Asking for a number that the table does not have, or has with
    // another kind, is a mistake of the program and ends it.
    virtual Control& AnyControl(int id) = 0;
    virtual Label& GetLabel(int id) = 0;
    virtual Frame& GetFrame(int id) = 0;
    virtual Picture& GetPicture(int id) = 0;
    virtual ImageBox& GetImageBox(int id) = 0;
    virtual PictureBox& GetPictureBox(int id) = 0;
    virtual Button& GetButton(int id) = 0;
    virtual CheckBox& GetCheckBox(int id) = 0;
    virtual OptionButton& GetOptionButton(int id) = 0;
    virtual TextBox& GetTextBox(int id) = 0;
    virtual RichTextBox& GetRichTextBox(int id) = 0;
    virtual ListBox& GetListBox(int id) = 0;
    virtual TabControl& GetTab(int id) = 0;
    virtual Timer& GetTimer(int id) = 0;
    virtual MenuEntry& GetMenu(int id) = 0;
};

class FormFactory {
  public:
    virtual ~FormFactory() = default;
    // The table's data must outlive the form. The form starts hidden.
    virtual std::unique_ptr<Form> Create(const FormTable& table) = 0;
};

}  // namespace zentar
