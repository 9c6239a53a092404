#include "platform/win32/tab_control.h"

#include <algorithm>
#include <utility>

#include "platform/win32/focus_keeper.h"
#include "platform/win32/units.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

// In units. The system adds 2 above a tab and 2 between the tabs and the page, so that the page
// begins 26 units below the upper edge of the tab control.
constexpr int kTabHeight = 22;
constexpr int kImageSize = 16;

}  // namespace

ControlStyle Win32TabControl::Style() const {
    return {WC_TABCONTROLW, WS_TABSTOP | WS_GROUP | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
}

void Win32TabControl::AddPage(ControlWindow& page) {
    std::wstring caption = Widen(page.Row().caption);
    TCITEMW item{};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    item.pszText = caption.data();
    item.iImage = page.Row().icon == 0 ? -1 : static_cast<int>(pages_.size());
    Send(TCM_INSERTITEMW, pages_.size(), reinterpret_cast<LPARAM>(&item));
    if (pages_.empty()) {
        page.SetVisible(true);
    }
    pages_.push_back(&page);
}

int Win32TabControl::SelectedTab() const { return static_cast<int>(Send(TCM_GETCURSEL)); }

void Win32TabControl::SelectTab(int index) {
    Send(TCM_SETCURSEL, static_cast<WPARAM>(index));
    NoteSelection();
}

void Win32TabControl::Step(bool backwards) {
    const int count = static_cast<int>(pages_.size());
    if (count > 1 && Enabled()) {
        SelectTab((SelectedTab() + (backwards ? count - 1 : 1)) % count);
    }
}

LRESULT Win32TabControl::OnNotify(const NMHDR& header) {
    if (header.code == static_cast<UINT>(TCN_SELCHANGE)) {
        NoteSelection();
    }
    return 0;
}

void Win32TabControl::NoteSelection() {
    const int selected = SelectedTab();
    if (selected == known_ || selected < 0) {
        return;
    }
    const ControlWindow& newPage = *pages_[static_cast<std::size_t>(selected)];
    Host().NeedWindow(newPage.Row());
    const ControlWindow& oldPage =
        *pages_[static_cast<std::size_t>(std::exchange(known_, selected))];
    if (IsChild(oldPage.Handle(), GetFocus())) {
        SetFocus();
    }
    ShowWindow(newPage.Handle(), SW_SHOWNA);
    ShowWindow(oldPage.Handle(), SW_HIDE);
    Raise(&ControlEvents::click);
}

void Win32TabControl::OnDpi(int dpi) {
    LoadImages(dpi);
    Send(TCM_SETITEMSIZE, 0, MAKELPARAM(0, PixelsOfUnits(kTabHeight, dpi)));
}

void Win32TabControl::LoadImages(int dpi) {
    std::vector<int> icons;
    for (const ControlWindow* page : pages_) {
        icons.push_back(page->Row().icon);
    }
    if (std::all_of(icons.begin(), icons.end(), [](int icon) { return icon == 0; })) {
        return;
    }
    UniqueImageList images = LoadIconStrip(Instance(), icons, PixelsOfUnits(kImageSize, dpi));
    Send(TCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.Get()));
    images_ = std::move(images);
}

}  // namespace zentar
