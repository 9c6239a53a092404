// The forms that exist, and which of the program's windows is in front.
#pragma once

#include <windows.h>

#include <vector>

namespace zentar {

// A form, as the message loop and the dialogs know it.
class FormWindow {
  public:
    virtual ~FormWindow() = default;
    virtual HWND Window() const = 0;
    // Does what had to wait until no event procedure was under way.
    virtual void Resume() = 0;
    // Looks at a message before the control that it is for does; true when that was all.
    virtual bool PreTranslate(MSG& message) = 0;
};

class FormRegistry {
  public:
    void Add(FormWindow& form);
    void Remove(FormWindow& form);
    // Notes that the form came to the front.
    void MoveToFront(FormWindow& form);

    // The form whose window, or whose control, that is; null for other windows.
    FormWindow* FormOf(HWND window) const;
    // Who owns the next dialog: the window in front, be it a form or a dialog over one. Null when
    // no form is visible.
    HWND DialogOwner() const;
    void ResumeAll() const;
    const std::vector<FormWindow*>& Forms() const { return forms_; }

  private:
    std::vector<FormWindow*> forms_;  // the one that was in front last comes first
};

// Keeps input from all forms that take some, but one, for the time of a dialog.
class OtherFormsDisabled {
  public:
    OtherFormsDisabled(const FormRegistry& forms, HWND except);
    OtherFormsDisabled(const OtherFormsDisabled&) = delete;
    OtherFormsDisabled& operator=(const OtherFormsDisabled&) = delete;
    ~OtherFormsDisabled() { Restore(); }
    // A dialog that hides afterwards must do this first, or else Windows activates some other
    // program, as no window of this one could take the activation.
    void Restore();

  private:
    std::vector<HWND> disabled_;
};

}  // namespace zentar
