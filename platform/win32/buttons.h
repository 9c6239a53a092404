// Push buttons, check boxes and option buttons.
#pragma once

#include <vector>

#include "platform/win32/control_window.h"

namespace zentar {

class Win32OptionButton;

class Win32Button : public ControlBase<Button> {
  public:
    using ControlBase::ControlBase;

    void OnCommand(WORD code) override;

  protected:
    ControlStyle Style() const override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

class Win32CheckBox : public ControlBase<CheckBox> {
  public:
    explicit Win32CheckBox(const ControlPlace& place);

    void SetChecked(bool checked) override;
    bool Checked() const override;
    void OnCommand(WORD code) override;

  protected:
    ControlStyle Style() const override;
    void OnMade() override;

  private:
    void NoteState();

    bool known_ = false;  // the state that the program has been told
};

// The option buttons of one parent, of which at most one is selected.
struct OptionGroup {
    std::vector<Win32OptionButton*> buttons;
};

class Win32OptionButton : public ControlBase<OptionButton> {
  public:
    // The group must outlive the button.
    Win32OptionButton(const ControlPlace& place, bool startsRun, OptionGroup& group);

    void SetSelected(bool selected) override;
    bool Selected() const override;
    void SetCaptionColour(CaptionColour colour) override;
    CaptionColour ShownCaptionColour() const override { return captionColour_; }
    void OnCommand(WORD code) override;
    LRESULT OnNotify(const NMHDR& header) override;
    HBRUSH OnColour(HDC context) override;

  protected:
    ControlStyle Style() const override;
    void OnMade() override;

  private:
    void Tick(bool ticked);
    void NoteState();
    void KeepOneStop() const;
    bool CaptionIsColoured() const;

    bool startsRun_;
    bool ticked_;  // while there is no window
    OptionGroup& group_;
    bool known_ = false;
    CaptionColour captionColour_ = CaptionColour::Normal;
};

}  // namespace zentar
