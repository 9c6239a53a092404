#include "tests/window/windows_of.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

#include "platform/win32/win32_text.h"
#include "tests/window/waiting.h"

namespace zentar::window_tests {

namespace {

constexpr auto kSendPatienceMs = static_cast<UINT>(std::chrono::milliseconds(kPatience).count());

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

bool BelongsTo(HWND window, DWORD process) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    return owner == process;
}

std::string ItemText(HWND listBox, WPARAM index) {
    const LRESULT length = Send(listBox, LB_GETTEXTLEN, index);
    if (length < 0) {
        return {};
    }
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    Send(listBox, LB_GETTEXT, index, reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return Narrow(text);
}

// The window that was found ready last. While it stays in front there is nothing to wait for.
HWND& LastReady() {
    static HWND window = nullptr;
    return window;
}

bool TakesInput(HWND window) {
    const std::string kind = ClassOf(window);
    return kind != kMenuClass && kind != kTooltipClass && IsWindowEnabled(window) != FALSE &&
           IsIconic(window) == FALSE;
}

// The one in front, or the one that should come there; null when there is none.
HWND FrontOf(DWORD process) {
    const HWND front = GetForegroundWindow();
    if (BelongsTo(front, process) && TakesInput(front)) {
        return front;
    }
    const std::vector<HWND> windows = TopWindows(process);
    const auto first = std::find_if(windows.begin(), windows.end(), TakesInput);
    return first == windows.end() ? nullptr : *first;
}

// Waits until the wanted window, which may be another one each time, has been in front at the same
// place for a while; at once if none is wanted any more.
void WaitForCalm(const std::function<HWND()>& wanted) {
    constexpr int kLooks = 4;
    int calm = 0;
    HWND last = nullptr;
    RECT place{};
    auto tried = std::chrono::steady_clock::now();
    const bool isCalm = Eventually([&] {
        const HWND window = wanted();
        if (window == nullptr) {
            return true;
        }
        // The program hears of the display's news before it answers.
        Send(window, WM_NULL);
        RECT area{};
        GetWindowRect(window, &area);
        const bool inFront = GetForegroundWindow() == window;
        calm = inFront && window == last && EqualRect(&area, &place) ? calm + 1 : 0;
        last = window;
        place = area;
        const auto now = std::chrono::steady_clock::now();
        if (!inFront && now - tried > kBeforeTryingAgain) {
            SetForegroundWindow(window);
            tried = now;
        }
        return calm >= kLooks;
    });
    if (!isCalm) {
        throw std::runtime_error("the keyboard never comes to \"" + TextOf(last) + '"');
    }
    LastReady() = last;
}

}  // namespace

HWND Found(HWND window, const std::string& what) {
    if (window == nullptr) {
        throw std::runtime_error("never saw " + what);
    }
    return window;
}

bool IsGone(HWND window) { return IsWindow(window) == FALSE || IsWindowVisible(window) == FALSE; }

void WaitUntilGone(HWND window) {
    if (!Eventually([window] { return IsGone(window); })) {
        throw std::runtime_error("a window stays: " + ClassOf(window) + " \"" + TextOf(window) +
                                 '"');
    }
}

HWND Ready(HWND window) {
    if (GetForegroundWindow() != window || LastReady() != window) {
        // Where another one waits for an answer, this one gets no keyboard.
        WaitForCalm([window] { return TakesInput(window) ? window : nullptr; });
    }
    return window;
}

void WaitForKeyboard(DWORD process) {
    const HWND front = GetForegroundWindow();
    if (front != LastReady() || !BelongsTo(front, process) || !TakesInput(front)) {
        WaitForCalm([process] { return FrontOf(process); });
    }
}

LRESULT Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kSendPatienceMs, &result);
    return static_cast<LRESULT>(result);
}

std::vector<HWND> TopWindows(DWORD process) {
    std::vector<HWND> all;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&all));
    std::erase_if(all, [process](HWND window) {
        return !BelongsTo(window, process) || !IsWindowVisible(window);
    });
    return all;
}

HWND FindTop(DWORD process, const std::string& windowClass, const std::string& title) {
    for (const HWND window : TopWindows(process)) {
        if (ClassOf(window) == windowClass && (title.empty() || TextOf(window) == title)) {
            return window;
        }
    }
    return nullptr;
}

std::vector<HWND> Descendants(HWND window) {
    std::vector<HWND> all;
    EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&all));
    return all;
}

HWND FindControl(HWND window, int id) {
    for (const HWND child : Descendants(window)) {
        if (GetDlgCtrlID(child) == id) {
            return child;
        }
    }
    return nullptr;
}

std::string ClassOf(HWND window) {
    std::wstring name(256, L'\0');
    name.resize(static_cast<std::size_t>(
        GetClassNameW(window, name.data(), static_cast<int>(name.size()))));
    return Narrow(name);
}

std::string TextOf(HWND window) {
    // Another program's control gives its text only when asked by message.
    const auto room = static_cast<std::size_t>(Send(window, WM_GETTEXTLENGTH)) + 1;
    std::wstring text(room, L'\0');
    text.resize(static_cast<std::size_t>(
        Send(window, WM_GETTEXT, room, reinterpret_cast<LPARAM>(text.data()))));
    return Narrow(text);
}

bool IsUsable(HWND window) {
    for (HWND at = window; at != nullptr; at = GetAncestor(at, GA_PARENT)) {
        if (IsWindowEnabled(at) == FALSE) {
            return false;
        }
    }
    return window != nullptr;
}

std::vector<std::string> ItemsOf(HWND listBox) {
    std::vector<std::string> items;
    const LRESULT count = Send(listBox, LB_GETCOUNT);
    for (LRESULT index = 0; index < count; ++index) {
        items.push_back(ItemText(listBox, static_cast<WPARAM>(index)));
    }
    return items;
}

std::string SelectedItemOf(HWND listBox) {
    const LRESULT selected = Send(listBox, LB_GETCURSEL);
    return selected < 0 ? std::string() : ItemText(listBox, static_cast<WPARAM>(selected));
}

bool IsChecked(HWND button) { return Send(button, BM_GETCHECK) == BST_CHECKED; }

}  // namespace zentar::window_tests
