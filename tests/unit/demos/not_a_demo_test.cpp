#include "demos/demo_messages.h"
#include "tests/unit/demos/demos_tab_fixture.h"

namespace zentar {
namespace {

using samples::DemoKind;
using Entries = std::vector<std::string>;

class NotADemo : public DemosTabTest {
  protected:
    NotADemo() {
        Use(kQuake2, "baseq2");
        AddDemo("duel.dm2", DemoKind::Dm2, {.map = "q2dm1"});
        AddDemo("text.dm2", samples::MakeTextFile(1000));
        tab->RefreshDemoList();
    }
    // Selects text.dm2; the user answers No.
    void SelectAndDecline() {
        os.windows.Expect(Offer("Quake2"), Answer::No);
        Select("text");
        os.windows.Verify();
    }
};

TEST_F(NotADemo, TheMessageNamesTheGame) {
    for (const std::string_view game : {kQuake1, kQuake2, kQuake3}) {
        EXPECT_EQ(messages::OfferNotADemoRename(game), Offer(std::string(game)));
    }
}

TEST_F(NotADemo, NoChangesNothing) {
    SelectAndDecline();
    EXPECT_EQ(Listed(), (Entries{"duel", "text"}));
    EXPECT_EQ(Selected(), "text");
    EXPECT_TRUE(tab->SelectedDemo().NotADemo);
    EXPECT_EQ(Text(IDC_labDemoSize), "File size: 1,000 bytes");
    EXPECT_TRUE(Text(IDC_labDemoDate).starts_with("Created: 20"));
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: (n/a)");
    EXPECT_EQ(Text(IDC_labDemoName), "Name: (n/a)");
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
    EXPECT_TRUE(os.files.Exists(PathOf("text.dm2")));
}

TEST_F(NotADemo, YesAddsAnExclamationMarkAndTheFileLeavesTheList) {
    os.windows.Expect(Offer("Quake2"), Answer::Yes);
    Select("text");
    EXPECT_EQ(os.files.Names(state.current.DemoFolder), (Entries{"duel.dm2", "text.dm2!"}));
    EXPECT_EQ(os.files.Contents(PathOf("text.dm2!")), samples::MakeTextFile(1000));
    EXPECT_EQ(Listed(), Entries{"duel"});
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 1 of 1.");
    EXPECT_EQ(tab->SelectedDemo().Item, "");
    EXPECT_EQ(Text(IDC_labDemoSize), "Demo size: (n/a)");
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

TEST_F(NotADemo, TheFileIsClosedAndThePointerRestoredBeforeTheQuestion) {
    os.windows.Expect(Offer("Quake2"), Answer::No, [this] {
        EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
        EXPECT_TRUE(os.files.Rename(PathOf("text.dm2"), PathOf("text2.dm2")).Ok());
    });
    Select("text");
}

TEST_F(NotADemo, AReadOnlyFileIsRenamedTheSame) {
    os.files.SetReadOnly(PathOf("text.dm2"));
    os.windows.Expect(Offer("Quake2"), Answer::Yes);
    Select("text");
    EXPECT_TRUE(os.files.Exists(PathOf("text.dm2!")));
    EXPECT_TRUE(os.files.IsReadOnly(PathOf("text.dm2!")));
}

TEST_F(NotADemo, ARefusedRenameLosesNothingAndSaysSo) {
    os.files.AddFile(PathOf("text.dm2!"), "an earlier one");
    const auto before = os.files.AllFiles();
    os.windows.Expect(Offer("Quake2"), Answer::Yes);
    os.windows.Expect({"Error",
                       "The selected file couldn't be renamed.\r\n\r\nThere already is a file of "
                       "that name with an \"!\" after its extension.",
                       MessageIcon::Exclamation, MessageButtons::Ok, DefaultButton::First});
    Select("text");
    EXPECT_EQ(os.files.AllFiles(), before);
    EXPECT_EQ(Selected(), "text");
    EXPECT_TRUE(tab->SelectedDemo().NotADemo);
}

TEST_F(NotADemo, InAProtectedFolderTheListStaysAsItIs) {
    os.files.SetWritingDenied(state.current.DemoFolder);
    const auto before = os.files.AllFiles();
    os.windows.Expect(Offer("Quake2"), Answer::Yes);
    os.windows.Expect(
        Failure("The selected file couldn't be renamed.\r\n\r\n"
                "The file may be in use, or its folder may be protected."));
    Select("text");
    EXPECT_EQ(os.files.AllFiles(), before);
    EXPECT_EQ(Selected(), "text");
}

TEST_F(NotADemo, AFileThatVanishedMeanwhileIsToldOfAndLeavesTheList) {
    os.windows.Expect(Offer("Quake2"), Answer::Yes,
                      [this] { os.files.Remove(PathOf("text.dm2")); });
    os.windows.Expect(Failure("This demo is no longer in its folder."));
    Select("text");
    EXPECT_EQ(Listed(), Entries{"duel"});
    EXPECT_EQ(Selected(), "");
}

TEST_F(NotADemo, TheFileOfTheQuestionIsRenamedWhateverWasSelectedMeanwhile) {
    os.windows.Expect(Offer("Quake2"), Answer::Yes, [this] { Select("duel"); });
    Select("text");
    EXPECT_EQ(os.files.Names(state.current.DemoFolder), (Entries{"duel.dm2", "text.dm2!"}));
}

TEST_F(NotADemo, EnterShowsTheQuestionAgain) {
    SelectAndDecline();
    os.windows.Expect(Offer("Quake2"), Answer::Yes);
    form->UserKey(Key::Enter);
    EXPECT_TRUE(os.files.Exists(PathOf("text.dm2!")));
    os.windows.Verify();
    form->UserKey(Key::Enter);  // nothing is selected any more: no question
}

TEST_F(NotADemo, TheNextDemoIsOneAgain) {
    SelectAndDecline();
    Select("duel");
    EXPECT_FALSE(tab->SelectedDemo().NotADemo);
    EXPECT_EQ(Text(IDC_labDemoMap), "Map: q2dm1");
    os.windows.Expect(Confirm("Really start Quake2 and play this demo?"), Answer::No);
    form->UserKey(Key::Enter);
}

TEST_F(NotADemo, AQuake3FileThatIsNoneLeavesTheGenerationAsItWas) {
    Use(kQuake3, "baseq3");
    AddDemo("a.dm_48", DemoKind::Dm48, {});
    AddDemo("text.dm3", "text");
    tab->RefreshDemoList();
    Select("a ");
    os.windows.Expect(Offer("Quake3"), Answer::No);
    Select("text");
    EXPECT_EQ(state.generation, Q3Generation::V127h);
    EXPECT_EQ(Text(IDC_labDemoVersion), "Q3 Version: (n/a)");
}

TEST_F(NotADemo, AQuake1FileIsAskedAboutByItsGame) {
    Use(kQuake1, "id1");
    AddDemo("text.dem", "text");
    tab->RefreshDemoList();
    os.windows.Expect(Offer("Quake1"), Answer::No);
    Select("text");
}

}  // namespace
}  // namespace zentar
