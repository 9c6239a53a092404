// The help window.
#include <gtest/gtest.h>

#include "help/help_topics.h"
#include "tests/window/commands_fixture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

class Help : public CommandsTest {
  protected:
    // F1 on a tab of the main window.
    HWND OpenAt(int tab) {
        if (!zentar_) {
            Open(tab);
        } else {
            zentar_->ShowTab(tab);
        }
        return zentar_->OpenForm(VK_F1, "Zentar Help");
    }
    void Close(HWND help) const {
        PostMessageW(help, WM_CLOSE, 0, 0);
        zentar_->WaitUntilLeft(help);
    }
    static std::string TopEntry(HWND help) {
        const HWND list = FindControl(help, IDC_lstQuestions);
        return ItemsOf(list)[static_cast<std::size_t>(Send(list, LB_GETTOPINDEX))];
    }
    static void OpenTopic(HWND help, const std::string& title) {
        const HWND list = FindControl(help, IDC_lstQuestions);
        const Lines items = ItemsOf(list);
        const auto at = std::find(items.begin(), items.end(), "     " + title);
        ASSERT_NE(at, items.end()) << title;
        const int index = static_cast<int>(at - items.begin());
        ScrollTo(list, index);
        DoubleClick(CentreOfItem(list, index));
    }
    static std::string Header(HWND help) { return TextOf(FindControl(help, IDC_labHeader)); }
    static bool ShowsAnswer(HWND help) {
        return IsWindowVisible(FindControl(help, IDC_txtAnswer)) != FALSE &&
               IsWindowVisible(FindControl(help, IDC_lstQuestions)) == FALSE;
    }

    const std::string prompt_ = "Please select a help topic from the list:";
};

TEST_F(Help, OpensAtTheSectionOfTheTab) {
    const char* headings[] = {"SCREENSHOTS ", "DEMOS ", "MISCELLANEOUS TOOLS ",
                              "QUAKE 3 COLOURED TEXT ", "FIRST AID "};
    for (int tab = kShotsTab; tab <= kFirstAidTab; ++tab) {
        const HWND help = OpenAt(tab);
        EXPECT_SOON(SelectedItemOf(FindControl(help, IDC_lstQuestions)), headings[tab]);
        if (tab != kFirstAidTab) {  // whose section stands too near the list's end
            EXPECT_SOON(TopEntry(help), headings[tab]);
        }
        EXPECT_SOON(ItemsOf(FindControl(help, IDC_lstQuestions)), HelpEntries());
        EXPECT_SOON(Header(help), prompt_);
        EXPECT_SOON(IsUsable(FindControl(help, IDC_cmdBack)), false);
        Close(help);
    }
}

TEST_F(Help, StandsInTheUpperRightCornerInItsSize) {
    const HWND help = OpenAt(kShotsTab);
    RECT place{};
    GetWindowRect(help, &place);
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    const auto dpi = static_cast<int>(GetDpiForWindow(help));
    EXPECT_EQ(place.right - place.left, MulDiv(4815, dpi, 1440));
    EXPECT_EQ(place.bottom - place.top, MulDiv(5835, dpi, 1440));
    EXPECT_EQ(place.right, area.right);
    EXPECT_EQ(place.top, area.top);
}

TEST_F(Help, ATopicOpensByDoubleClickAndBackByItsButton) {
    const HWND help = OpenAt(kDemosTab);
    const HWND back = FindControl(help, IDC_cmdBack);
    OpenTopic(help, "Playing Back A Demo");
    EXPECT_SOON(ShowsAnswer(help), true);
    EXPECT_SOON(Header(help), "     Playing Back A Demo");
    EXPECT_SOON(TextOf(FindControl(help, IDC_txtAnswer)),
                std::string(FindHelpTopic("Playing Back A Demo")->answer));
    EXPECT_SOON(IsUsable(back), true);
    EXPECT_SOON(zentar_->Focused(), back);
    zentar_->ClickIn(help, IDC_cmdBack);
    EXPECT_SOON(ShowsAnswer(help), false);
    EXPECT_SOON(Header(help), prompt_);
    EXPECT_SOON(zentar_->Focused(), FindControl(help, IDC_lstQuestions));
    EXPECT_SOON(SelectedItemOf(FindControl(help, IDC_lstQuestions)), "     Playing Back A Demo");
}

TEST_F(Help, TheKeyboardGoesThereAndBack) {
    const HWND help = OpenAt(kDemosTab);
    const HWND list = FindControl(help, IDC_lstQuestions);
    const HWND answer = FindControl(help, IDC_txtAnswer);
    EXPECT_SOON(zentar_->Focused(), list);
    zentar_->PressKey(VK_RETURN);  // a heading
    EXPECT_FALSE(ShowsAnswer(help));
    zentar_->PressKey(VK_DOWN);
    zentar_->PressKey(VK_RETURN);
    EXPECT_SOON(ShowsAnswer(help), true);
    zentar_->PressKey(VK_BACK);  // on the button
    EXPECT_SOON(ShowsAnswer(help), false);
    for (const WORD key : {WORD{VK_BACK}, WORD{VK_RETURN}}) {
        zentar_->PressKey(VK_RETURN);
        EXPECT_SOON(ShowsAnswer(help), true);
        zentar_->PressKeyWith(VK_SHIFT, VK_TAB);
        EXPECT_SOON(zentar_->Focused(), answer);
        zentar_->PressKey(key);
        EXPECT_SOON(ShowsAnswer(help), false);
    }
    zentar_->LeaveBy(VK_ESCAPE, help);
}

TEST_F(Help, EveryAnswerFitsAndEveryTopicOpens) {
    const HWND help = OpenAt(kShotsTab);
    for (const HelpSection& section : HelpSections()) {
        for (const HelpTopic& topic : section.topics) {
            OpenTopic(help, std::string(topic.title));
            EXPECT_SOON(TextOf(FindControl(help, IDC_txtAnswer)), std::string(topic.answer));
            EXPECT_SOON(ShowsAnswer(help), true);
            zentar_->PressKey(VK_BACK);
            EXPECT_SOON(ShowsAnswer(help), false);
        }
    }
}

TEST_F(Help, TheMainWindowCanBeUsedBesideIt) {
    const HWND help = OpenAt(kShotsTab);
    zentar_->ClickOn(IDC_optGameQuake3);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "baseq3");
    EXPECT_TRUE(IsWindowVisible(help));
    EXPECT_EQ(zentar_->Close(), 0);
}

}  // namespace
}  // namespace zentar::window_tests
