// The popup menu of the demo list.
#include <gtest/gtest.h>

#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_driver.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

// The entries of the opened menu that are enabled; closes it.
std::vector<int> EnabledIn(const ZentarDriver& zentar, HWND popup) {
    std::vector<int> enabled;
    for (const int id : {IDM_mnuDemosPlay, IDM_mnuDemosDelete, IDM_mnuDemosRename,
                         IDM_mnuDemosRenameMap, IDM_mnuDemosCopy, IDM_mnuDemosMove,
                         IDM_mnuDemosDeleteAll, IDM_mnuDemosSearch, IDM_mnuDemosRefresh}) {
        if (zentar.PopupLine(popup, id).enabled) {
            enabled.push_back(id);
        }
    }
    zentar.ClosePopup(popup);
    return enabled;
}

std::vector<int> EnabledEntries(const ZentarDriver& zentar, const std::string& demo) {
    return EnabledIn(zentar, zentar.OpenPopup(IDC_lstDemos, demo));
}

TEST(DemosPopup, HasItsEntriesInWords) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    zentar.ShowTab(kDemosTab);
    const HWND popup = zentar.OpenPopup(IDC_lstDemos, "edge final");
    EXPECT_EQ(zentar.PopupLine(popup, IDM_mnuDemosPlay).caption, "&Play This Demo");
    EXPECT_EQ(zentar.PopupLine(popup, IDM_mnuDemosDelete).caption, "&Delete This Demo");
    EXPECT_EQ(zentar.PopupLine(popup, IDM_mnuDemosRename).caption, "Rena&me This Demo");
    EXPECT_EQ(zentar.PopupLine(popup, IDM_mnuDemosRenameMap).caption, "Rename &With Map");
    EXPECT_EQ(zentar.PopupLine(popup, IDM_mnuDemosCopy).caption, "&Copy To Remote Folder");
    EXPECT_EQ(zentar.PopupLine(popup, IDM_mnuDemosMove).caption, "Move To &Remote Folder");
    EXPECT_EQ(zentar.PopupLine(popup, IDM_mnuDemosDeleteAll).caption, "Delete &All Listed Demos");
    EXPECT_EQ(zentar.PopupLine(popup, IDM_mnuDemosRefresh).caption, "Re&fresh List");
    zentar.ClosePopup(popup);
}

TEST(DemosPopup, TheRightButtonSelectsTheDemoUnderThePointer) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    zentar.ShowTab(kDemosTab);
    zentar.ClickItem(IDC_lstDemos, "campaign");
    zentar.ClosePopup(zentar.OpenPopup(IDC_lstDemos, "edge final"));
    EXPECT_SOON(zentar.Selected(IDC_lstDemos), "edge final");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: The Edge");
}

const std::vector<int> kNothingSelected = {IDM_mnuDemosDeleteAll, IDM_mnuDemosRefresh};
const std::vector<int> kEverything = {
    IDM_mnuDemosPlay,      IDM_mnuDemosDelete, IDM_mnuDemosRename,
    IDM_mnuDemosRenameMap, IDM_mnuDemosCopy,   IDM_mnuDemosMove,
    IDM_mnuDemosDeleteAll, IDM_mnuDemosSearch, IDM_mnuDemosRefresh};
const std::vector<int> kFileCommands = {IDM_mnuDemosDelete,    IDM_mnuDemosRename,
                                        IDM_mnuDemosCopy,      IDM_mnuDemosMove,
                                        IDM_mnuDemosDeleteAll, IDM_mnuDemosRefresh};

std::vector<int> Without(std::vector<int> entries, int entry) {
    std::erase(entries, entry);
    return entries;
}

TEST(DemosPopup, OffersWhatCanBeDoneWithTheDemo) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    zentar.ShowTab(kDemosTab);
    EXPECT_EQ(EnabledIn(zentar, zentar.OpenPopupBelowItems(IDC_lstDemos)), kNothingSelected);
    EXPECT_EQ(EnabledEntries(zentar, "edge final"), kEverything);
    EXPECT_EQ(EnabledEntries(zentar, "[q2dm3] warm-up"),
              Without(kEverything, IDM_mnuDemosRenameMap));
    zentar.ClickItem(IDC_lstDemos, "shopping list");
    AnswerBox(zentar.WaitForBox("Error"), IDNO);
    EXPECT_EQ(EnabledEntries(zentar, "shopping list"), kFileCommands);
}

// On a compressed demo Play stays as the menu showed it last.
TEST(DemosPopup, ACompressedDemoLeavesPlayAsItWasForOtherGamesToo) {
    const ZentarHome home;
    home.WriteIni({"Game=Quake3"});
    const ZentarDriver zentar(home);
    zentar.ShowTab(kDemosTab);
    EXPECT_EQ(EnabledIn(zentar, zentar.OpenPopupBelowItems(IDC_lstDemos)), kNothingSelected);
    EXPECT_EQ(EnabledEntries(zentar, "duel  "), kFileCommands);
    EXPECT_EQ(EnabledEntries(zentar, "duel"), kEverything);
    std::vector<int> withPlay = kFileCommands;
    withPlay.insert(withPlay.begin(), IDM_mnuDemosPlay);
    EXPECT_EQ(EnabledEntries(zentar, "duel  "), withPlay);
    zentar.ClickOn(IDC_optGameQuake2);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 8 of 8.");
    EXPECT_EQ(EnabledEntries(zentar, "edge final"), withPlay);
    zentar.ClickOn(IDC_optGameQuake3);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 7 of 7.");
    EXPECT_EQ(EnabledEntries(zentar, "duel"), kEverything);
}

TEST(DemosPopup, RefreshListRefreshesIt) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    zentar.ShowTab(kDemosTab);
    std::filesystem::remove(home.Games() / "Quake2" / "baseq2" / "demos" / "untitled.dm2");
    zentar.Choose(IDC_lstDemos, "campaign", 'F');
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 7 of 7.");
}

}  // namespace
}  // namespace zentar::window_tests
