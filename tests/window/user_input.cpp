#include "tests/window/user_input.h"

#include <algorithm>
#include <stdexcept>

#include "platform/win32/win32_text.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"

namespace zentar::window_tests {

namespace {

// The whole screen is this wide and high in absolute mouse coordinates.
constexpr LONG kAbsoluteRange = 65'536;

// At a place: what the system still hears of the pointer's earlier places cannot come in between.
void SendMouse(DWORD flags, POINT place, DWORD time = 0) {
    const LONG width = GetSystemMetrics(SM_CXSCREEN);
    const LONG height = GetSystemMetrics(SM_CYSCREEN);
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    // Rounded up, since the system cuts when it turns this back into pixels.
    input.mi.dx = (place.x * kAbsoluteRange + width - 1) / width;
    input.mi.dy = (place.y * kAbsoluteRange + height - 1) / height;
    input.mi.time = time;
    SendInput(1, &input, sizeof(input));
}

void SendKey(WORD key, WORD letter, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = letter;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
}

void PressButton(MouseButton button, POINT place, DWORD time) {
    const bool left = button == MouseButton::Left;
    SendMouse(left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN, place, time);
    SendMouse(left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP, place, time);
}

// The time that a click says it was made at: so long after another one at this place that the
// system does not make a double click of both.
DWORD TimeOfClick(POINT place) {
    static POINT last{-1, -1};
    static DWORD clicked = 0;
    const DWORD next = clicked + GetDoubleClickTime() + 50;
    const DWORD now = GetTickCount();
    clicked = place.x == last.x && place.y == last.y ? std::max(now, next) : now;
    last = place;
    return clicked;
}

// Whether a window has it, and the mouse is done with it: a click's end would undo a selection.
bool HasKeyboard(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) != FALSE &&
           info.hwndFocus == window && info.hwndCapture == nullptr;
}

}  // namespace

POINT CentreOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

POINT CentreOfItem(HWND listBox, int index) {
    RECT area{};
    Send(listBox, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&area));
    // Near its left end, so that a scroll bar is never in the way.
    POINT place{area.left + 20, (area.top + area.bottom) / 2};
    ClientToScreen(listBox, &place);
    return place;
}

void ScrollTo(HWND listBox, int index) {
    RECT seen{};
    GetClientRect(listBox, &seen);
    RECT area{};
    Send(listBox, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&area));
    if (area.top < seen.top || area.bottom > seen.bottom) {
        Send(listBox, LB_SETTOPINDEX, static_cast<WPARAM>(index));
    }
}

void MovePointer(POINT place) { SendMouse(0, place); }

void Click(POINT place, MouseButton button) { PressButton(button, place, TimeOfClick(place)); }

void DoubleClick(POINT place) {
    const DWORD now = TimeOfClick(place);
    PressButton(MouseButton::Left, place, now);
    PressButton(MouseButton::Left, place, now);
}

void Press(WORD key) {
    SendKey(key, 0, 0);
    SendKey(key, 0, KEYEVENTF_KEYUP);
}

void PressWith(WORD modifier, WORD key) {
    SendKey(modifier, 0, 0);
    Press(key);
    SendKey(modifier, 0, KEYEVENTF_KEYUP);
}

void TypeOver(HWND textBox, const std::string& text) {
    // A click may come too early, as may the keys after it.
    const bool typed = Eventually([&] {
        if (!HasKeyboard(textBox)) {
            Click(CentreOf(textBox));
            Eventually([textBox] { return HasKeyboard(textBox); }, kBeforeTryingAgain);
        }
        Send(textBox, EM_SETSEL, 0, -1);
        Type(text);
        return Eventually([&] { return TextOf(textBox) == text; }, kBeforeTryingAgain);
    });
    if (!typed) {
        throw std::runtime_error("the box does not take \"" + text + '"');
    }
}

HeldKey::HeldKey(WORD key)
    : key_(key), repeats_([key](const std::stop_token& end) {
          while (!end.stop_requested()) {
              SendKey(key, 0, 0);
              Sleep(10);
          }
      }) {
    // Nobody holds a key for less. A program under Wine asks again only 50 ms after it last asked
    // which keys are down.
    Sleep(100);
}

HeldKey::~HeldKey() {
    repeats_.request_stop();
    repeats_.join();
    SendKey(key_, 0, KEYEVENTF_KEYUP);
}

void HoldButton(POINT place) { SendMouse(MOUSEEVENTF_LEFTDOWN, place); }

void ReleaseButton() {
    POINT place{};
    GetCursorPos(&place);
    SendMouse(MOUSEEVENTF_LEFTUP, place);
}

void Type(const std::string& text) {
    for (const wchar_t letter : Widen(text)) {
        SendKey(0, letter, KEYEVENTF_UNICODE);
        SendKey(0, letter, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
    }
}

}  // namespace zentar::window_tests
