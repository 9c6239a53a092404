// A list of texts.
#pragma once

#include "platform/win32/control_colour.h"
#include "platform/win32/control_window.h"

namespace zentar {

class Win32ListBox : public ControlBase<ListBox> {
  public:
    explicit Win32ListBox(const ControlPlace& place);

    void SetItems(const std::vector<std::string>& items) override;
    void UpdateItems(const std::vector<std::string>& items) override;
    int Count() const override;
    std::string Item(int index) const override;
    int SelectedIndex() const override;
    void Select(int index) override;
    void SelectAtPointer() override;
    void ShowFirst(int index) override;
    void SetBackground(SystemColour colour) override;
    SystemColour Background() const override {
        return std::get<SystemColour>(colours_.Background());
    }

    void OnCommand(WORD code) override;
    HBRUSH OnColour(HDC context) override;
    void OnLayout() override;

  protected:
    ControlStyle Style() const override;
    void OnMade() override;

  private:
    void Fill(const std::vector<std::string>& items);
    void KeepItems(const std::vector<std::string>& items);
    class DrawingStopped;

    void NoteSelection();
    int IndexAt(POINT screen) const;
    void UpdateWidth();

    std::vector<std::string> items_;  // while there is no window
    int selected_ = -1;               // likewise
    int known_ = -1;                  // the selection that the program has been told
    TextColours colours_;
    HFONT measuredIn_ = nullptr;
};

}  // namespace zentar
