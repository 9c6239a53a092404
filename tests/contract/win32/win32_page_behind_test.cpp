// When the windows of a tab page are made.
#include <windows.h>

#include <vector>

#include "tests/contract/win32/rich_text_user.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

using Win32PageBehind = RichTextUser;

constexpr int kBehind[] = {kPageTwo,       kButtonTwo,   kBehindCheck, kBehindOptionA,
                           kBehindOptionB, kBehindText,  kBehindList,  kBehindFrame,
                           kBehindLabel,   kBehindImage, kBehindRich};

int WindowsOf(HWND top) {
    int count = 0;
    for (const int id : kBehind)
        count += SearchControlWindow(top, id) != nullptr ? 1 : 0;
    return count;
}

}  // namespace

TEST_F(Win32PageBehind, ItsWindowsAreMadeTogetherWhenItComesToTheFront) {
    Main().GetTextBox(kBehindText).SetText("early");
    Main().GetListBox(kBehindList).SetItems({"a"});
    EXPECT_EQ(WindowsOf(Top()), 0);
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_EQ(WindowsOf(Top()), static_cast<int>(std::size(kBehind)));
    const HWND text = FindControlWindow(Top(), kBehindText);
    Main().GetTab(kTabs).SelectTab(0);
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_EQ(FindControlWindow(Top(), kBehindText), text);
}

TEST_F(Win32PageBehind, WhatOnlyAWindowCanDoMakesThemAllAndShowsNone) {
    Main().GetTextBox(kBehindText).SelectAll();
    EXPECT_EQ(WindowsOf(Top()), static_cast<int>(std::size(kBehind)));
    for (const int id : kBehind)
        EXPECT_FALSE(IsWindowVisible(FindControlWindow(Top(), id))) << id;
}

TEST_F(Win32PageBehind, TheTabKeyFollowsTheTableAllTheSame) {
    Main().GetTab(kTabs).SelectTab(1);
    Main().GetTab(kTabs).SetFocus();
    std::vector<int> stops;
    for (int i = 0; i < 6; ++i) {
        PressIn(GetFocus(), {}, VK_TAB);
        stops.push_back(GetDlgCtrlID(GetFocus()));
    }
    EXPECT_EQ(stops, (std::vector<int>{kButtonTwo, kBehindCheck, kBehindOptionA, kBehindText,
                                       kBehindList, kBehindRich}));
    PressIn(GetFocus(), {}, VK_TAB);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), kRich);
}

TEST_F(Win32PageBehind, TheyHaveTheFontAndThePlaceOfTheDpiOfTheirTime) {
    RECT place{};
    GetWindowRect(Top(), &place);
    SendMessageW(Top(), WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&place));
    Main().GetTab(kTabs).SelectTab(1);
    const HWND button = FindControlWindow(Top(), kButtonTwo);
    EXPECT_EQ(SendMessageW(button, WM_GETFONT, 0, 0),
              SendMessageW(FindControlWindow(Top(), kButtonOne), WM_GETFONT, 0, 0));
    RECT client{};
    GetClientRect(button, &client);
    EXPECT_EQ(client.right, 240);
    EXPECT_EQ(client.bottom, 48);
}

}  // namespace zentar
