#include "tests/window/zentar_driver.h"

#include <commctrl.h>

#include <algorithm>
#include <stdexcept>

#include "platform/win32/win32_text.h"
#include "screenshots/shot_name.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {

namespace {

constexpr UINT kGetMenuHandle = 0x01E1;  // MN_GETHMENU
constexpr int kIdleLooks = 3;

}  // namespace

ZentarDriver::ZentarDriver(const ZentarHome& home, Start start)
    : program_(home.Program() / "zentar.exe") {
    main_ = Found(Eventually([this] { return FindTop(Process(), kFormClass, "Zentar"); }),
                  "the main window");
    probe_ = std::make_unique<WindowProbe>(program_.Thread());
    if (start == Start::Normal) {
        Ready(main_);
        if (!GetsFocus(IDC_SSTab1)) {
            throw std::runtime_error("the tabs never get the keyboard");
        }
        Settle();
    }
}

HWND ZentarDriver::Control(int id) const {
    return Found(FindControl(main_, id), "control " + std::to_string(id));
}

std::string ZentarDriver::Text(int id) const { return TextOf(Control(id)); }

std::vector<std::string> ZentarDriver::Items(int id) const { return ItemsOf(Control(id)); }

std::string ZentarDriver::Selected(int id) const { return SelectedItemOf(Control(id)); }

bool ZentarDriver::Checked(int id) const { return IsChecked(Control(id)); }

bool ZentarDriver::Usable(int id) const { return IsUsable(Control(id)); }

bool ZentarDriver::Visible(int id) const {
    return (GetWindowLongW(Control(id), GWL_STYLE) & WS_VISIBLE) != 0;
}

void ZentarDriver::Resize(SIZE size) const {
    RECT area{};
    const bool done = Eventually([&] {
        SetWindowPos(main_, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        Settle();
        GetWindowRect(main_, &area);
        return area.right - area.left == size.cx && area.bottom - area.top == size.cy;
    });
    if (!done) {
        throw std::runtime_error("the window stays " + std::to_string(area.right - area.left) +
                                 " x " + std::to_string(area.bottom - area.top) + " instead of " +
                                 std::to_string(size.cx) + " x " + std::to_string(size.cy));
    }
}

GUITHREADINFO ZentarDriver::Keyboard() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(program_.Thread(), &info);
    return info;
}

HWND ZentarDriver::Focused() const { return Keyboard().hwndFocus; }

HWND ZentarDriver::Caret() const { return Keyboard().hwndCaret; }

bool ZentarDriver::GetsFocus(int id) const {
    return Eventually([this, id] {
        const HWND control = FindControl(main_, id);
        return control != nullptr && Focused() == control;
    });
}

void ZentarDriver::Settle() const {
    // An event procedure may let messages through while it is at work, so one look is not enough.
    for (int idle = 0; idle < kIdleLooks; ++idle) {
        Eventually([this] { return !probe_->IsBusy(main_); });
    }
}

void ZentarDriver::ClickOn(int id) const {
    WaitForKeyboard(Process());
    Click(CentreOf(Control(id)));
    Settle();
}

void ZentarDriver::ClickIn(HWND window, int id) const {
    Ready(window);
    Click(CentreOf(Found(FindControl(window, id), "control " + std::to_string(id))));
    Settle();
}

int ZentarDriver::IndexOf(int listBox, const std::string& item) const {
    int index = -1;
    const bool holdsIt = Eventually([&] {
        Settle();
        const std::vector<std::string> items = Items(listBox);
        const auto at = std::find_if(items.begin(), items.end(), [&](const std::string& entry) {
            return ShotOfEntry(entry) == ShotOfEntry(item);
        });
        index = static_cast<int>(at - items.begin());
        return at != items.end();
    });
    if (!holdsIt) {
        throw std::runtime_error("the list does not hold \"" + item + "\"");
    }
    return index;
}

void ZentarDriver::ClickItem(int listBox, const std::string& item) const {
    WaitForKeyboard(Process());
    const HWND list = Control(listBox);
    const int index = IndexOf(listBox, item);
    ScrollTo(list, index);
    Click(CentreOfItem(list, index));
    Settle();
}

void ZentarDriver::PressKey(WORD key) const {
    WaitForKeyboard(Process());
    Press(key);
    Settle();
}

void ZentarDriver::PressKeyWith(WORD modifier, WORD key) const {
    WaitForKeyboard(Process());
    Settle();
    PressWith(modifier, key);
    Settle();
}

void ZentarDriver::TypeText(const std::string& text) const {
    WaitForKeyboard(Process());
    Type(text);
    Settle();
}

void ZentarDriver::RepeatKey(WORD key) const {
    // Posted, since Wine lets go of a key that the display does not know to be down as soon as
    // another window comes to the front.
    constexpr LPARAM kWasDown = LPARAM{1} << 30U;
    for (int repetition = 0; repetition < 3; ++repetition) {
        PostMessageW(Found(Focused(), "the focus"), WM_KEYDOWN, key, kWasDown | 1);
        Settle();
    }
}

void ZentarDriver::ShowTab(int index) const {
    const HWND tabs = Control(IDC_SSTab1);
    const auto selected = [tabs] { return static_cast<int>(Send(tabs, TCM_GETCURSEL)); };
    Ready(main_);
    const bool shown = Eventually([&] {
        const int before = selected();
        if (before != index) {
            PressKeyWith(VK_CONTROL, VK_TAB);
            Eventually([&] { return selected() != before; }, kBeforeTryingAgain);
        }
        return selected() == index;
    });
    if (!shown) {
        throw std::runtime_error("the tabs do not change");
    }
    Settle();
}

HWND ZentarDriver::OpenMenu(char menu) const {
    const auto opened = [this] { return FindTop(Process(), kMenuClass); };
    return Found(Eventually([&]() -> HWND {
                     Ready(main_);
                     PressKeyWith(VK_MENU, static_cast<WORD>(menu));
                     const HWND window = Eventually(opened, kBeforeTryingAgain);
                     if (window == nullptr && (Keyboard().flags & GUI_INMENUMODE) != 0) {
                         Press(VK_ESCAPE);
                     }
                     return window;
                 }),
                 "the menu");
}

void ZentarDriver::CloseMenu(HWND menu) const {
    ClosePopup(menu);
    Press(VK_ESCAPE);
    Settle();
}

void ZentarDriver::OpenMenuEntry(char menu, char entry) const {
    const HWND opened = OpenMenu(menu);
    Press(static_cast<WORD>(entry));
    WaitUntilGone(opened);
}

void ZentarDriver::LeaveBy(WORD key, HWND window) const {
    Ready(window);
    const bool left = Eventually([&] {
        PressKey(key);
        return Eventually([window] { return IsGone(window); }, kBeforeTryingAgain);
    });
    if (!left) {
        throw std::runtime_error("the key does not close \"" + TextOf(window) + '"');
    }
    WaitUntilLeft(window);
}

void ZentarDriver::WaitUntilLeft(HWND window) const {
    WaitUntilGone(window);
    Settle();
    WaitForKeyboard(Process());
}

HWND ZentarDriver::WaitForWindow(const std::string& windowClass, const std::string& title) const {
    const HWND window = Found(Eventually([&] { return FindTop(Process(), windowClass, title); }),
                              "the window \"" + title + "\"");
    Ready(window);
    Settle();
    return window;
}

HWND ZentarDriver::OpenForm(WORD key, const std::string& title) const {
    const auto opened = [&] { return FindTop(Process(), kFormClass, title); };
    Eventually([&] {
        PressKey(key);
        return Eventually(opened, kBeforeTryingAgain);
    });
    return WaitForForm(title);
}

void ZentarDriver::AnswerInputBox(const std::string& title, const std::string& text) const {
    const HWND box = WaitForForm(title);
    const HWND edit = FindWindowExW(box, nullptr, L"Edit", nullptr);
    TypeOver(edit, text);
    LeaveBy(VK_RETURN, box);
}

HWND ZentarDriver::WaitForPicker(const std::string& title) const {
    const auto shownTitle = [&]() -> HWND {
        const HWND picker = FindTop(Process(), kDialogClass);
        const std::vector<HWND> children = Descendants(picker);
        const bool found = std::any_of(children.begin(), children.end(),
                                       [&](HWND child) { return TextOf(child) == title; });
        return found ? picker : nullptr;
    };
    return Ready(Found(Eventually(shownTitle), "the folder picker \"" + title + "\""));
}

void ZentarDriver::PickFolder(const std::string& title, const std::filesystem::path& folder) const {
    const HWND picker = WaitForPicker(title);
    const std::string name = Narrow(folder.filename().wstring());
    // The picker may still be about to select the folder that it begins with.
    const bool picked = Eventually([&] {
        probe_->Pick(picker, folder.wstring());
        const std::vector<HWND> children = Descendants(picker);
        return std::any_of(children.begin(), children.end(),
                           [&](HWND child) { return TextOf(child) == name; });
    });
    if (!picked) {
        throw std::runtime_error("the picker does not find " + name);
    }
    AnswerBox(picker, IDOK);
    Settle();
}

bool ZentarDriver::HasBox() const { return FindTop(Process(), kDialogClass) != nullptr; }

HWND ZentarDriver::OpenPopupAt(POINT place) const {
    WaitForKeyboard(Process());
    return Found(Eventually([&]() -> HWND {
                     Click(place, MouseButton::Right);
                     Settle();
                     return Eventually([this] { return FindTop(Process(), kMenuClass); },
                                       kBeforeTryingAgain);
                 }),
                 "the popup menu");
}

HWND ZentarDriver::OpenPopup(int listBox, const std::string& item) const {
    const HWND list = Control(listBox);
    const int index = IndexOf(listBox, item);
    ScrollTo(list, index);
    return OpenPopupAt(CentreOfItem(list, index));
}

HWND ZentarDriver::OpenPopupBelowItems(int listBox) const {
    RECT area{};
    GetWindowRect(Control(listBox), &area);
    return OpenPopupAt({area.left + 20, area.bottom - 20});
}

MenuLine ZentarDriver::PopupLine(HWND popup, int id) const {
    const auto menu = reinterpret_cast<HMENU>(Send(popup, kGetMenuHandle));
    return probe_->LookAt(main_, id, menu);
}

void ZentarDriver::ClosePopup(HWND popup) const {
    Press(VK_ESCAPE);
    WaitUntilGone(popup);
}

void ZentarDriver::Choose(int listBox, const std::string& item, char letter) const {
    const HWND popup = OpenPopup(listBox, item);
    Press(static_cast<WORD>(letter));
    WaitUntilGone(popup);
}

void ZentarDriver::ChooseCommand(int listBox, const std::string& item, int command) const {
    WalkTo(OpenPopup(listBox, item), command);
}

void ZentarDriver::WalkTo(HWND popup, int command) const {
    constexpr int kMostEntries = 40;
    for (int step = 0; step < kMostEntries && !PopupLine(popup, command).selected; ++step) {
        Press(VK_DOWN);
        Settle();
    }
    if (!PopupLine(popup, command).selected) {
        throw std::runtime_error("the arrow keys do not reach command " + std::to_string(command));
    }
    Press(VK_RETURN);
    WaitUntilGone(popup);
}

int ZentarDriver::Close() const {
    PostMessageW(main_, WM_CLOSE, 0, 0);
    return WaitForExit();
}

}  // namespace zentar::window_tests
