#include "tests/contract/win32/win32_user.h"

#include <commctrl.h>

#include <array>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "platform/win32/win32_text.h"
#include "tests/contract/win32/the_platform.h"

namespace zentar {
namespace {

struct Search {
    std::wstring title;
    int id = 0;
    HWND found = nullptr;
};

std::wstring TitleOf(HWND window) {
    wchar_t title[256];
    const int length = GetWindowTextW(window, title, 256);
    return {title, static_cast<std::size_t>(length)};
}

BOOL CALLBACK CompareTitle(HWND window, LPARAM search) {
    auto& wanted = *reinterpret_cast<Search*>(search);
    if (TitleOf(window) != wanted.title)
        return TRUE;
    wanted.found = window;
    return FALSE;
}

BOOL CALLBACK CompareId(HWND window, LPARAM search) {
    auto& wanted = *reinterpret_cast<Search*>(search);
    if (GetDlgCtrlID(window) != wanted.id)
        return TRUE;
    wanted.found = window;
    return FALSE;
}

struct TipSearch {
    HWND owner;
    HWND found;
};

BOOL CALLBACK FindTipWindow(HWND window, LPARAM search) {
    auto& wanted = *reinterpret_cast<TipSearch*>(search);
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    if (GetWindow(window, GW_OWNER) != wanted.owner || name.data() != std::wstring(TOOLTIPS_CLASSW))
        return TRUE;
    wanted.found = window;
    return FALSE;
}

LPARAM At(POINT at) { return MAKELPARAM(at.x, at.y); }

void Post(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    EXPECT_TRUE(PostMessageW(window, message, wParam, lParam));
}

using Clock = std::chrono::steady_clock;

struct Meanwhile {
    std::string what;
    std::function<bool()> step;
    const testing::TestInfo* test = nullptr;
    Clock::time_point end;
    bool late = false;
    UINT_PTR timer = 0;
};

Meanwhile meanwhile;

const testing::TestInfo* CurrentTest() {
    return testing::UnitTest::GetInstance()->current_test_info();
}

bool IsInMenu() {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetCurrentThreadId(), &info) != FALSE &&
           (info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0;
}

BOOL CALLBACK CancelWindow(HWND window, LPARAM /*unused*/) {
    wchar_t windowClass[16] = L"";
    GetClassNameW(window, windowClass, 16);
    if (windowClass == std::wstring(L"#32770")) {
        // Some questions can only be answered.
        const WPARAM answer = GetDlgItem(window, IDNO) != nullptr ? IDNO : IDCANCEL;
        PostMessageW(window, WM_COMMAND, answer, 0);
    } else if (IsWindowVisible(window) && IsWindowEnabled(window)) {
        PostMessageW(window, WM_CLOSE, 0, 0);
    }
    return TRUE;
}

void CancelAll() {
    if (IsInMenu())
        EndMenu();
    else
        EnumThreadWindows(GetCurrentThreadId(), CancelWindow, 0);
}

void CALLBACK TryAgain(HWND window, UINT message, UINT_PTR timer, DWORD time);

void Start(Meanwhile next) {
    meanwhile = std::move(next);
    meanwhile.timer = SetTimer(nullptr, 0, 10, &TryAgain);
}

// No timer runs during a try, or else that could never wait for silence.
void CALLBACK TryAgain(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
    KillTimer(nullptr, timer);
    Meanwhile tried = meanwhile;
    if (timer != tried.timer || CurrentTest() != tried.test || tried.step())
        return;
    if (!tried.late && Clock::now() > tried.end) {
        tried.late = true;
        ADD_FAILURE() << "waited in vain: " << tried.what;
    }
    // Again and again, as one dialog may lie over another.
    if (tried.late)
        CancelAll();
    Start(std::move(tried));
}

}  // namespace

void PumpPending() {
    ThePlatform().Services().windows.PumpPending();
    // The main window's end would end the message loop for the tests after this one, too.
    MSG quit{};
    PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

void Settle() {
    // Some systems' visual styles never come to rest.
    constexpr DWORD kLongest = 2000;
    const DWORD start = GetTickCount();
    do {
        PumpPending();
    } while (GetTickCount() - start < kLongest &&
             MsgWaitForMultipleObjects(0, nullptr, FALSE, kQuietMilliseconds, QS_ALLINPUT) !=
                 WAIT_TIMEOUT);
}

void TryMeanwhile(const std::string& what, std::function<bool()> step) {
    Start({what, std::move(step), CurrentTest(), Clock::now() + kPatience});
}

HWND FindTopWindow(std::string_view title) {
    Search search{Widen(title)};
    EnumThreadWindows(GetCurrentThreadId(), CompareTitle, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND SearchControlWindow(HWND top, int id) {
    Search search{{}, id};
    EnumChildWindows(top, CompareId, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND FindControlWindow(HWND top, int id) {
    const HWND found = SearchControlWindow(top, id);
    EXPECT_NE(found, nullptr) << "no control " << id;
    return found;
}

std::string TooltipOf(HWND top, HWND control) {
    TipSearch search{top, nullptr};
    EnumThreadWindows(GetCurrentThreadId(), FindTipWindow, reinterpret_cast<LPARAM>(&search));
    EXPECT_NE(search.found, nullptr) << "no tooltips at all";
    std::array<wchar_t, 1024> text{};
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.hwnd = top;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = text.data();
    SendMessageW(search.found, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
    return Narrow(text.data());
}

std::string TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return Narrow(text);
}

bool MouseReaches(HWND window) {
    if (!IsWindowVisible(window))
        return false;
    for (HWND at = window; at != nullptr; at = GetAncestor(at, GA_PARENT)) {
        if (at != GetDesktopWindow() && !IsWindowEnabled(at))
            return false;
    }
    return true;
}

void PostMove(HWND window, POINT at) { Post(window, WM_MOUSEMOVE, 0, At(at)); }

void PostClick(HWND window, POINT at) {
    EXPECT_TRUE(MouseReaches(window)) << "a click cannot reach control " << GetDlgCtrlID(window);
    Post(window, WM_LBUTTONDOWN, MK_LBUTTON, At(at));
    Post(window, WM_LBUTTONUP, 0, At(at));
}

void PostDoubleClick(HWND window, POINT at) {
    PostClick(window, at);
    Post(window, WM_LBUTTONDBLCLK, MK_LBUTTON, At(at));
    Post(window, WM_LBUTTONUP, 0, At(at));
}

void PostPress(HWND window, bool left, POINT at) {
    EXPECT_TRUE(MouseReaches(window)) << "no button goes down on control " << GetDlgCtrlID(window);
    Post(window, left ? WM_LBUTTONDOWN : WM_RBUTTONDOWN, left ? MK_LBUTTON : MK_RBUTTON, At(at));
}

void PostRelease(HWND window, POINT at) { Post(window, WM_LBUTTONUP, 0, At(at)); }

void PostRightClick(HWND window, POINT at) {
    EXPECT_TRUE(MouseReaches(window)) << "a click cannot reach control " << GetDlgCtrlID(window);
    POINT screen = at;
    ClientToScreen(window, &screen);
    SetCursorPos(screen.x, screen.y);
    Post(window, WM_RBUTTONDOWN, MK_RBUTTON, At(at));
    Post(window, WM_RBUTTONUP, 0, At(at));
}

void PostKey(HWND window, WPARAM virtualKey) {
    const UINT scanCode = MapVirtualKeyW(static_cast<UINT>(virtualKey), MAPVK_VK_TO_VSC);
    const LPARAM down = 1 | static_cast<LPARAM>(scanCode) << 16;
    constexpr LPARAM kUp = 0xC0000000;
    Post(window, WM_KEYDOWN, virtualKey, down);
    Post(window, WM_KEYUP, virtualKey, down | kUp);
}

void PostText(HWND window, std::string_view text) {
    for (const wchar_t unit : Widen(text))
        Post(window, WM_CHAR, unit, 1);
}

POINT MiddleOf(const RECT& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

POINT MiddleOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return MiddleOf(client);
}

POINT MiddleOfEntry(HWND list, int index) {
    RECT client{};
    GetClientRect(list, &client);
    RECT entry{};
    const LRESULT last = SendMessageW(list, LB_GETCOUNT, 0, 0) - 1;
    const auto wanted = static_cast<WPARAM>(index < 0 ? last : index);
    SendMessageW(list, LB_GETITEMRECT, wanted, reinterpret_cast<LPARAM>(&entry));
    if (index >= 0)
        return MiddleOf(entry);
    return {client.right / 2, (entry.bottom + client.bottom) / 2};
}

}  // namespace zentar
