#include "tests/window/monkey_hands.h"

#include <dlgs.h>

#include <algorithm>
#include <array>
#include <stdexcept>

#include "firstaid/symptoms.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

constexpr std::array<WORD, 26> kKeys = {
    VK_UP,   VK_DOWN,   VK_DOWN, VK_DOWN,  VK_LEFT,   VK_RIGHT,  VK_HOME,   VK_END, VK_PRIOR,
    VK_NEXT, VK_TAB,    VK_TAB,  VK_SPACE, VK_RETURN, VK_RETURN, VK_ESCAPE, VK_F1,  VK_F2,
    VK_F5,   VK_DELETE, VK_BACK, 'A',      'Q',       '2',       'X',       VK_APPS};
constexpr std::array<WORD, 4> kWithControl = {VK_TAB, 'A', 'Z', 'C'};
constexpr std::array<WORD, 8> kInMenus = {VK_DOWN, VK_DOWN,   VK_DOWN,   VK_UP,
                                          VK_UP,   VK_RETURN, VK_RETURN, VK_ESCAPE};

// Questions that a monkey would answer with a restart of the system.
constexpr char kRestartTitle[] = "Change Logitech Setting";

HWND ButtonIn(HWND dialog, int id) {
    const HWND button = GetDlgItem(dialog, id);
    return button != nullptr && IsWindowVisible(button) ? button : nullptr;
}

void CloseNotepads() {
    if (const HWND notepad = FindWindowW(L"Notepad", nullptr)) {
        PostMessageW(notepad, WM_CLOSE, 0, 0);
    }
}

// A menu bar that was entered, but not opened, has no window of its own.
bool IsInMenu(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) != FALSE &&
           (info.flags & (GUI_INMENUMODE | GUI_SYSTEMMENUMODE | GUI_POPUPMENUMODE)) != 0;
}

}  // namespace

MonkeyHands::MonkeyHands(const ZentarDriver& zentar, const ZentarHome& home, std::uint64_t seed)
    : zentar_(zentar), home_(home), dice_(seed) {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(firstDay_.Games())) {
        if (entry.is_regular_file() && entry.path().extension() != ".exe") {
            files_.push_back(entry.path().lexically_relative(firstDay_.Games()));
        }
    }
    std::sort(files_.begin(), files_.end());
}

MonkeyHands::~MonkeyHands() { LetGo(); }

// The window that takes input; null while none does.
HWND MonkeyHands::Front() {
    std::vector<HWND> windows = TopWindows(zentar_.Process());
    std::erase_if(windows, [](HWND window) {
        const std::string kind = ClassOf(window);
        return IsWindowEnabled(window) == FALSE ||
               (kind != kFormClass && kind != kDialogClass && kind != kMenuClass);
    });
    if (windows.empty()) {
        return nullptr;
    }
    // The help window stands beside the main one.
    const bool another = windows.size() > 1 && ClassOf(windows.front()) == kFormClass &&
                         ClassOf(windows[1]) == kFormClass && dice_.OneIn(3);
    return windows[another ? 1 : 0];
}

std::string MonkeyHands::Act() {
    CloseNotepads();
    if (dice_.OneIn(12)) {
        return ChangeFiles();
    }
    const HWND front = Front();
    if (front == nullptr) {
        Sleep(5);
        return "waits";
    }
    const std::string kind = ClassOf(front);
    if (kind == kMenuClass) {
        return PressInMenu();
    }
    return kind == kDialogClass ? AnswerDialog(front) : ActIn(front);
}

bool MonkeyHands::BelongsToProgram(POINT place) const {
    const HWND there = WindowFromPoint(place);
    DWORD owner = 0;
    GetWindowThreadProcessId(there, &owner);
    return owner == zentar_.Process();
}

// The mouse settings of the system are none of a monkey's business.
bool MonkeyHands::MayPress(HWND control) const {
    const int id = GetDlgCtrlID(control);
    if (id != IDC_cmdRemedy1 && id != IDC_cmdRemedy2) {
        return true;
    }
    const auto mouse = static_cast<std::size_t>(Symptom::MousewheelDead);
    return zentar_.Selected(IDC_lstSymptoms) != SymptomTexts()[mouse];
}

std::string MonkeyHands::ActIn(HWND form) {
    if (TextOf(form) == kRestartTitle) {
        Press(VK_ESCAPE);
        return "escapes";
    }
    switch (dice_.Below(20)) {
        case 0:
            return ResizeWindow(form);
        case 1:
            PressWith(VK_MENU, dice_.OneIn(2) ? 'G' : 'H');
            return "opens a menu";
        case 2:
            PressWith(VK_MENU, 'P');
            Press('P');
            return "opens the preferences";
        case 3:
        case 4:
        case 5:
        case 6:
        case 7:
            return PressSomething(form);
        default:
            return ClickIn(form);
    }
}

std::string MonkeyHands::ClickIn(HWND form) {
    std::vector<HWND> controls = Descendants(form);
    std::erase_if(controls, [this](HWND control) {
        return IsWindowVisible(control) == FALSE || !IsUsable(control) || !MayPress(control);
    });
    if (controls.empty()) {
        return "finds nothing";
    }
    const HWND control = dice_.Of(controls);
    RECT area{};
    GetWindowRect(control, &area);
    const POINT place{area.left + static_cast<LONG>(dice_.Below(static_cast<std::size_t>(
                                      std::max(1L, area.right - area.left)))),
                      area.top + static_cast<LONG>(dice_.Below(static_cast<std::size_t>(
                                     std::max(1L, area.bottom - area.top))))};
    if (!BelongsToProgram(place) || !MayPress(WindowFromPoint(place))) {
        SetForegroundWindow(form);
        return "finds another window";
    }
    const std::string name = " control " + std::to_string(GetDlgCtrlID(control));
    switch (dice_.Below(6)) {
        case 0:
            DoubleClick(place);
            return "double-clicks" + name;
        case 1:
            Click(place, MouseButton::Right);
            return "right-clicks" + name;
        default:
            Click(place);
            return "clicks" + name;
    }
}

std::string MonkeyHands::PressSomething(HWND form) {
    SetForegroundWindow(form);
    if (!MayPress(zentar_.Focused())) {
        Press(VK_TAB);
        return "leaves the remedies";
    }
    if (dice_.OneIn(6)) {
        PressWith(dice_.OneIn(4) ? VK_SHIFT : VK_CONTROL, dice_.Of(kWithControl));
        return "presses with Control";
    }
    const WORD key = dice_.Of(kKeys);
    Press(key);
    return "presses key " + std::to_string(key);
}

std::string MonkeyHands::PressInMenu() {
    const WORD key = dice_.Of(kInMenus);
    Press(key);
    return "presses key " + std::to_string(key) + " in a menu";
}

std::string MonkeyHands::AnswerDialog(HWND dialog) {
    if (GetDlgItem(dialog, edt1) != nullptr) {
        return AnswerFileDialog(dialog);
    }
    std::vector<HWND> buttons;
    for (const int id : {IDOK, IDCANCEL, IDYES, IDNO}) {
        if (const HWND button = ButtonIn(dialog, id)) {
            buttons.push_back(button);
        }
    }
    if (buttons.empty()) {
        return "waits for a dialog";
    }
    HWND button = dice_.Of(buttons);
    // In the folder picker, what it begins with is no folder of the test's.
    const HWND safe = ButtonIn(dialog, ButtonIn(dialog, IDCANCEL) != nullptr ? IDCANCEL : IDNO);
    const bool isPicker =
        ButtonIn(dialog, IDOK) != nullptr && safe != nullptr && TextOf(dialog) != "Color";
    if (isPicker || (TextOf(dialog) == kRestartTitle && safe != nullptr)) {
        button = safe;
    }
    Click(CentreOf(button));
    return "answers \"" + TextOf(dialog) + "\" with " + std::to_string(GetDlgCtrlID(button));
}

std::string MonkeyHands::AnswerFileDialog(HWND dialog) {
    constexpr std::array<const wchar_t*, 5> kNames = {L"condump.txt", L"qconsole.log", L"monkey",
                                                      L"monkey.cfg", L"monkey 2.ini"};
    if (dice_.OneIn(2)) {
        Click(CentreOf(GetDlgItem(dialog, IDCANCEL)));
        return "cancels a dialog for a file";
    }
    const HWND name = GetDlgItem(dialog, edt1);
    Send(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(dice_.Of(kNames)));
    Click(CentreOf(GetDlgItem(dialog, IDOK)));
    return "names a file";
}

std::string MonkeyHands::ResizeWindow(HWND form) {
    SetWindowPos(form, nullptr, dice_.Between(0, 200), dice_.Between(0, 150),
                 dice_.Between(100, 1500), dice_.Between(100, 1100), SWP_NOZORDER | SWP_NOACTIVATE);
    return "resizes a window";
}

// ---- files that come and go ----

void MonkeyHands::Appears(const fs::path& file) {
    std::error_code inUse;
    fs::create_directories((home_.Games() / file).parent_path(), inUse);
    SetFileAttributesW((home_.Games() / file).c_str(), FILE_ATTRIBUTE_NORMAL);
    fs::copy_file(firstDay_.Games() / file, home_.Games() / file,
                  fs::copy_options::overwrite_existing, inUse);
}

void MonkeyHands::Vanishes(const fs::path& file) {
    std::error_code inUse;
    fs::remove(home_.Games() / file, inUse);
}

void MonkeyHands::LetGo() {
    if (held_ != INVALID_HANDLE_VALUE) {
        CloseHandle(held_);
    }
    held_ = INVALID_HANDLE_VALUE;
}

std::string MonkeyHands::ChangeFiles() {
    const fs::path& file = dice_.Of(files_);
    switch (dice_.Below(8)) {
        case 0:
        case 1:
            Vanishes(file);
            return "a file vanishes";
        case 2:
            SetFileAttributesW((home_.Games() / file).c_str(), FILE_ATTRIBUTE_READONLY);
            return "a file becomes read-only";
        case 3:
            LetGo();
            held_ = CreateFileW((home_.Games() / file).c_str(), GENERIC_READ, 0, nullptr,
                                OPEN_EXISTING, 0, nullptr);
            return "a file is in use";
        case 4:
            LetGo();
            return "no file is in use";
        default:
            Appears(file);
            return "a file appears";
    }
}

// ---- the state to compare ----

void MonkeyHands::Dismiss(HWND window) {
    const std::string kind = ClassOf(window);
    if (kind == kMenuClass) {
        Press(VK_ESCAPE);
    } else if (kind == kFormClass) {
        PostMessageW(window, WM_CLOSE, 0, 0);
    } else {
        const std::array<HWND, 3> buttons = {ButtonIn(window, IDCANCEL), ButtonIn(window, IDNO),
                                             ButtonIn(window, IDOK)};
        const auto* button =
            std::find_if(buttons.begin(), buttons.end(), [](HWND each) { return each != nullptr; });
        if (button != buttons.end() && dice_.OneIn(2)) {
            Click(CentreOf(*button));
        } else {
            // Another window may cover the button.
            PostMessageW(window, button == buttons.end() ? WM_CLOSE : WM_COMMAND,
                         button == buttons.end() ? 0 : static_cast<WPARAM>(GetDlgCtrlID(*button)),
                         0);
        }
    }
    Sleep(100);
}

void MonkeyHands::CalmDown() {
    LetGo();
    std::string open;
    const bool calm = Eventually([&] {
        CloseNotepads();
        zentar_.Settle();
        std::vector<HWND> others = TopWindows(zentar_.Process());
        std::erase_if(others, [this](HWND window) {
            const std::string kind = ClassOf(window);
            return window == zentar_.Main() ||
                   (kind != kFormClass && kind != kDialogClass && kind != kMenuClass);
        });
        const auto front = std::find_if(others.begin(), others.end(),
                                        [](HWND window) { return IsWindowEnabled(window); });
        if (front != others.end()) {
            open = ClassOf(*front) + " \"" + TextOf(*front) + '"';
            Dismiss(*front);
        }
        if (!others.empty() || IsWindowEnabled(zentar_.Main()) == FALSE) {
            return false;
        }
        SetForegroundWindow(zentar_.Main());
        open = "the menu bar";
        if (IsInMenu(zentar_.Main())) {
            Press(VK_ESCAPE);
            return false;
        }
        return GetForegroundWindow() == zentar_.Main();
    });
    if (!calm) {
        throw std::runtime_error("it stays open: " + open);
    }
    for (const fs::path& file : files_) {
        Appears(file);
    }
    zentar_.Resize({1000, 720});
    zentar_.ShowTab(kDemosTab);
    zentar_.ClickOn(IDC_optGameQuake3);
    zentar_.ClickOn(IDC_optGameQuake1);
    zentar_.ShowTab(kShotsTab);
    zentar_.Settle();
}

}  // namespace zentar::window_tests
