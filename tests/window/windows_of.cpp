#include "tests/window/windows_of.h"

#include <stdexcept>

#include "platform/win32/win32_text.h"
#include "tests/window/waiting.h"

namespace zentar::window_tests {

namespace {

constexpr UINT kSendPatienceMs = 15'000;

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

}  // namespace

HWND Found(HWND window, const std::string& what) {
    if (window == nullptr) {
        throw std::runtime_error("never saw " + what);
    }
    return window;
}

void WaitUntilGone(HWND window) {
    const bool gone = Eventually(
        [window] { return IsWindow(window) == FALSE || IsWindowVisible(window) == FALSE; });
    if (!gone) {
        throw std::runtime_error("a window stays: " + ClassOf(window));
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
