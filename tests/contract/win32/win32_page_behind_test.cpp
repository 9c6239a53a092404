// When the windows of a tab page are made.
#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/win32/win32_handle.h"
#include "tests/contract/win32/rich_text_user.h"
#include "tests/contract/win32/the_platform.h"
#include "tests/contract/win32/visual_styles.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

using Win32PageBehind = RichTextUser;

constexpr int kBehind[] = {kPageTwo,     kButtonTwo,  kBehindCheck, kBehindOptionA, kBehindOptionB,
                           kBehindText,  kBehindList, kBehindFrame, kBehindLabel,   kBehindPicture,
                           kBehindImage, kBehindRich, kBehindColour};

int WindowsOf(HWND top) {
    int count = 0;
    for (const int id : kBehind)
        count += SearchControlWindow(top, id) != nullptr ? 1 : 0;
    return count;
}

// That of the button kBehindColour: 5 units from its edges, at 96 and at 192 dpi.
void ExpectFace(HWND top) {
    constexpr COLORREF kFace = 0x123456;
    for (const int dpi : {192, 96}) {
        RECT place{};
        GetWindowRect(top, &place);
        SendMessageW(top, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
        Settle();
        const HWND button = FindControlWindow(top, kBehindColour);
        RECT client{};
        GetClientRect(button, &client);
        const WindowContext context(button);
        const auto at = [&](LONG x) { return GetPixel(context.Get(), x, client.bottom / 2); };
        EXPECT_EQ(at(client.right / 2), kFace);
        EXPECT_NE(at(MulDiv(5, dpi, 96) - 1), kFace);
        EXPECT_EQ(at(MulDiv(5, dpi, 96) + 2), kFace);
    }
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
    EXPECT_EQ(SearchControlWindow(Top(), kPageThree), nullptr);
    EXPECT_EQ(SearchControlWindow(Top(), kButtonThree), nullptr);
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
    for (int i = 0; i < 7; ++i) {
        PressIn(GetFocus(), {}, VK_TAB);
        stops.push_back(GetDlgCtrlID(GetFocus()));
    }
    EXPECT_EQ(stops, (std::vector<int>{kButtonTwo, kBehindCheck, kBehindOptionA, kBehindText,
                                       kBehindList, kBehindRich, kBehindColour}));
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

TEST_F(Win32PageBehind, AnEntrySelectedEarlyIsInView) {
    RECT place{};
    GetWindowRect(Top(), &place);
    SendMessageW(Top(), WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&place));
    std::vector<std::string> items;
    for (int i = 0; i < 100; ++i)
        items.push_back("entry " + std::to_string(i));
    Main().GetListBox(kBehindList).SetItems(items);
    Main().GetListBox(kBehindList).Select(60);
    Main().GetTab(kTabs).SelectTab(1);
    const HWND list = FindControlWindow(Top(), kBehindList);
    RECT entry{};
    RECT client{};
    SendMessageW(list, LB_GETITEMRECT, 60, reinterpret_cast<LPARAM>(&entry));
    GetClientRect(list, &client);
    EXPECT_GE(entry.top, client.top);
    EXPECT_LE(entry.bottom, client.bottom);
}

// With visual styles and without; whatever makes the system draw the button anew.
TEST(Win32ColourButtons, TheFaceLeavesRoomForItsBorder) {
    for (const bool styled : {false, true}) {
        const auto styles = styled ? std::make_unique<VisualStyles>() : nullptr;
        const std::unique_ptr<Form> form =
            ThePlatform().Services().forms.Create(ContractMainTable());
        const HWND top = FindTopWindow(ContractMainTable().caption);
        form->GetTab(kTabs).SelectTab(1);
        form->Show();
        Settle();
        ExpectFace(top);
        form->GetButton(kBehindColour).SetEnabled(false);
        Settle();
        ExpectFace(top);
        form->GetButton(kBehindColour).SetEnabled(true);
        form->GetButton(kBehindColour).SetFocus();
        Settle();
        ExpectFace(top);
        SendMessageW(FindControlWindow(top, kBehindColour), BM_SETSTATE, TRUE, 0);
        Settle();
        ExpectFace(top);
    }
}

}  // namespace zentar
