// Where the Tab key leads.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/window/screen_reader.h"
#include "tests/window/shots_fixture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

// The controls in the order of their stops, as a screen reader calls them.
using Stops = std::vector<std::string>;

constexpr char kTabs[] = "Tools";
// What follows the last stop of every page.
const Stops kBesideTheTabs = {"Q2", "Mod Selection", kTabs};

Stops ThenBesideTheTabs(Stops page) {
    page.insert(page.end(), kBesideTheTabs.begin(), kBesideTheTabs.end());
    return page;
}

class TabOrder : public ShotsWindowTest {
  protected:
    void Open(const IniLines& settings = {}) {
        ShotsWindowTest::Open(settings);
        FocusOnTabs();
    }
    void ShowTab(int tab) const {
        zentar_->ShowTab(tab);
        FocusOnTabs();
    }
    void FocusOnTabs() const { EXPECT_TRUE(zentar_->GetsFocus(IDC_SSTab1)); }

    // The Tab key, once.
    HWND Step(bool backwards) const {
        const HWND before = zentar_->Focused();
        if (backwards) {
            zentar_->PressKeyWith(VK_SHIFT, VK_TAB);
        } else {
            zentar_->PressKey(VK_TAB);
        }
        EXPECT_TRUE(Eventually([&] { return zentar_->Focused() != before; }));
        return zentar_->Focused();
    }

    // All stops from the one that has the keyboard until that has it again.
    std::vector<HWND> Walk(bool backwards = false) const {
        constexpr std::size_t kMoreThanThereAre = 100;
        const HWND start = zentar_->Focused();
        std::vector<HWND> stops;
        do {
            stops.push_back(Step(backwards));
        } while (stops.back() != start && stops.size() < kMoreThanThereAre);
        return stops;
    }

    Stops NamesOf(const std::vector<HWND>& stops) const {
        Stops names;
        for (const HWND stop : stops) {
            names.push_back(reader_.Of(stop).name);
        }
        return names;
    }

    // What the Tab key should be able to reach.
    static std::multiset<HWND> Reachable(HWND form) {
        std::multiset<HWND> all;
        for (const HWND control : Descendants(form)) {
            const bool stop = (GetWindowLongW(control, GWL_STYLE) & WS_TABSTOP) != 0;
            if (stop && IsWindowVisible(control) && IsUsable(control)) {
                all.insert(control);
            }
        }
        return all;
    }

    // Walks around: the stops are these, and all there are.
    std::vector<HWND> ExpectStops(HWND form, const Stops& expected) const {
        const std::vector<HWND> there = Walk();
        EXPECT_EQ(NamesOf(there), expected);
        EXPECT_EQ(std::multiset<HWND>(there.begin(), there.end()), Reachable(form));
        return there;
    }
    void ExpectStops(const Stops& page) const {
        ExpectStops(zentar_->Main(), ThenBesideTheTabs(page));
    }

    // Walks there and back.
    void ExpectWalk(HWND form, const Stops& expected) const {
        const std::vector<HWND> there = ExpectStops(form, expected);
        std::vector<HWND> back = Walk(true);
        std::reverse(back.begin(), back.end() - 1);
        EXPECT_EQ(back, there);
    }
    void ExpectWalk(const Stops& page) const {
        ExpectWalk(zentar_->Main(), ThenBesideTheTabs(page));
    }

    ScreenReader reader_;
};

TEST_F(TabOrder, OfShotsAndDemosIsTheReadingOrder) {
    Open({"AutoShowAll=0", "DemosAll=0", "DemosFilter="});
    ExpectWalk({"Screenshots", "Real."});
    ShowTab(kDemosTab);
    ExpectWalk(
        {"Demos", "List all available demos.", "contain", "Phrase", "Go", "Pre-made phrases"});
    // The filter is disabled while all demos are listed.
    zentar_->PressKeyWith(VK_MENU, 'L');
    EXPECT_SOON(zentar_->Usable(IDC_cmdFilter), false);
    zentar_->ShowTab(kShotsTab);
    ShowTab(kDemosTab);
    ExpectStops({"Demos", "List all available demos."});
}

TEST_F(TabOrder, OfMiscIsTheReadingOrder) {
    Open();
    Stops expected = {"Install Demos",
                      "Backup",
                      "Restore",
                      "Include name, model, sex, handicap, and railgun values when backing up.",
                      "Edit Quake3 Config",
                      "Scan For Names"};
    ShowTab(kMiscTab);
    for (int box = 1; box <= 24; ++box) {
        expected.push_back("Player " + std::to_string(box));
    }
    for (const char* below :
         {"Create transcript as HTML code instead of plain text.", "Colour used for game messages",
          "Include game messages.", "Create Transcript"}) {
        expected.emplace_back(below);
    }
    ExpectWalk(expected);
    // "Clear" waits for a name.
    zentar_->ClickOn(IDC_txtPlayer1);
    zentar_->TypeText("Fish");
    EXPECT_SOON(zentar_->Usable(IDC_cmdClearNames), true);
    EXPECT_EQ(NamesOf({Step(true)}), Stops{"Clear"});
    EXPECT_EQ(NamesOf({Step(true)}), Stops{"Scan For Names"});
}

TEST_F(TabOrder, OfQ3TextAndFirstAidIsTheReadingOrder) {
    Open();
    ShowTab(kQ3TextTab);
    const Stops upToCode = {"Coloured text",
                            "Black",
                            "Red",
                            "Green",
                            "Yellow",
                            "Blue",
                            "Cyan",
                            "Magenta",
                            "White",
                            "Player name.",
                            "Make all text compatible with 'Keyfox' from its maker's web site.",
                            "Make black text compatible with Quake 3 'OSP' mods.",
                            "Quake 3 code"};
    const std::string last = "Include a leading backslash when copying to clipboard.";
    Stops expected = upToCode;
    expected.insert(expected.end(), {"Open...", last});
    ExpectWalk(expected);
    // What works on a text waits for one.
    zentar_->PressKey(VK_TAB);
    EXPECT_TRUE(zentar_->GetsFocus(IDC_rtbQ3Text));
    zentar_->TypeText("Fox");
    EXPECT_SOON(zentar_->Usable(IDC_cmdQ3TextSave), true);
    Step(true);
    FocusOnTabs();
    expected = upToCode;
    expected.insert(expected.end(), {"Save As...", "Open...", "Clipboard", "Q3Config", last});
    ExpectStops(expected);

    ShowTab(kFirstAidTab);
    ExpectWalk({"Symptoms", "Remedies"});
    zentar_->ClickItem(IDC_lstSymptoms, zentar_->Items(IDC_lstSymptoms)[3]);
    EXPECT_SOON(zentar_->Usable(IDC_cmdRemedy2), true);
    Step(true);
    FocusOnTabs();
    ExpectStops({"Symptoms", "Remedies", "Apply Remedy #1", "Apply Remedy #2"});
}

TEST_F(TabOrder, OfTheOtherWindowsIsTheReadingOrder) {
    Open();
    zentar_->OpenMenuEntry('P', 'P');
    const HWND preferences = zentar_->WaitForForm("Preferences");
    EXPECT_SOON(zentar_->Focused(), FindControl(preferences, IDC_txtRemote));
    ExpectWalk(preferences,
               {"Select the Remote Folder",
                "Use Zentar in Expert Mode (no warnings are given before any harmful actions).",
                "Automatically show all demos when initially switching to a different game mod.",
                "Automatically select the next screenshot or image after deleting the current.",
                "Automatically select the next demo after deleting the current.", "Preferences",
                "Location of Remote Folder"});
    zentar_->LeaveBy(VK_ESCAPE, preferences);
    // The keyboard is back where it was.
    FocusOnTabs();

    View("quake00.tga", 0);
    const HWND box = zentar_->OpenForm(VK_F2, "Rename Screenshot");
    EXPECT_SOON(zentar_->Focused(), FindControl(box, 1002));
    ExpectWalk(box, {"OK", "Cancel",
                     "Enter new name for \"quake00\".\r\n\r\n(Do not type the extension)."});
    zentar_->PressKey(VK_ESCAPE);
    EXPECT_TRUE(zentar_->GetsFocus(IDC_lstScreenshots));

    const HWND help = zentar_->OpenForm(VK_F1, "Zentar Help");
    EXPECT_SOON(zentar_->Focused(), FindControl(help, IDC_lstQuestions));
    zentar_->PressKey(VK_DOWN);
    zentar_->PressKey(VK_RETURN);
    EXPECT_SOON(zentar_->Focused(), FindControl(help, IDC_cmdBack));
    ExpectWalk(help, {"Answer", "Back"});
}

TEST_F(TabOrder, CtrlTabTurnsThePages) {
    Open();
    const HWND tabs = zentar_->Control(IDC_SSTab1);
    const auto selected = [tabs] { return static_cast<int>(Send(tabs, TCM_GETCURSEL)); };
    for (const int tab : {kDemosTab, kMiscTab, kQ3TextTab, kFirstAidTab, kShotsTab}) {
        zentar_->PressKeyWith(VK_CONTROL, VK_TAB);
        EXPECT_SOON(selected(), tab);
    }
    {
        const HeldKey control(VK_CONTROL);
        for (const int tab : {kFirstAidTab, kQ3TextTab, kMiscTab, kDemosTab, kShotsTab}) {
            zentar_->PressKeyWith(VK_SHIFT, VK_TAB);
            EXPECT_SOON(selected(), tab);
        }
    }
    // The arrow keys do it on the tabs themselves, without going around.
    for (const int tab : {kDemosTab, kMiscTab, kQ3TextTab, kFirstAidTab, kFirstAidTab}) {
        zentar_->PressKey(VK_RIGHT);
        EXPECT_SOON(selected(), tab);
    }
    zentar_->PressKey(VK_LEFT);
    EXPECT_SOON(selected(), static_cast<int>(kQ3TextTab));
    // From inside a page the keyboard goes to the tabs: what had it has gone.
    zentar_->PressKey(VK_TAB);
    EXPECT_TRUE(zentar_->GetsFocus(IDC_rtbQ3Text));
    zentar_->PressKeyWith(VK_CONTROL, VK_TAB);
    EXPECT_SOON(selected(), static_cast<int>(kFirstAidTab));
    FocusOnTabs();
}

}  // namespace
}  // namespace zentar::window_tests
