#include "tests/window/user_input.h"

#include "platform/win32/win32_text.h"
#include "tests/window/windows_of.h"

namespace zentar::window_tests {

namespace {

// The whole screen is this wide and high in absolute mouse coordinates.
constexpr LONG kAbsoluteRange = 65'536;

void SendMouse(DWORD flags, LONG x = 0, LONG y = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.dx = x;
    input.mi.dy = y;
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

void PressButton(MouseButton button) {
    const bool left = button == MouseButton::Left;
    SendMouse(left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN);
    SendMouse(left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP);
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

void MovePointer(POINT place) {
    const LONG width = GetSystemMetrics(SM_CXSCREEN);
    const LONG height = GetSystemMetrics(SM_CYSCREEN);
    // Rounded up, since the system cuts when it turns this back into pixels.
    SendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE,
              (place.x * kAbsoluteRange + width - 1) / width,
              (place.y * kAbsoluteRange + height - 1) / height);
}

void Click(POINT place, MouseButton button) {
    MovePointer(place);
    PressButton(button);
}

void DoubleClick(POINT place) {
    Click(place);
    PressButton(MouseButton::Left);
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

void HoldKey(WORD key) {
    SendKey(key, 0, 0);
    // Nobody holds a key for less. A program under Wine asks again only 50 ms after it last asked
    // which keys are down.
    Sleep(100);
}

void ReleaseKey(WORD key) { SendKey(key, 0, KEYEVENTF_KEYUP); }

void HoldButton(POINT place) {
    MovePointer(place);
    SendMouse(MOUSEEVENTF_LEFTDOWN);
}

void ReleaseButton() { SendMouse(MOUSEEVENTF_LEFTUP); }

void Type(const std::string& text) {
    for (const wchar_t letter : Widen(text)) {
        SendKey(0, letter, KEYEVENTF_UNICODE);
        SendKey(0, letter, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
    }
}

}  // namespace zentar::window_tests
