// The tab control, and which of its pages is in front.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <vector>

#include "platform/win32/control_window.h"
#include "platform/win32/icon_strip.h"

namespace zentar {

class Win32TabControl : public ControlBase<TabControl> {
  public:
    using ControlBase::ControlBase;

    // Takes a page behind those that are there; the first one is in front.
    void AddPage(ControlWindow& page);

    int SelectedTab() const override;
    void SelectTab(int index) override;
    // To the next or the previous tab, round and round.
    void Step(bool backwards);

    LRESULT OnNotify(const NMHDR& header) override;
    void OnDpi(int dpi) override;

  protected:
    ControlStyle Style() const override;

  private:
    void NoteSelection();
    void LoadImages(int dpi);

    std::vector<ControlWindow*> pages_;
    UniqueImageList images_;
    int known_ = 0;  // the tab that the program has been told
};

}  // namespace zentar
