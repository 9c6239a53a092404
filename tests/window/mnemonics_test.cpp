// The letters that the Alt key works with.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "platform/win32/win32_text.h"
#include "tests/window/shots_fixture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

// The underlined letter of a caption in lower case, or 0.
wchar_t LetterOf(const std::string& caption) {
    const std::wstring text = Widen(caption);
    for (std::size_t at = text.find(L'&'); at < text.size(); at = text.find(L'&', at + 2)) {
        if (at + 1 < text.size() && text[at + 1] != L'&') {
            return static_cast<wchar_t>(towlower(text[at + 1]));
        }
    }
    return 0;
}

// Of the controls that a letter could reach now. What is typed or listed underlines nothing.
std::multiset<wchar_t> LettersOf(HWND form) {
    std::multiset<wchar_t> letters;
    for (const HWND control : Descendants(form)) {
        const std::string kind = ClassOf(control);
        const LONG style = GetWindowLongW(control, GWL_STYLE);
        const bool underlines =
            kind == "Button" || (kind == "Static" && (style & SS_NOPREFIX) == 0);
        const wchar_t letter = underlines ? LetterOf(TextOf(control)) : L'\0';
        if (letter != 0 && IsWindowVisible(control) && IsUsable(control)) {
            letters.insert(letter);
        }
    }
    return letters;
}

// The letters of a menu of the main window.
std::multiset<wchar_t> LettersOfMenu(int menu) {
    std::multiset<wchar_t> letters;
    for (const MenuRow& row : MainWindowTable().menus) {
        const wchar_t letter =
            row.parent == menu && row.kind != MenuKind::Popup ? LetterOf(row.caption) : L'\0';
        if (letter != 0) {
            letters.insert(letter);
        }
    }
    return letters;
}

constexpr int kMenuBar = 0;

class Mnemonics : public ShotsWindowTest {
  protected:
    bool ListsAll() const { return zentar_->Checked(IDC_chkShowAllDemos); }
};

// Two entries that share a letter take turns with it, which a caption that is settled may need.
TEST(MenuLetters, AreThereOncePerMenu) {
    using Letters = std::multiset<wchar_t>;
    EXPECT_EQ(LettersOfMenu(kMenuBar), (Letters{L'p', L'g', L'h'}));
    EXPECT_EQ(LettersOfMenu(IDM_mnuProgram), (Letters{L'p', L'x'}));
    EXPECT_EQ(LettersOfMenu(IDM_mnuGame), (Letters{L'q', L'2', L'3', L'f', L'c'}));
    EXPECT_EQ(LettersOfMenu(IDM_mnuHelp), (Letters{L'h', L'a'}));
    EXPECT_EQ(LettersOfMenu(IDM_mnuDemos),
              (Letters{L'p', L'd', L'm', L'w', L'c', L'r', L'a', L's', L'f'}));
    EXPECT_EQ(LettersOfMenu(IDM_mnuScreenshot),
              (Letters{L's', L'p', L'j', L'k', L'w', L'd', L'i', L'm', L'c', L'r', L'i', L'a', L'v',
                       L'j', L't', L'x', L'f'}));
}

TEST_F(Mnemonics, OfTheMainWindowAreThereOnceAndWork) {
    Open({"AutoShowAll=0", "DemosAll=0", "DemosFilter="});
    zentar_->ShowTab(kDemosTab);
    for (const char menu : {'P', 'G', 'H'}) {
        zentar_->CloseMenu(zentar_->OpenMenu(menu));
    }
    for (int tab = kShotsTab; tab <= kFirstAidTab; ++tab) {
        zentar_->ShowTab(tab);
        std::multiset<wchar_t> letters = LettersOf(zentar_->Main());
        const std::multiset<wchar_t> page = letters;
        EXPECT_EQ(page, tab == kDemosTab ? std::multiset<wchar_t>{L'l'} : std::multiset<wchar_t>{})
            << tab;
        letters.merge(LettersOfMenu(kMenuBar));
        EXPECT_EQ(std::set<wchar_t>(letters.begin(), letters.end()).size(), letters.size()) << tab;
        // Where the letter stands it ticks the box, from wherever the keyboard is.
        const bool before = ListsAll();
        zentar_->PressKeyWith(VK_MENU, 'L');
        zentar_->Settle();
        EXPECT_SOON(ListsAll(), tab == kDemosTab ? !before : before);
        if (tab == kDemosTab) {
            EXPECT_TRUE(zentar_->GetsFocus(IDC_chkShowAllDemos));
        }
    }
}

TEST_F(Mnemonics, OfTheOtherWindowsAreThereOnceAndWork) {
    Open();
    zentar_->OpenMenuEntry('P', 'P');
    const HWND preferences = zentar_->WaitForForm("Preferences");
    EXPECT_SOON(LettersOf(preferences), std::multiset<wchar_t>{});
    zentar_->LeaveBy(VK_ESCAPE, preferences);
    zentar_->Settle();

    const HWND help = zentar_->OpenForm(VK_F1, "Zentar Help");
    const HWND list = FindControl(help, IDC_lstQuestions);
    EXPECT_SOON(zentar_->Focused(), list);
    // Nothing to go back from.
    EXPECT_SOON(LettersOf(help), std::multiset<wchar_t>{});
    zentar_->PressKeyWith(VK_MENU, 'B');
    zentar_->Settle();
    EXPECT_TRUE(IsWindowVisible(list));
    zentar_->PressKey(VK_DOWN);
    zentar_->PressKey(VK_RETURN);
    EXPECT_SOON(IsWindowVisible(list), FALSE);
    EXPECT_SOON(LettersOf(help), std::multiset<wchar_t>{L'b'});
    zentar_->PressKeyWith(VK_SHIFT, VK_TAB);
    EXPECT_SOON(zentar_->Focused(), FindControl(help, IDC_txtAnswer));
    zentar_->PressKeyWith(VK_MENU, 'B');
    EXPECT_SOON(IsWindowVisible(list) != FALSE, true);
    EXPECT_SOON(zentar_->Focused(), list);
}

}  // namespace
}  // namespace zentar::window_tests
