// What only a user of the real Windows sees of the windowing services: message boxes, keys, titles.
#include <windows.h>

#include <gtest/gtest.h>

#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_text.h"
#include "platform/window_services.h"
#include "tests/contract/win32/system_dialog.h"
#include "tests/contract/win32/the_platform.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

WindowServices& Windows() { return ThePlatform().Services().windows; }

struct SeenBox {
    std::string text;
    int focusedButton = 0;
};

// Asks, and presses a key once the box is there; gives the answer and what the user saw.
Answer AskAndPress(const Message& message, WPARAM key, SeenBox& seen) {
    TryMeanwhile("the box " + message.title, [&message, &seen, key] {
        const HWND box = FindTopWindow(message.title);
        if (box == nullptr || !IsWindowVisible(box))
            return false;
        constexpr int kTextId = 0xFFFF;
        seen.text = TextOf(GetDlgItem(box, kTextId));
        seen.focusedButton = GetDlgCtrlID(GetFocus());
        PostKey(GetFocus(), key);
        return true;
    });
    return Windows().Ask(message);
}

}  // namespace

TEST(Win32WindowServices, AQuestionShowsItsTextAndEnterGivesTheDefaultAnswer) {
    Message message{"Confirm", "Really delete \"дуэль.dm2\"?\r\n\r\nIt is gone for good.",
                    MessageIcon::Question, MessageButtons::YesNo, DefaultButton::Second};
    SeenBox seen;
    EXPECT_EQ(AskAndPress(message, VK_RETURN, seen), Answer::No);
    EXPECT_EQ(seen.text, message.text);
    EXPECT_EQ(seen.focusedButton, IDNO);
    message.defaultButton = DefaultButton::First;
    EXPECT_EQ(AskAndPress(message, VK_RETURN, seen), Answer::Yes);
    EXPECT_EQ(seen.focusedButton, IDYES);
}

TEST(Win32WindowServices, AMessageIsAnsweredWithOk) {
    const Message message{"Done", "Ready.", MessageIcon::Information, MessageButtons::Ok,
                          DefaultButton::First};
    SeenBox seen;
    EXPECT_EQ(AskAndPress(message, VK_RETURN, seen), Answer::Ok);
    EXPECT_EQ(AskAndPress(message, VK_ESCAPE, seen), Answer::Ok);
    EXPECT_EQ(seen.text, "Ready.");
}

TEST(Win32WindowServices, AKeyThatIsHeldWasPressedOnlyOnce) {
    static_cast<void>(Windows().KeyState(PollKey::Shift));
    static_cast<void>(Windows().KeyState(PollKey::Control));
    EXPECT_EQ(Windows().KeyState(PollKey::Shift), 0);
    keybd_event(VK_SHIFT, 0, 0, 0);
    EXPECT_EQ(Windows().KeyState(PollKey::Shift), 0x8001);
    EXPECT_EQ(Windows().KeyState(PollKey::Shift), 0x8000);
    EXPECT_EQ(Windows().KeyState(PollKey::Control), 0);
    keybd_event(VK_SHIFT, 0, KEYEVENTF_KEYUP, 0);
    EXPECT_EQ(Windows().KeyState(PollKey::Shift) & 0x8000, 0);
}

TEST(Win32WindowServices, AskingWhetherAKeyIsDownTakesNothingFromItsState) {
    static_cast<void>(Windows().KeyState(PollKey::Shift));
    EXPECT_FALSE(Windows().IsDown(PollKey::Shift));
    keybd_event(VK_SHIFT, 0, 0, 0);
    // The state is that of the input that was taken off the queue.
    Windows().PumpPending();
    EXPECT_TRUE(Windows().IsDown(PollKey::Shift));
    EXPECT_FALSE(Windows().IsDown(PollKey::Control));
    EXPECT_EQ(Windows().KeyState(PollKey::Shift), 0x8001);
    EXPECT_TRUE(Windows().IsDown(PollKey::Shift));
    keybd_event(VK_SHIFT, 0, KEYEVENTF_KEYUP, 0);
    Windows().PumpPending();
    EXPECT_FALSE(Windows().IsDown(PollKey::Shift));
}

TEST(Win32WindowServices, SleepingTakesItsTimeAndHandlesNoMessage) {
    int ticks = 0;
    static int* counter = nullptr;
    counter = &ticks;
    const UINT_PTR timer =
        SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) { ++*counter; });
    // The system's clock may tick between the two by a step less.
    constexpr ULONGLONG kStep = 20;
    const ULONGLONG before = GetTickCount64();
    Windows().Sleep(100);
    EXPECT_GE(GetTickCount64() - before, 100 - kStep);
    EXPECT_EQ(ticks, 0);
    // The timer was only waiting for that.
    for (int i = 0; i < 100 && ticks == 0; ++i) {
        Windows().PumpPending();
        ::Sleep(10);
    }
    EXPECT_GT(ticks, 0);
    KillTimer(nullptr, timer);
}

TEST(Win32WindowServices, AWindowIsFoundByExactlyItsTitle) {
    const UniqueWindow window(CreateWindowExW(0, L"STATIC", L"Zentar: тест", WS_POPUP, 0, 0, 10, 10,
                                              nullptr, nullptr, nullptr, nullptr));
    EXPECT_TRUE(Windows().HasWindowTitled("Zentar: тест"));
    EXPECT_FALSE(Windows().HasWindowTitled("Zentar: тес"));
    EXPECT_FALSE(Windows().HasWindowTitled("Zentar: тест "));
    EXPECT_FALSE(Windows().HasWindowTitled("zentar: тест"));
    SetWindowTextW(window.Get(), L"Zentar");
    EXPECT_FALSE(Windows().HasWindowTitled("Zentar: тест"));
    EXPECT_TRUE(Windows().HasWindowTitled("Zentar"));
}

TEST(Win32WindowServices, AWindowInsideAnotherOneIsNotFound) {
    const UniqueWindow top(CreateWindowExW(0, L"STATIC", L"Zentar outside", WS_POPUP, 0, 0, 10, 10,
                                           nullptr, nullptr, nullptr, nullptr));
    CreateWindowExW(0, L"STATIC", L"Zentar inside", WS_CHILD, 0, 0, 10, 10, top.Get(), nullptr,
                    nullptr, nullptr);
    EXPECT_TRUE(Windows().HasWindowTitled("Zentar outside"));
    EXPECT_FALSE(Windows().HasWindowTitled("Zentar inside"));
}

}  // namespace zentar
