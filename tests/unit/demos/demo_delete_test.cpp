// Deleting demos.

#include <gmock/gmock.h>

#include "tests/unit/demos/demos_tab_fixture.h"

namespace zentar {
namespace {

using samples::DemoKind;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kReadOnly =
    "This demo couldn't be deleted due to being set as read-only.\r\n"
    "Would you like me to remove this setting to force the deletion?";

class DemoDelete : public DemosTabTest {
  protected:
    DemoDelete() {
        Use(kQuake2, "baseq2");
        for (const char* name : {"a.dm2", "b.dm2", "c.dm2"}) {
            AddDemo(name, DemoKind::Dm2, {.map = "q2dm1", .levelName = "The Edge"});
        }
        tab->RefreshDemoList();
    }

    void ExpectQuestion(Answer answer) {
        os.windows.Expect(Confirm("Really delete this demo?"), answer);
    }
};

TEST_F(DemoDelete, AsksAndNoKeepsTheDemo) {
    ExpectQuestion(Answer::No);
    Pick("b", IDM_mnuDemosDelete);
    EXPECT_THAT(Names(), ElementsAre("a.dm2", "b.dm2", "c.dm2"));
    EXPECT_EQ(Selected(), "b");
}

TEST_F(DemoDelete, OnYesTheDemoIsGoneFromTheDiskAndTheList) {
    ExpectQuestion(Answer::Yes);
    Pick("b", IDM_mnuDemosDelete);
    EXPECT_THAT(Names(), ElementsAre("a.dm2", "c.dm2"));
    EXPECT_THAT(Listed(), ElementsAre("a", "c"));
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Text(IDC_labDemoName), "Name: (n/a)");
}

TEST_F(DemoDelete, ExpertModeAsksNothing) {
    state.settings.Expert = 1;
    Pick("b", IDM_mnuDemosDelete);
    EXPECT_THAT(Names(), ElementsAre("a.dm2", "c.dm2"));
}

TEST_F(DemoDelete, TheDeleteAndBackspaceKeysDeleteToo) {
    state.settings.Expert = 1;
    PressOn("a", Key::Delete);
    PressOn("c", Key::Backspace);
    EXPECT_THAT(Names(), ElementsAre("b.dm2"));
}

TEST_F(DemoDelete, WithNothingSelectedTheKeyDoesNothing) {
    form->GetListBox(IDC_lstDemos).SetFocus();
    form->UserKey(Key::Delete);
    EXPECT_EQ(Names().size(), 3U);
}

TEST_F(DemoDelete, TheNextDemoIsSelectedAndReadIfSoPreferred) {
    state.settings.Expert = 1;
    state.settings.AutoNextDemo = 1;
    Pick("a", IDM_mnuDemosDelete);
    EXPECT_EQ(Selected(), "b");
    EXPECT_EQ(Text(IDC_labDemoName), "Name: The Edge");
}

TEST_F(DemoDelete, BehindTheLastDemoComesTheOneBeforeIt) {
    state.settings.Expert = 1;
    state.settings.AutoNextDemo = 1;
    Pick("c", IDM_mnuDemosDelete);
    EXPECT_EQ(Selected(), "b");
    Pick("b", IDM_mnuDemosDelete);
    Pick("a", IDM_mnuDemosDelete);
    EXPECT_EQ(Selected(), "");
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_FALSE(Enabled(IDC_lstDemos));
}

TEST_F(DemoDelete, AReadOnlyDemoIsAskedAboutAfterTheQuestionAndInExpertModeToo) {
    os.files.SetReadOnly(PathOf("b.dm2"));
    ExpectQuestion(Answer::Yes);
    os.windows.Expect(ReadOnlyQuestion(kReadOnly), Answer::No);
    Pick("b", IDM_mnuDemosDelete);
    EXPECT_TRUE(os.files.IsReadOnly(PathOf("b.dm2")));
    EXPECT_EQ(Selected(), "b");
    state.settings.Expert = 1;
    os.windows.Expect(ReadOnlyQuestion(kReadOnly), Answer::Yes);
    Pick("b", IDM_mnuDemosDelete);
    EXPECT_THAT(Names(), ElementsAre("a.dm2", "c.dm2"));
}

TEST_F(DemoDelete, ADemoThatSomebodyElseDeletedIsGoneAsWanted) {
    Select("b");
    os.files.Remove(PathOf("b.dm2"));
    state.settings.Expert = 1;
    form->GetListBox(IDC_lstDemos).SetFocus();
    form->UserKey(Key::Delete);
    EXPECT_THAT(Listed(), ElementsAre("a", "c"));
}

TEST_F(DemoDelete, ALockedDemoStaysAndTheUserIsTold) {
    os.files.SetLocked(PathOf("b.dm2"));
    state.settings.Expert = 1;
    os.windows.Expect(
        Failure("This demo couldn't be deleted.\r\n\r\n"
                "The file may be in use, or its folder may be protected."));
    Pick("b", IDM_mnuDemosDelete);
    EXPECT_EQ(Names().size(), 3U);
    EXPECT_EQ(Selected(), "b");
}

TEST_F(DemoDelete, EachQuake3ExtensionIsDeletedForItsOwnEntry) {
    state.settings.Expert = 1;
    UseQuake3Demos();
    Pick("duel ", IDM_mnuDemosDelete);
    EXPECT_THAT(Names(), ElementsAre("duel.dm3", "duel.dm_66"));
    Pick("duel  ", IDM_mnuDemosDelete);
    EXPECT_THAT(Names(), ElementsAre("duel.dm3"));
}

// ---- all listed demos ----

class DeleteAll : public DemoDelete {
  protected:
    void ExpectQuestion(Answer answer) {
        os.windows.Expect(Confirm("Really delete all listed demos?"), answer);
    }
};

TEST_F(DeleteAll, AsksAndNoKeepsThem) {
    ExpectQuestion(Answer::No);
    Pick("", IDM_mnuDemosDeleteAll);
    EXPECT_EQ(Names().size(), 3U);
}

TEST_F(DeleteAll, OnYesAllAreGone) {
    AddDemo("notes.txt", "stay");
    ExpectQuestion(Answer::Yes);
    Pick("", IDM_mnuDemosDeleteAll);
    EXPECT_THAT(Names(), ElementsAre("notes.txt"));
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 0 of 0.");
}

TEST_F(DeleteAll, DemosThatTheFilterHidesStay) {
    AddDemo("d.dm2", DemoKind::Dm2, {.map = "q2dm8", .levelName = "Warehouse"});
    Filter("Warehouse", false);
    EXPECT_THAT(Listed(), ElementsAre("a", "b", "c"));
    state.settings.Expert = 1;
    Pick("", IDM_mnuDemosDeleteAll);
    EXPECT_THAT(Names(), ElementsAre("d.dm2"));
}

TEST_F(DeleteAll, AllThreeQuake3ExtensionsGo) {
    state.settings.Expert = 1;
    UseQuake3Demos();
    Pick("", IDM_mnuDemosDeleteAll);
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(DeleteAll, ADemoWhoseNameEndsInABlankCostsNoOther) {
    state.settings.Expert = 1;
    Use(kQuake3, "baseq3");
    AddDemo("duel .dm3", DemoKind::Dm3, {});
    AddDemo("duel.dm_48", DemoKind::Dm48, {});
    tab->RefreshDemoList();
    EXPECT_THAT(Listed(), ElementsAre("duel "));
    Pick("duel ", IDM_mnuDemosDelete);
    EXPECT_THAT(Names(), ElementsAre("duel .dm3"));
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(DeleteAll, ReadOnlyDemosAreAskedAboutOnce) {
    state.settings.Expert = 1;
    os.files.SetReadOnly(PathOf("a.dm2"));
    os.files.SetReadOnly(PathOf("c.dm2"));
    os.windows.Expect(ReadOnlyQuestion(kReadOnly), Answer::No);
    os.windows.Expect(
        Failure("2 out of 3 demos couldn't be deleted.\r\n\r\n"
                "They may be read-only or in use, or their folder may be protected."));
    Pick("", IDM_mnuDemosDeleteAll);
    EXPECT_THAT(Names(), ElementsAre("a.dm2", "c.dm2"));
    os.windows.Expect(ReadOnlyQuestion(kReadOnly), Answer::Yes);
    Pick("", IDM_mnuDemosDeleteAll);
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(DeleteAll, OneThatIsLockedDoesNotKeepTheOthers) {
    state.settings.Expert = 1;
    os.files.SetLocked(PathOf("b.dm2"));
    os.windows.Expect(
        Failure("1 out of 3 demos couldn't be deleted.\r\n\r\n"
                "They may be read-only or in use, or their folder may be protected."));
    Pick("", IDM_mnuDemosDeleteAll);
    EXPECT_THAT(Listed(), ElementsAre("b"));
}

TEST_F(DeleteAll, OnesThatVanishedMeanwhileAreNothingToTell) {
    state.settings.Expert = 1;
    os.files.Remove(PathOf("b.dm2"));
    Pick("", IDM_mnuDemosDeleteAll);
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(DeleteAll, WhileAnotherModIsBeingShownOnlyWhatIsListedGoes) {
    state.settings.Expert = 1;
    const std::string listed = state.current.DemoFolder;
    const std::string next = "C:\\Games\\Quake2\\ctf\\demos\\";
    os.files.AddFile(next + "a.dm2", "precious");
    state.current.DemoFolder = next;  // the list follows in a moment
    Pick("", IDM_mnuDemosDeleteAll);
    EXPECT_EQ(os.files.Contents(next + "a.dm2"), "precious");
    EXPECT_THAT(Names(listed), IsEmpty());
}

TEST_F(DemoDelete, WhileAnotherModIsBeingShownTheListedDemoGoes) {
    state.settings.Expert = 1;
    const std::string next = "C:\\Games\\Quake2\\ctf\\demos\\";
    os.files.AddFile(next + "a.dm2", "precious");
    state.current.DemoFolder = next;
    Pick("a", IDM_mnuDemosDelete);
    EXPECT_EQ(os.files.Contents(next + "a.dm2"), "precious");
}

}  // namespace
}  // namespace zentar
