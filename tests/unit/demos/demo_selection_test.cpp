#include "tests/unit/demos/demos_tab_fixture.h"

namespace zentar {
namespace {

using samples::DemoKind;

class DemoSelection : public DemosTabTest {};

// ---- What the properties show ----

TEST_F(DemoSelection, AQuake2DemoShowsItsProperties) {
    Use(kQuake2, "ctf");
    os.files.AddFile(
        PathOf("duel.dm2"),
        samples::MakeDemo(
            DemoKind::Dm2,
            {.map = "q2ctf1", .levelName = "McKinley - Revival", .mod = "ctf", .size = 1'204'000}),
        MakeFileTime(2001, 9, 30, 13, 5, 9));
    const std::uint64_t length = os.files.Contents(PathOf("duel.dm2")).size();
    tab->RefreshDemoList();
    Select("duel");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: q2ctf1");
    EXPECT_EQ(Text(IDC_labDemoName), "Name: McKinley - Revival");
    EXPECT_EQ(Text(IDC_labDemoSize), "File size: 1," + std::to_string(length).substr(1, 3) + "," +
                                         std::to_string(length).substr(4) + " bytes");
    EXPECT_EQ(Text(IDC_labDemoDate), "Created: 2001-09-30 13:05:09");
    EXPECT_EQ(Text(IDC_labDemoVersion), "Q3 Version: (n/a)");
    for (const int id : {IDC_fraDemoProperties, IDC_labDemoVersion, IDC_labDemoName, IDC_labDemoMap,
                         IDC_labDemoSize, IDC_labDemoDate}) {
        EXPECT_TRUE(Enabled(id)) << id;
    }
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);

    const DemoInfo& demo = tab->SelectedDemo();
    EXPECT_EQ(demo.Item, "duel");
    EXPECT_EQ(demo.Path, PathOf("duel.dm2"));
    EXPECT_EQ(demo.SizeBytes, length);
    EXPECT_EQ(demo.Stamp, MakeFileTime(2001, 9, 30, 13, 5, 9));
    EXPECT_EQ(demo.SearchTerm, "McKinley+++Revival");
    EXPECT_FALSE(demo.NotADemo);
}

TEST_F(DemoSelection, WithoutASelectedEntryNoFileIsLookedAt) {
    Use(kQuake2, "ctf");
    AddDemo("duel.dm2", DemoKind::Dm2, {.map = "q2ctf1"});
    tab->RefreshDemoList();
    Select("duel");
    form->GetListBox(IDC_lstDemos).SetItems({"duel"});
    tab->lstDemos_Click();
    EXPECT_EQ(tab->SelectedDemo().Item, "duel");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: q2ctf1");
}

TEST_F(DemoSelection, SizesAreGroupedAndZeroIsWrittenOut) {
    Use(kQuake3, "baseq3");
    AddDemo("empty.dm_66", "");
    AddDemo("k.dm_66", std::string(1000, 'x'));
    AddDemo("small.dm_66", std::string(999, 'x'));
    tab->RefreshDemoList();
    Select("empty  ");
    EXPECT_EQ(Text(IDC_labDemoSize), "File size: 0 bytes");
    Select("k  ");
    EXPECT_EQ(Text(IDC_labDemoSize), "File size: 1,000 bytes");
    Select("small  ");
    EXPECT_EQ(Text(IDC_labDemoSize), "File size: 999 bytes");
}

TEST_F(DemoSelection, ALevelWithoutANameShowsNone) {
    Use(kQuake1, "id1");
    AddDemo("duel.dem", DemoKind::Dem, {.levelName = ""});
    tab->RefreshDemoList();
    Select("duel");
    EXPECT_EQ(Text(IDC_labDemoName), "Name: (None)");
}

TEST_F(DemoSelection, ALevelNameOfTwoLinesStaysOnOne) {
    Use(kQuake2, "action");
    AddDemo("duel.dm2", DemoKind::Dm2, {.levelName = "Terminal\nby WizardExt", .mod = "action"});
    tab->RefreshDemoList();
    Select("duel");
    EXPECT_EQ(Text(IDC_labDemoName), "Name: Terminal by WizardExt");
    EXPECT_EQ(tab->SelectedDemo().Name, "Terminal\nby WizardExt");
}

TEST_F(DemoSelection, GoldenLettersAreShownByTheirBytes) {
    Use(kQuake1, "id1");
    AddDemo("duel.dem", DemoKind::Dem, {.levelName = "\xC4\xE9"});
    tab->RefreshDemoList();
    Select("duel");
    EXPECT_EQ(Text(IDC_labDemoName), "Name: Äé");
}

TEST_F(DemoSelection, EachQuake3GenerationIsNamed) {
    Use(kQuake3, "baseq3");
    AddDemo("a.dm3", DemoKind::Dm3, {.map = "Q3DM17"});
    AddDemo("b.dm_48", DemoKind::Dm48, {.map = "q3dm6"});
    AddDemo("c.dm_66", DemoKind::Dm66, {});
    AddDemo("d.dm3", "\\mapname\\q3dm1\\");
    tab->RefreshDemoList();
    Select("a");
    EXPECT_EQ(Text(IDC_labDemoVersion), "Q3 Version: 1.17 compatible");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: q3dm17");
    EXPECT_EQ(state.generation, Q3Generation::V117);
    Select("b ");
    EXPECT_EQ(Text(IDC_labDemoVersion), "Q3 Version: 1.27h compatible");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: q3dm6");
    EXPECT_EQ(state.generation, Q3Generation::V127h);
    for (const char* entry : {"c  ", "d"}) {
        Select(entry);
        EXPECT_EQ(Text(IDC_labDemoVersion), "Q3 Version: 1.29f or higher");
        EXPECT_EQ(Text(IDC_labDemoMap), "Map: (n/a for v1.29f and higher)");
        EXPECT_EQ(Text(IDC_labDemoName), "Name: (n/a for v1.29f and higher)");
        EXPECT_EQ(state.generation, Q3Generation::V129f);
    }
}

TEST_F(DemoSelection, AFileOfUpperCaseExtensionIsRead) {
    Use(kQuake3, "baseq3");
    AddDemo("X.DM_48", DemoKind::Dm48, {.map = "q3dm6"});
    tab->RefreshDemoList();
    Select("X ");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: q3dm6");
}

TEST_F(DemoSelection, TheGenerationOutlivesDemosOfOtherGames) {
    Use(kQuake3, "baseq3");
    AddDemo("a.dm_66", DemoKind::Dm66, {});
    tab->RefreshDemoList();
    Select("a  ");
    Use(kQuake2, "baseq2");
    AddDemo("duel.dm2", DemoKind::Dm2, {});
    tab->RefreshDemoList();
    Select("duel");
    EXPECT_EQ(state.generation, Q3Generation::V129f);
    EXPECT_FALSE(MenuEnabled(IDM_mnuDemosRenameMap));
    EXPECT_EQ(Text(IDC_labDemoVersion), "Q3 Version: (n/a)");
}

TEST_F(DemoSelection, ForTheReadTheLabelsAreRepaintedWithTheHourglassUp) {
    Use(kQuake2, "baseq2");
    AddDemo("a.dm2", DemoKind::Dm2, {.map = "base1", .levelName = "Outer Base"});
    AddDemo("b.dm2", DemoKind::Dm2, {.map = "base2", .levelName = "Installation"});
    tab->RefreshDemoList();
    Select("a");
    DuringNextPump([this] {
        EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Hourglass);
        EXPECT_EQ(Text(IDC_labDemoMap), "Map: (n/a)");
        EXPECT_EQ(Text(IDC_labDemoName), "Name: (n/a)");
        EXPECT_TRUE(Text(IDC_labDemoSize).starts_with("File size: "));
        EXPECT_EQ(os.files.Reads(PathOf("b.dm2")).opens, 0) << "the file is read afterwards";
    });
    os.files.ForgetReads();
    Select("b");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: base2");
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
    EXPECT_EQ(os.windows.Pumps() > 0, true);
}

TEST_F(DemoSelection, TheSelectedEntryIsNotReadAgain) {
    Use(kQuake2, "baseq2");
    AddDemo("a.dm2", DemoKind::Dm2, {});
    tab->RefreshDemoList();
    Select("a");
    os.files.ForgetReads();
    os.log.Clear();
    Select("a");
    tab->lstDemos_Click();
    EXPECT_EQ(os.files.TotalOpens(), 0);
    EXPECT_FALSE(os.log.Has("Pump"));
}

TEST_F(DemoSelection, OneBlockOfTheFileIsRead) {
    Use(kQuake2, "baseq2");
    AddDemo("a.dm2", DemoKind::Dm2, {.size = 50'000});
    tab->RefreshDemoList();
    Select("a");
    EXPECT_EQ(os.files.Reads(PathOf("a.dm2")).opens, 1);
    EXPECT_EQ(os.files.Reads(PathOf("a.dm2")).bytes, 5120U);
}

TEST_F(DemoSelection, ADemoThatCarriesItsMapIsNotOfferedThePrefixAgain) {
    Use(kQuake3, "baseq3");
    for (const char* name : {"[q3dm17]x.dm3", "[q3dm1]x.dm3", "x [q3dm17].dm3", "[Q3DM17]x.dm3"}) {
        AddDemo(name, DemoKind::Dm3, {.map = "Q3DM17"});
        tab->RefreshDemoList();
        Select(std::string(name).substr(0, std::string(name).size() - 4));
        EXPECT_EQ(MenuEnabled(IDM_mnuDemosRenameMap), std::string(name) != "[q3dm17]x.dm3") << name;
        os.files.Remove(PathOf(name));
    }
}

TEST_F(DemoSelection, SelectingEnablesTheSearch) {
    Use(kQuake2, "baseq2");
    AddDemo("a.dm2", DemoKind::Dm2, {});
    tab->RefreshDemoList();
    form->GetMenu(IDM_mnuDemosSearch).SetEnabled(false);
    Select("a");
    EXPECT_TRUE(MenuEnabled(IDM_mnuDemosSearch));
}

TEST_F(DemoSelection, AVanishedFileShowsNothingAndAsksNothing) {
    Use(kQuake2, "baseq2");
    AddDemo("a.dm2", DemoKind::Dm2, {});
    tab->RefreshDemoList();
    os.files.Remove(PathOf("a.dm2"));
    Select("a");
    EXPECT_EQ(Text(IDC_labDemoSize), "File size: (n/a)");
    EXPECT_EQ(Text(IDC_labDemoDate), "Created: (n/a)");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: (n/a)");
    EXPECT_EQ(Text(IDC_labDemoName), "Name: (n/a)");
    EXPECT_TRUE(tab->SelectedDemo().Unreadable);
    EXPECT_FALSE(tab->SelectedDemo().NotADemo);
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

TEST_F(DemoSelection, ALockedFileShowsItsSizeOnly) {
    Use(kQuake2, "baseq2");
    AddDemo("a.dm2", std::string(1000, 'x'));
    os.files.SetLocked(PathOf("a.dm2"));
    tab->RefreshDemoList();
    Select("a");
    EXPECT_EQ(Text(IDC_labDemoSize), "File size: 1,000 bytes");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: (n/a)");
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

// ---- Without a selection ----

TEST_F(DemoSelection, AfterARebuildNothingIsSelectedAndTheFrameIsGrey) {
    Use(kQuake3, "baseq3");
    AddDemo("a.dm3", DemoKind::Dm3, {});
    tab->RefreshDemoList();
    Select("a");
    tab->RefreshDemoList();
    EXPECT_EQ(tab->SelectedDemo().Item, "");
    EXPECT_EQ(Text(IDC_labDemoVersion), "Q3 Version: (n/a)");
    EXPECT_EQ(Text(IDC_labDemoName), "Name: (n/a)");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: (n/a)");
    EXPECT_EQ(Text(IDC_labDemoSize), "Demo size: (n/a)");
    EXPECT_EQ(Text(IDC_labDemoDate), "Created: (n/a)");
    for (const int id : {IDC_fraDemoProperties, IDC_labDemoVersion, IDC_labDemoName, IDC_labDemoMap,
                         IDC_labDemoSize, IDC_labDemoDate}) {
        EXPECT_FALSE(Enabled(id)) << id;
    }
    os.files.ForgetReads();
    Select("a");
    EXPECT_EQ(os.files.Reads(PathOf("a.dm3")).opens, 1) << "it is read again after a rebuild";
}

TEST_F(DemoSelection, ThePropertiesMakeRoomForTheQuake3Version) {
    tab->ArrangeProperties(true);
    EXPECT_TRUE(form->AnyControl(IDC_labDemoVersion).Visible());
    EXPECT_EQ(form->TopTwips(IDC_labDemoSize), 480);
    EXPECT_EQ(form->TopTwips(IDC_labDemoDate), 705);
    EXPECT_EQ(form->TopTwips(IDC_labDemoName), 930);
    EXPECT_EQ(form->TopTwips(IDC_labDemoMap), 1155);
    tab->ArrangeProperties(false);
    EXPECT_FALSE(form->AnyControl(IDC_labDemoVersion).Visible());
    EXPECT_EQ(form->TopTwips(IDC_labDemoSize), 300);
    EXPECT_EQ(form->TopTwips(IDC_labDemoDate), 565);
    EXPECT_EQ(form->TopTwips(IDC_labDemoName), 845);
    EXPECT_EQ(form->TopTwips(IDC_labDemoMap), 1095);
}

TEST_F(DemoSelection, ASecondRightClickOpensTheMenuOnce) {
    Use(kQuake2, "ctf");
    AddDemo("first.dm2", DemoKind::Dm2, {.map = "q2dm1", .levelName = "First"});
    AddDemo("second.dm2", DemoKind::Dm2, {.map = "q2dm2", .levelName = "Second"});
    tab->RefreshDemoList();
    DuringNextPump([this] { RightClick("second"); });
    RightClick("first");
    EXPECT_EQ(form->Popups().size(), 1U);
    EXPECT_EQ(Selected(), "second");
    EXPECT_EQ(Text(IDC_labDemoName), "Name: Second");
}

// A key held down on a slow machine.
TEST_F(DemoSelection, HoweverManySelectionsNoneIsReadInsideAnother) {
    Use(kQuake2, "ctf");
    for (int demo = 100; demo < 400; ++demo) {
        AddDemo(std::to_string(demo) + ".dm2", DemoKind::Dm2,
                {.map = "q2dm1", .levelName = std::to_string(demo)});
    }
    tab->RefreshDemoList();
    int depth = 0;
    int deepest = 0;
    int next = IndexOf("100");
    os.windows.SetDuringPump([&] {
        deepest = std::max(deepest, ++depth);
        if (next < IndexOf("399")) {
            form->UserSelect(IDC_lstDemos, ++next);
        }
        --depth;
    });
    Select("100");
    EXPECT_EQ(deepest, 1);
    EXPECT_EQ(Selected(), "399");
    EXPECT_EQ(Text(IDC_labDemoName), "Name: 399");
}

}  // namespace
}  // namespace zentar
