#include "platform/win32/list_box.h"

#include <algorithm>

#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

// Measuring each text of a longer list would take longer than filling it.
constexpr int kMeasuredItems = 2000;
constexpr int kEntryMargin = 8;  // pixels beside the text of the widest entry

std::wstring WideItem(HWND list, int index) {
    const LRESULT length = SendMessageW(list, LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
    if (length == LB_ERR) {
        return {};
    }
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

}  // namespace

Win32ListBox::Win32ListBox(const ControlPlace& place)
    : ControlBase(place),
      colours_((place.row.flags & StartsGrey) != 0 ? SystemColour::ButtonFace
                                                   : SystemColour::Window) {}

ControlStyle Win32ListBox::Style() const {
    return {L"LISTBOX",
            WS_TABSTOP | WS_GROUP | WS_VSCROLL | WS_HSCROLL | LBS_HASSTRINGS | LBS_NOTIFY |
                LBS_NOINTEGRALHEIGHT,
            WS_EX_CLIENTEDGE};
}

// The list itself stops to draw by the one call, its scroll bars by the other, which has a price
// and is of no use while nobody sees the list.
class Win32ListBox::DrawingStopped {
  public:
    explicit DrawingStopped(const Win32ListBox& list)
        : list_(list), seen_(IsWindowVisible(list.Handle()) != FALSE) {
        list_.Send(WM_SETREDRAW, FALSE);
        if (seen_) {
            DefWindowProcW(list_.Handle(), WM_SETREDRAW, FALSE, 0);
        }
    }
    ~DrawingStopped() {
        list_.Send(WM_SETREDRAW, TRUE);
        if (seen_) {
            DefWindowProcW(list_.Handle(), WM_SETREDRAW, TRUE, 0);
            RedrawWindow(list_.Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
        }
    }
    DrawingStopped(const DrawingStopped&) = delete;
    DrawingStopped& operator=(const DrawingStopped&) = delete;

  private:
    const Win32ListBox& list_;
    bool seen_;
};

void Win32ListBox::OnMade() {
    if (items_.empty()) {
        return;
    }
    const DrawingStopped stopped(*this);
    Fill(items_);
    Send(LB_SETCURSEL, static_cast<WPARAM>(selected_));
    items_.clear();
}

void Win32ListBox::SetItems(const std::vector<std::string>& items) {
    if (Handle() == nullptr) {
        KeepItems(items);
        return;
    }
    if (items.empty() && Count() == 0) {
        return;
    }
    const DrawingStopped stopped(*this);
    Fill(items);
    known_ = -1;
}

void Win32ListBox::UpdateItems(const std::vector<std::string>& items) {
    if (Handle() == nullptr) {
        KeepItems(items);
        return;
    }
    const DrawingStopped stopped(*this);
    const LRESULT top = Send(LB_GETTOPINDEX);
    Fill(items);
    known_ = -1;
    Send(LB_SETTOPINDEX, static_cast<WPARAM>(top));
}

void Win32ListBox::Fill(const std::vector<std::string>& items) {
    Send(LB_RESETCONTENT);
    std::size_t bytes = 0;
    for (const std::string& item : items) {
        bytes += (item.size() + 1) * sizeof(wchar_t);
    }
    Send(LB_INITSTORAGE, items.size(), static_cast<LPARAM>(bytes));
    std::wstring wide;
    for (const std::string& item : items) {
        WidenInto(item, wide);
        Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide.c_str()));
    }
    UpdateWidth();
}

void Win32ListBox::KeepItems(const std::vector<std::string>& items) {
    items_ = items;
    selected_ = known_ = -1;
}

int Win32ListBox::Count() const {
    return static_cast<int>(Handle() == nullptr ? static_cast<LRESULT>(items_.size())
                                                : Send(LB_GETCOUNT));
}

std::string Win32ListBox::Item(int index) const {
    if (Handle() != nullptr) {
        return Narrow(WideItem(Handle(), index));
    }
    const auto at = static_cast<std::size_t>(index);
    return at < items_.size() ? items_[at] : std::string();
}

int Win32ListBox::SelectedIndex() const {
    return Handle() == nullptr ? selected_ : static_cast<int>(Send(LB_GETCURSEL));
}

void Win32ListBox::Select(int index) {
    if (Handle() == nullptr) {
        selected_ = index;
    } else {
        Send(LB_SETCURSEL, static_cast<WPARAM>(index));
    }
    NoteSelection();
}

int Win32ListBox::IndexAt(POINT screen) const {
    RECT client{};
    GetClientRect(Handle(), &client);
    ScreenToClient(Handle(), &screen);
    const LRESULT height = Send(LB_GETITEMHEIGHT);
    if (!PtInRect(&client, screen) || height <= 0) {
        return -1;
    }
    // The system's own answer to this question ends at entry 65,535.
    const LRESULT index = Send(LB_GETTOPINDEX) + screen.y / height;
    return index < Count() ? static_cast<int>(index) : -1;
}

void Win32ListBox::SelectAtPointer() {
    if (Handle() == nullptr || KeyboardAsks()) {
        return;
    }
    POINT pointer{};
    GetCursorPos(&pointer);
    const int index = IndexAt(pointer);
    if (index >= 0) {
        Select(index);
    }
}

void Win32ListBox::ShowFirst(int index) { Send(LB_SETTOPINDEX, static_cast<WPARAM>(index)); }

void Win32ListBox::SetBackground(SystemColour colour) {
    if (colours_.SetBackground(colour)) {
        Redraw(true);
    }
}

void Win32ListBox::OnCommand(WORD code) {
    if (code == LBN_SELCHANGE) {
        NoteSelection();
    } else if (code == LBN_DBLCLK) {
        Raise(&ControlEvents::doubleClick);
    }
}

// A click on the entry that is selected already tells of a selection, too.
void Win32ListBox::NoteSelection() {
    const int selected = SelectedIndex();
    if (selected == known_) {
        return;
    }
    known_ = selected;
    if (selected >= 0) {
        Raise(&ControlEvents::click);
    }
}

HBRUSH Win32ListBox::OnColour(HDC context) { return colours_.Apply(Handle(), context); }

void Win32ListBox::OnLayout() {
    auto* const font = reinterpret_cast<HFONT>(Send(WM_GETFONT));
    if (font != measuredIn_) {
        UpdateWidth();
    }
}

// How far the list scrolls sideways: as far as its longest names need.
void Win32ListBox::UpdateWidth() {
    measuredIn_ = reinterpret_cast<HFONT>(Send(WM_GETFONT));
    const int count = Count();
    LONG widest = 0;
    if (count <= kMeasuredItems) {
        const WindowContext context(Handle());
        const HGDIOBJ before = SelectObject(context.Get(), measuredIn_);
        for (int i = 0; i < count; ++i) {
            const std::wstring text = WideItem(Handle(), i);
            SIZE size{};
            GetTextExtentPoint32W(context.Get(), text.c_str(), static_cast<int>(text.size()),
                                  &size);
            widest = std::max(widest, size.cx + kEntryMargin);
        }
        SelectObject(context.Get(), before);
    }
    Send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest));
}

}  // namespace zentar
