// Compressed demos (.dm_66) put the filter out of use while one is selected.
#include "tests/unit/demos/demos_tab_fixture.h"

namespace zentar {
namespace {

using samples::DemoKind;
using Entries = std::vector<std::string>;

class CompressedDemo : public DemosTabTest {
  protected:
    CompressedDemo() {
        Use(kQuake3, "baseq3");
        AddDemo("new.dm_66", DemoKind::Dm66, {});
        AddDemo("old.dm3", DemoKind::Dm3, {.map = "q3dm17", .chat = {"Fred: gg"}});
        AddDemo("other.dm3", DemoKind::Dm3, {.map = "q3dm6"});
        tab->RefreshDemoList();
    }
    // A phrase that every demo lacks; so all are listed, but not because of show-all.
    void ListWithTheFilterOn() { Filter("no such phrase", false); }
};

TEST_F(CompressedDemo, SelectingOneDisablesTheFilterAndSaysWhy) {
    Select("new  ");
    EXPECT_EQ(Text(IDC_fraDemos), "Demo Filter (n/a for v1.29f and higher)");
    EXPECT_FALSE(Enabled(IDC_fraDemos));
    EXPECT_FALSE(Enabled(IDC_chkShowAllDemos));
    EXPECT_TRUE(Checked(IDC_chkShowAllDemos));
    EXPECT_FALSE(MenuEnabled(IDM_mnuDemosRenameMap));
    EXPECT_EQ(Selected(), "new  ");
}

TEST_F(CompressedDemo, WithAllDemosListedTheListStaysAsItIs) {
    os.log.Clear();
    Select("new  ");
    EXPECT_FALSE(os.log.Has("Enumerate " + state.current.DemoFolder));
}

TEST_F(CompressedDemo, WithTheFilterOnAllDemosAreListedAndItStaysSelected) {
    ListWithTheFilterOn();
    AddDemo("zebra.dm3", "no such phrase");
    os.files.ForgetReads();
    Select("new  ");
    EXPECT_TRUE(Checked(IDC_chkShowAllDemos));
    EXPECT_EQ(Listed(), (Entries{"new  ", "old", "other", "zebra"}));
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 4 of 4.");
    EXPECT_EQ(Selected(), "new  ");
    EXPECT_EQ(tab->SelectedDemo().Item, "new  ");
    EXPECT_EQ(tab->SelectedDemo().Path, PathOf("new.dm_66"));
    EXPECT_EQ(Text(IDC_labDemoVersion), "Q3 Version: 1.29f or higher");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: (n/a for v1.29f and higher)");
    EXPECT_EQ(Text(IDC_fraDemos), "Demo Filter (n/a for v1.29f and higher)");
    EXPECT_FALSE(Enabled(IDC_fraDemos));
    EXPECT_FALSE(Enabled(IDC_chkShowAllDemos));
    EXPECT_TRUE(Enabled(IDC_fraDemoProperties));
    EXPECT_EQ(os.files.Reads(PathOf("new.dm_66")).opens, 1) << "read once";
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

TEST_F(CompressedDemo, TheNextDemoBringsTheFilterBack) {
    ListWithTheFilterOn();
    Select("new  ");
    Select("old");
    EXPECT_EQ(Text(IDC_fraDemos), "Demo Filter");
    EXPECT_TRUE(Enabled(IDC_fraDemos));
    EXPECT_TRUE(Enabled(IDC_chkShowAllDemos));
    EXPECT_TRUE(Checked(IDC_chkShowAllDemos)) << "all demos stay listed";
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: q3dm17");
}

TEST_F(CompressedDemo, OneThatVanishedMeanwhileLeavesNothingSelected) {
    ListWithTheFilterOn();
    DuringNextPump([this] { os.files.Remove(PathOf("new.dm_66")); });
    Select("new  ");
    EXPECT_EQ(Listed(), (Entries{"old", "other"}));
    EXPECT_EQ(form->GetListBox(IDC_lstDemos).SelectedIndex(), -1);
    EXPECT_EQ(tab->SelectedDemo().Item, "");
    EXPECT_EQ(Text(IDC_labDemoSize), "Demo size: (n/a)");
    EXPECT_FALSE(Enabled(IDC_fraDemoProperties));
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
    tab->RefreshDemoList();
    EXPECT_EQ(form->GetListBox(IDC_lstDemos).SelectedIndex(), -1) << "nothing is left pending";
}

TEST_F(CompressedDemo, AClickOnAnotherDemoWhileTheListIsAboutToChangeWins) {
    ListWithTheFilterOn();
    DuringNextPump([this] { Select("old"); });
    Select("new  ");
    EXPECT_EQ(Selected(), "old");
    EXPECT_EQ(tab->SelectedDemo().Item, "old");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: q3dm17");
    EXPECT_EQ(Text(IDC_fraDemos), "Demo Filter");
    EXPECT_TRUE(Enabled(IDC_fraDemos));
    EXPECT_TRUE(Enabled(IDC_chkShowAllDemos));
}

TEST_F(CompressedDemo, AChangeOfModMeanwhileWins) {
    ListWithTheFilterOn();
    os.files.AddFile("C:\\Games\\Quake3\\osp\\demos\\new.dm_66",
                     samples::MakeDemo(DemoKind::Dm66, {}));
    DuringNextPump([this] { Use(kQuake3, "osp"); });
    Select("new  ");
    EXPECT_EQ(Listed(), Entries{"new  "});
    EXPECT_EQ(tab->SelectedDemo().Item, "") << "the demo of that name is another one";
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 1 of 1.");
}

}  // namespace
}  // namespace zentar
