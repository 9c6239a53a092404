// The list, its count, and the filter's controls.
#include <algorithm>

#include "tests/unit/demos/demos_tab_fixture.h"

namespace zentar {
namespace {

using samples::DemoKind;
using Entries = std::vector<std::string>;

const std::vector<int> kFilterControls = {IDC_labDemo1,  IDC_labDemo2,      IDC_optTextYes,
                                          IDC_optTextNo, IDC_txtDemoFilter, IDC_lstDemoFilter,
                                          IDC_cmdFilter};

class DemoFilterTab : public DemosTabTest {
  protected:
    void AddFredAndBob() {
        Use(kQuake2, "baseq2");
        AddDemo("bob.dm2", DemoKind::Dm2, {.chat = {"Bob: hi", "fred? where"}});
        AddDemo("fred.dm2", DemoKind::Dm2, {.chat = {"Fred: hi"}, .size = 300'000});
        tab->RefreshDemoList();
    }
};

TEST_F(DemoFilterTab, AllThreeKindsOfQuake3DemosAreListedAndCounted) {
    Use(kQuake3, "baseq3");
    AddDemo("b.dm_48", "");
    AddDemo("c.dm_66", "");
    AddDemo("a.dm3", "");
    AddDemo("d.dm2", "");
    tab->RefreshDemoList();
    EXPECT_EQ(Listed(), (Entries{"a", "b ", "c  "}));
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 3 of 3.");
    EXPECT_TRUE(Enabled(IDC_lstDemos));
    EXPECT_TRUE(Enabled(IDC_labNumDemos));
    EXPECT_EQ(form->GetListBox(IDC_lstDemos).Background(), SystemColour::Window);
}

TEST_F(DemoFilterTab, AMissingFolderGivesAGreyEmptyList) {
    AddFredAndBob();
    state.current.DemoFolder = "C:\\Games\\Quake2\\gone\\demos\\";
    os.log.Clear();
    tab->RefreshDemoList();
    EXPECT_EQ(Listed(), Entries{});
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 0 of 0.");
    EXPECT_FALSE(Enabled(IDC_lstDemos));
    EXPECT_FALSE(Enabled(IDC_labNumDemos));
    EXPECT_EQ(form->GetListBox(IDC_lstDemos).Background(), SystemColour::ButtonFace);
    EXPECT_FALSE(os.log.Has("Pump"));
}

TEST_F(DemoFilterTab, BeforeAnyGameIsKnownTheListIsEmpty) {
    tab->RefreshDemoList();
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 0 of 0.");
    EXPECT_FALSE(Enabled(IDC_lstDemos));
}

TEST_F(DemoFilterTab, AFileInThePlaceOfTheFolderIsNoFolder) {
    os.files.AddFile("C:\\Games\\Quake2\\odd\\demos", "a file");
    state.settings.Game = "Quake2";
    state.current.DemoExtension = ".dm2";
    state.current.DemoFolder = "C:\\Games\\Quake2\\odd\\demos\\";
    tab->RefreshDemoList();
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 0 of 0.");
}

TEST_F(DemoFilterTab, WhileTheFolderIsScannedTheUserSeesIt) {
    AddFredAndBob();
    Select("fred");
    DuringNextPump([this] {
        EXPECT_EQ(Text(IDC_labNumDemos), "Scanning...");
        EXPECT_TRUE(Enabled(IDC_labNumDemos));
        EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Hourglass);
        EXPECT_EQ(Listed(), Entries{});
        EXPECT_EQ(Text(IDC_labDemoSize), "Demo size: (n/a)");
    });
    tab->RefreshDemoList();
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 2 of 2.");
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

TEST_F(DemoFilterTab, ThePointerIsRestoredBeforeAReselectedDemoIsRead) {
    AddFredAndBob();
    tab->SetPendingReselection("fred");
    tab->RefreshDemoList();
    const std::vector<Pointer> expected = {Pointer::Hourglass, Pointer::Default, Pointer::Hourglass,
                                           Pointer::Default};
    const std::vector<Pointer>& all = os.windows.Pointers();
    EXPECT_EQ(std::vector<Pointer>(all.end() - 4, all.end()), expected);
}

TEST_F(DemoFilterTab, ContainListsTheDemosWithThePhraseInItsCase) {
    AddFredAndBob();
    Filter("Fred");
    EXPECT_EQ(Listed(), Entries{"fred"});
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 1 of 2.");
}

TEST_F(DemoFilterTab, DoNotContainListsTheOthers) {
    AddFredAndBob();
    Filter("Fred", false);
    EXPECT_EQ(Listed(), Entries{"bob"});
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 1 of 2.");
}

TEST_F(DemoFilterTab, APhraseThatNoDemoHasGreysTheListAndKeepsTheTotal) {
    AddFredAndBob();
    Filter("Zoe");
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 0 of 2.");
    EXPECT_FALSE(Enabled(IDC_lstDemos));
    EXPECT_FALSE(Enabled(IDC_labNumDemos));
}

TEST_F(DemoFilterTab, AnEmptyPhraseListsEveryDemo) {
    AddFredAndBob();
    Filter("");
    EXPECT_EQ(Listed(), (Entries{"bob", "fred"}));
}

TEST_F(DemoFilterTab, PhrasesOfGoldenLettersMatchTheirBytes) {
    Use(kQuake1, "id1");
    AddDemo("golden.dem", DemoKind::Dem, {.chat = {"\xC6\xF2\xE5\xE4: hi"}});
    AddDemo("plain.dem", DemoKind::Dem, {.chat = {"Fred: hi"}});
    Filter("Æòåä");
    EXPECT_EQ(Listed(), Entries{"golden"});
}

TEST_F(DemoFilterTab, UnreadableDemosAreSkippedAndCounted) {
    AddFredAndBob();
    os.files.SetLocked(PathOf("fred.dm2"));
    Filter("hi");
    EXPECT_EQ(Listed(), Entries{"bob"});
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 1 of 2.");
}

// ---- Show all ----

TEST_F(DemoFilterTab, ClearingShowAllBringsTheFilterToLife) {
    AddFredAndBob();
    form->GetTextBox(IDC_txtDemoFilter).SetText("Fred");
    form->UserClick(IDC_chkShowAllDemos);
    for (const int id : kFilterControls)
        EXPECT_TRUE(Enabled(id)) << id;
    EXPECT_EQ(form->GetTextBox(IDC_txtDemoFilter).Background(), Colour(SystemColour::Window));
    EXPECT_EQ(form->GetListBox(IDC_lstDemoFilter).Background(), SystemColour::Window);
    EXPECT_EQ(form->FocusedId(), IDC_cmdFilter);
    EXPECT_EQ(Listed(), Entries{"fred"}) << "the filter works at once";
}

TEST_F(DemoFilterTab, TickingShowAllGreysTheFilterAndListsAll) {
    AddFredAndBob();
    Filter("Fred");
    form->UserClick(IDC_chkShowAllDemos);
    for (const int id : kFilterControls)
        EXPECT_FALSE(Enabled(id)) << id;
    EXPECT_EQ(form->GetTextBox(IDC_txtDemoFilter).Background(), Colour(SystemColour::ButtonFace));
    EXPECT_EQ(form->GetListBox(IDC_lstDemoFilter).Background(), SystemColour::ButtonFace);
    EXPECT_EQ(Listed(), (Entries{"bob", "fred"}));
    EXPECT_NE(form->FocusedId(), IDC_cmdFilter);
}

TEST_F(DemoFilterTab, DuringStartUpTheFilterTakesNoFocus) {
    started = false;
    AddFredAndBob();
    form->GetCheckBox(IDC_chkShowAllDemos).SetChecked(false);
    EXPECT_NE(form->FocusedId(), IDC_cmdFilter);
    EXPECT_TRUE(Enabled(IDC_cmdFilter));
}

TEST_F(DemoFilterTab, AToggleInsideATogglesPumpListsByTheNewerState) {
    AddFredAndBob();
    form->GetTextBox(IDC_txtDemoFilter).SetText("Fred");
    DuringNextPump([this] {
        form->UserClick(IDC_chkShowAllDemos);
        Select("bob");
    });
    form->UserClick(IDC_chkShowAllDemos);
    EXPECT_TRUE(Checked(IDC_chkShowAllDemos));
    EXPECT_EQ(Listed(), (Entries{"bob", "fred"}));
    EXPECT_EQ(Selected(), "bob") << "the older rebuild does not come afterwards";
    EXPECT_EQ(tab->SelectedDemo().Item, "bob");
}

// ---- Keys and clicks of the filter ----

TEST_F(DemoFilterTab, EnterInThePhraseBoxApplies) {
    AddFredAndBob();
    Filter("");
    form->UserClick(IDC_txtDemoFilter);
    EXPECT_TRUE(form->AllSelected(IDC_txtDemoFilter)) << "a click selects the phrase whole";
    form->UserType("Bob");
    EXPECT_EQ(Listed(), (Entries{"bob", "fred"})) << "typing alone lists nothing anew";
    form->UserKey(Key::Enter);
    EXPECT_EQ(Listed(), Entries{"bob"});
}

TEST_F(DemoFilterTab, OtherKeysStayWithThePhraseBox) {
    EXPECT_FALSE(tab->txtDemoFilter_KeyDown(Key::Delete));
    EXPECT_FALSE(tab->txtDemoFilter_KeyDown(Key::Backspace));
    EXPECT_FALSE(tab->lstDemoFilter_KeyDown(Key::F5));
}

TEST_F(DemoFilterTab, ADoubleClickedPhraseIsAppliedAtOnce) {
    AddFredAndBob();
    Filter("");
    tab->FillPhraseList(AllGames()[1]);
    AddDemo("jail.dm2", DemoKind::Dm2, {.map = "jail3"});
    const Entries phrases = form->Items(IDC_lstDemoFilter);
    const auto jail = std::find(phrases.begin(), phrases.end(), "jail3");
    form->UserDoubleClick(IDC_lstDemoFilter, static_cast<int>(jail - phrases.begin()));
    EXPECT_EQ(Text(IDC_txtDemoFilter), "jail3");
    EXPECT_EQ(Listed(), Entries{"jail"});
}

TEST_F(DemoFilterTab, EnterOnAPhraseAppliesIt) {
    AddFredAndBob();
    Filter("");
    tab->FillPhraseList(AllGames()[1]);
    form->UserSelect(IDC_lstDemoFilter, "q2dm1");
    EXPECT_EQ(Text(IDC_txtDemoFilter), "") << "selecting alone changes nothing";
    form->UserKey(Key::Enter);
    EXPECT_EQ(Text(IDC_txtDemoFilter), "q2dm1");
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 0 of 2.");
}

TEST_F(DemoFilterTab, EnterWithoutAPhraseChosenChangesNothing) {
    AddFredAndBob();
    Filter("Fred");
    tab->FillPhraseList(AllGames()[1]);
    form->GetListBox(IDC_lstDemoFilter).SetFocus();
    form->UserKey(Key::Enter);
    EXPECT_EQ(Text(IDC_txtDemoFilter), "Fred");
}

TEST_F(DemoFilterTab, EachGameOffersItsMapsInAlphabeticalOrder) {
    tab->FillPhraseList(AllGames()[0]);
    const Entries quake1 = form->Items(IDC_lstDemoFilter);
    EXPECT_EQ(quake1.size(), 46U);
    EXPECT_EQ(quake1.front(), "ctf1");
    EXPECT_EQ(quake1[14], "e1m1");
    EXPECT_EQ(quake1[44], "end");
    EXPECT_EQ(quake1[45], "start");
    tab->FillPhraseList(AllGames()[1]);
    EXPECT_EQ(form->Items(IDC_lstDemoFilter).size(), 60U);
    tab->FillPhraseList(AllGames()[2]);
    const Entries quake3 = form->Items(IDC_lstDemoFilter);
    EXPECT_EQ(quake3.size(), 31U);
    EXPECT_EQ(quake3[0], "g_synchronousClients");
    EXPECT_EQ(quake3[1], "g_syncronousClients");
    EXPECT_EQ(quake3[7], "q3dm1");
    EXPECT_EQ(quake3[8], "q3dm10");
}

// ---- The list's own keys, and what is selected after a rebuild ----

TEST_F(DemoFilterTab, F5ListsTheFolderAnew) {
    AddFredAndBob();
    Select("bob");
    AddDemo("zoe.dm2", DemoKind::Dm2, {});
    form->UserKey(Key::F5);
    EXPECT_EQ(Listed(), (Entries{"bob", "fred", "zoe"}));
    EXPECT_EQ(form->GetListBox(IDC_lstDemos).SelectedIndex(), -1);
}

TEST_F(DemoFilterTab, ThePendingEntryIsSelectedAndReadOnce) {
    AddFredAndBob();
    os.files.ForgetReads();
    tab->SetPendingReselection("fred");
    tab->RefreshDemoList();
    EXPECT_EQ(Selected(), "fred");
    EXPECT_EQ(tab->SelectedDemo().Path, PathOf("fred.dm2"));
    EXPECT_EQ(os.files.TotalOpens(), 1);
    tab->RefreshDemoList();
    EXPECT_EQ(form->GetListBox(IDC_lstDemos).SelectedIndex(), -1) << "once only";
}

TEST_F(DemoFilterTab, APendingEntryThatIsNotThereSelectsNothingLater) {
    AddFredAndBob();
    tab->SetPendingReselection("zoe");
    tab->RefreshDemoList();
    EXPECT_EQ(form->GetListBox(IDC_lstDemos).SelectedIndex(), -1);
    AddDemo("zoe.dm2", DemoKind::Dm2, {});
    tab->RefreshDemoList();
    EXPECT_EQ(form->GetListBox(IDC_lstDemos).SelectedIndex(), -1);
}

TEST_F(DemoFilterTab, OfTwoEntriesTheOneWithTheSameMarkersIsSelected) {
    Use(kQuake3, "baseq3");
    AddDemo("duel.dm3", DemoKind::Dm3, {});
    AddDemo("duel.dm_48", DemoKind::Dm48, {});
    tab->SetPendingReselection("duel ");
    tab->RefreshDemoList();
    EXPECT_EQ(tab->SelectedDemo().Path, PathOf("duel.dm_48"));
}

// ---- Procedures that run inside one another ----

TEST_F(DemoFilterTab, ARebuildInsideARebuildIsTheOneThatCounts) {
    AddFredAndBob();
    DuringNextPump([this] {
        Use(kQuake3, "baseq3");
        AddDemo("q3.dm3", DemoKind::Dm3, {.map = "q3dm1"});
        tab->SetPendingReselection("q3");
        tab->RefreshDemoList();
    });
    tab->RefreshDemoList();
    EXPECT_EQ(Listed(), Entries{"q3"});
    EXPECT_EQ(Selected(), "q3") << "the older rebuild ends without touching the newer's result";
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: q3dm1");
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

TEST_F(DemoFilterTab, AClickInsideAClickIsTheOneThatCounts) {
    Use(kQuake2, "baseq2");
    AddDemo("a.dm2", DemoKind::Dm2, {.map = "base1"});
    AddDemo("b.dm2", DemoKind::Dm2, {.map = "base2"});
    tab->RefreshDemoList();
    os.files.ForgetReads();
    DuringNextPump([this] { Select("b"); });
    Select("a");
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: base2");
    EXPECT_EQ(tab->SelectedDemo().Path, PathOf("b.dm2"));
    EXPECT_EQ(os.files.Reads(PathOf("a.dm2")).opens, 0);
    EXPECT_EQ(os.files.Reads(PathOf("b.dm2")).opens, 1);
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

TEST_F(DemoFilterTab, AClickOnANonDemoInsideAClickAsksOnce) {
    Use(kQuake2, "baseq2");
    AddDemo("a.dm2", DemoKind::Dm2, {});
    AddDemo("text.dm2", samples::MakeTextFile(1000));
    tab->RefreshDemoList();
    DuringNextPump([this] { Select("text"); });
    os.windows.Expect(Offer("Quake2"), Answer::No);
    Select("a");
    EXPECT_EQ(Selected(), "text");
}

TEST_F(DemoFilterTab, ARebuildInsideAClickLeavesNothingSelected) {
    AddFredAndBob();
    DuringNextPump([this] { tab->RefreshDemoList(); });
    Select("fred");
    EXPECT_EQ(form->GetListBox(IDC_lstDemos).SelectedIndex(), -1);
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: (n/a)");
    EXPECT_EQ(Text(IDC_labDemoSize), "Demo size: (n/a)");
    EXPECT_FALSE(tab->SelectedDemo().Unreadable);
    EXPECT_EQ(os.files.Reads(PathOf("fred.dm2")).opens, 0);
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

TEST_F(DemoFilterTab, AGameSwitchInsideAClickDoesNotAskAboutTheOldFile) {
    Use(kQuake2, "baseq2");
    AddDemo("text.dm2", samples::MakeTextFile(1000));
    tab->RefreshDemoList();
    DuringNextPump([this] { Use(kQuake3, "baseq3"); });
    Select("text");  // no question comes
    EXPECT_EQ(tab->SelectedDemo().Item, "");
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 0 of 0.");
}

}  // namespace
}  // namespace zentar
