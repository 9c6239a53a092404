// The program without a mouse: seeing the focus, dialogs, popup menus and lists.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "tests/window/screen_picture.h"
#include "tests/window/shots_fixture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

bool SamePixels(const std::vector<RGBQUAD>& one, const std::vector<RGBQUAD>& other) {
    return one.size() == other.size() &&
           std::memcmp(one.data(), other.data(), one.size() * sizeof(RGBQUAD)) == 0;
}

bool IsDefault(HWND button) {
    return (GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
}

class Keyboard : public ShotsWindowTest {
  protected:
    void Tab() const {
        const HWND before = zentar_->Focused();
        zentar_->PressKey(VK_TAB);
        EXPECT_TRUE(Eventually([&] { return zentar_->Focused() != before; }));
        zentar_->Settle();
    }
    void TabBack() const { zentar_->PressKeyWith(VK_SHIFT, VK_TAB); }
    // Goes on with the Tab key; where it was must look different then, unless a caret was there.
    void ExpectFocusSeen() const {
        const HWND control = zentar_->Focused();
        const bool caret = zentar_->Caret() == control;
        const bool seen = Eventually([&] {
            const std::vector<RGBQUAD> focused = PixelsOf(control);
            Tab();
            const auto changes = [&] { return !SamePixels(focused, PixelsOf(control)); };
            if (caret || Eventually(changes, kBeforeTryingAgain)) {
                return true;
            }
            // The screen may show the focus later than it could be looked at.
            TabBack();
            EXPECT_SOON(zentar_->Focused(), control);
            return false;
        });
        if (!seen) {
            Tab();
        }
        EXPECT_TRUE(seen) << ClassOf(control) << " " << GetDlgCtrlID(control) << " "
                          << TextOf(control);
    }

    void ExpectMenuByKeyboard(int list, int command) const {
        EXPECT_TRUE(zentar_->GetsFocus(list));
        for (const bool byMenuKey : {false, true}) {
            const HWND popup = Eventually([&] {
                if (byMenuKey) {
                    zentar_->PressKey(VK_APPS);
                } else {
                    zentar_->PressKeyWith(VK_SHIFT, VK_F10);
                }
                return Eventually([this] { return FindTop(zentar_->Process(), kMenuClass); },
                                  kBeforeTryingAgain);
            });
            ASSERT_NE(popup, nullptr);
            EXPECT_TRUE(zentar_->PopupLine(popup, command).enabled);
            zentar_->ClosePopup(popup);
            zentar_->Settle();
            EXPECT_TRUE(zentar_->GetsFocus(list));
        }
    }
};

TEST_F(Keyboard, TheFocusIsSeenAtEveryStop) {
    Open({"AutoShowAll=0", "DemosAll=0", "DemosFilter="});
    const HWND tabs = zentar_->Control(IDC_SSTab1);
    for (int tab = kShotsTab; tab <= kFirstAidTab; ++tab) {
        zentar_->ShowTab(tab);
        EXPECT_TRUE(zentar_->GetsFocus(IDC_SSTab1));
        do {
            ExpectFocusSeen();
        } while (zentar_->Focused() != tabs);
    }
}

TEST_F(Keyboard, OneButtonOfADialogIsTheDefault) {
    Open();
    View("quake00.tga", 0);
    const HWND box = zentar_->OpenForm(VK_F2, "Rename Screenshot");
    const HWND ok = FindControl(box, IDOK);
    const HWND cancel = FindControl(box, IDCANCEL);
    const HWND text = FindControl(box, 1002);
    EXPECT_SOON(zentar_->Focused(), text);
    EXPECT_SOON(IsDefault(ok), true);
    for (const HWND stop : {ok, cancel, text, ok}) {
        Tab();
        EXPECT_SOON(zentar_->Focused(), stop);
        EXPECT_SOON(IsDefault(ok), stop != cancel);
        EXPECT_SOON(IsDefault(cancel), stop == cancel);
    }
    // Enter presses the one that looks like it.
    Tab();
    zentar_->LeaveBy(VK_RETURN, box);
    EXPECT_SOON(IsHere("quake00.tga"), true);
    EXPECT_TRUE(zentar_->GetsFocus(IDC_lstScreenshots));
}

TEST_F(Keyboard, WorksThePreferences) {
    Open();
    zentar_->OpenMenuEntry('P', 'P');
    const HWND preferences = zentar_->WaitForForm("Preferences");
    const HWND browse = FindControl(preferences, IDC_cmdRemote);
    const HWND next = FindControl(preferences, IDC_chkAutoNextDemo);
    EXPECT_SOON(zentar_->Focused(), FindControl(preferences, IDC_txtRemote));
    // There is no button that Enter could mean.
    zentar_->PressKey(VK_RETURN);
    EXPECT_TRUE(IsWindowVisible(preferences));
    Tab();
    EXPECT_SOON(zentar_->Focused(), browse);
    zentar_->PressKey(VK_RETURN);
    const HWND picker = zentar_->WaitForPicker("Please specify a folder to be the Remote Folder:");
    zentar_->LeaveBy(VK_ESCAPE, picker);
    EXPECT_SOON(zentar_->Focused(), browse);
    for (int stop = 0; stop < 4; ++stop) {
        Tab();
    }
    EXPECT_SOON(zentar_->Focused(), next);
    EXPECT_SOON(IsChecked(next), false);
    zentar_->PressKey(VK_SPACE);
    EXPECT_SOON(IsChecked(next), true);
    zentar_->PressKey(VK_RETURN);
    EXPECT_SOON(IsChecked(next), true);
    zentar_->LeaveBy(VK_ESCAPE, preferences);
    EXPECT_TRUE(zentar_->GetsFocus(IDC_SSTab1));
    EXPECT_EQ(zentar_->Close(), 0);
    EXPECT_NE(ReadBytes(home_.Ini()).find("\r\nAutoNextDemo=1\r\n"), std::string::npos);
}

TEST_F(Keyboard, OpensThePopupMenusOfTheLists) {
    Open();
    View("quake00.tga", 0);
    ExpectMenuByKeyboard(IDC_lstScreenshots, IDM_mnuScreenshotDelete);
    EXPECT_SOON(zentar_->Selected(IDC_lstScreenshots), "quake00.tga *");
    zentar_->ShowTab(kDemosTab);
    zentar_->ClickItem(IDC_lstDemos, "campaign");
    ExpectMenuByKeyboard(IDC_lstDemos, IDM_mnuDemosDelete);
    EXPECT_SOON(zentar_->Selected(IDC_lstDemos), "campaign");
}

TEST_F(Keyboard, WalksThroughListsAndOptions) {
    Open();
    zentar_->ShowTab(kDemosTab);
    Tab();
    EXPECT_TRUE(zentar_->GetsFocus(IDC_lstDemos));
    const Lines demos = zentar_->Items(IDC_lstDemos);
    const auto goes = [&](WORD key, std::size_t to) {
        zentar_->PressKey(key);
        if (zentar_->HasBox()) {
            AnswerBox(zentar_->WaitForBox("Error"), IDNO);  // the one that is no demo
        }
        EXPECT_SOON(zentar_->Selected(IDC_lstDemos), demos[to]) << key;
    };
    goes(VK_DOWN, 0);  // nothing was selected
    goes(VK_END, demos.size() - 1);
    goes(VK_UP, demos.size() - 2);
    goes(VK_HOME, 0);
    goes(VK_DOWN, 1);
    goes(VK_NEXT, demos.size() - 1);
    goes(VK_PRIOR, 0);
    const auto untitled = std::find(demos.begin(), demos.end(), "untitled");
    goes('U', static_cast<std::size_t>(untitled - demos.begin()));

    // The arrow keys choose among options, the Tab key passes them in one step.
    TabBack();
    TabBack();
    TabBack();
    EXPECT_TRUE(zentar_->GetsFocus(IDC_optGameQuake2));
    zentar_->PressKey(VK_RIGHT);
    EXPECT_TRUE(zentar_->GetsFocus(IDC_optGameQuake3));
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "baseq3");
    zentar_->PressKey(VK_RIGHT);
    EXPECT_TRUE(zentar_->GetsFocus(IDC_optGameQuake1));
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "id1");
    zentar_->PressKey(VK_UP);
    EXPECT_TRUE(zentar_->GetsFocus(IDC_optGameQuake3));
}

}  // namespace
}  // namespace zentar::window_tests
