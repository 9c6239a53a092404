// Where the keyboard goes.
#include "tests/contract/controls_contract.h"

namespace zentar {

TEST_P(FocusContract, TheProgramGivesTheFocusToOneControl) {
    ShowMain();
    Main().GetListBox(kList).SetFocus();
    EXPECT_TRUE(Main().GetListBox(kList).HasFocus());
    Main().GetTextBox(kText).SetFocus();
    EXPECT_TRUE(Main().GetTextBox(kText).HasFocus());
    EXPECT_FALSE(Main().GetListBox(kList).HasFocus());
}

TEST_P(FocusContract, TheFocusGoesToWhatTheUserClicks) {
    ShowMain();
    Main().GetListBox(kList).SetItems({"a"});
    for (const int id : {kText, kCheck, kButton, kOptionB}) {
        World().Click(Main(), id);
        EXPECT_TRUE(Main().AnyControl(id).HasFocus()) << id;
    }
    World().ClickEntry(Main(), kList, 0);
    EXPECT_TRUE(Main().GetListBox(kList).HasFocus());
}

TEST_P(FocusContract, ControlsThatTakeNoInputTakeNoFocus) {
    ShowMain();
    Main().GetTextBox(kText).SetFocus();
    Main().GetFrame(kFrame).SetEnabled(false);
    for (const int id : {kDisabledButton, kHiddenButton, kChild, kOptionE, kButtonTwo}) {
        Main().AnyControl(id).SetFocus();
        EXPECT_FALSE(Main().AnyControl(id).HasFocus()) << id;
    }
    EXPECT_TRUE(Main().GetTextBox(kText).HasFocus());
}

TEST_P(FocusContract, TheKeyboardIsNotDeadAfterTheFocusedControlWasDisabledOrHidden) {
    ShowMain();
    Main().GetTextBox(kText).SetFocus();
    Main().GetTextBox(kText).SetEnabled(false);
    EXPECT_FALSE(Main().GetTextBox(kText).HasFocus());
    EXPECT_TRUE(Main().GetTextBox(kOtherText).HasFocus());
    Main().GetTextBox(kOtherText).SetVisible(false);
    EXPECT_FALSE(Main().GetTextBox(kOtherText).HasFocus());
    EXPECT_TRUE(Main().GetListBox(kList).HasFocus());
    Main().GetCheckBox(kChild).SetFocus();
    Main().GetFrame(kFrame).SetEnabled(false);
    EXPECT_FALSE(Main().GetCheckBox(kChild).HasFocus());
    EXPECT_TRUE(Main().GetTab(kTabs).HasFocus());
}

TEST_P(FocusContract, TheFocusLeavesAPageThatGoesBehind) {
    ShowMain();
    Main().GetButton(kButtonOne).SetFocus();
    EXPECT_TRUE(Main().GetButton(kButtonOne).HasFocus());
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_FALSE(Main().GetButton(kButtonOne).HasFocus());
    EXPECT_TRUE(Main().GetTab(kTabs).HasFocus());
}

TEST_P(FocusContract, AFocusGivenBeforeTheWindowIsShownIsThereAfterwards) {
    Main().GetListBox(kList).SetFocus();
    ShowMain();
    EXPECT_TRUE(Main().GetListBox(kList).HasFocus());
}

TEST_P(FocusContract, AShownWindowHasTheFocusInItsFirstControl) {
    ShowMain();
    EXPECT_TRUE(Main().GetCheckBox(kCheck).HasFocus());
}

TEST_P(FocusContract, EnterPressesTheDefaultButtonUnlessAProcedureUsesItUp) {
    NoteClicks(kDefaultButton, "default");
    ShowMain();
    Main().GetTextBox(kText).SetFocus();
    World().Press(Main(), Key::Enter);
    EXPECT_EQ(Events(), Noted{"default click"});
    ControlEvents events;
    events.keyDown = [&](Key key) {
        Note("key");
        return key == Key::Enter;
    };
    Main().GetTextBox(kText).SetEvents(events);
    World().Press(Main(), Key::Enter);
    EXPECT_EQ(Events(), Noted{"key"});
    Main().GetTextBox(kOtherText).SetFocus();
    Main().GetButton(kDefaultButton).SetEnabled(false);
    World().Press(Main(), Key::Enter);
    EXPECT_EQ(Events(), Noted{});
}

TEST_P(FocusContract, EnterPressesTheButtonThatHasTheFocus) {
    NoteClicks(kDefaultButton, "default");
    NoteClicks(kButton, "button");
    ShowMain();
    Main().GetButton(kButton).SetFocus();
    World().Press(Main(), Key::Enter);
    EXPECT_EQ(Events(), Noted{"button click"});
}

TEST_P(FocusContract, TheWindowGetsTheKeysThatTheControlDoesNotUse) {
    ControlEvents listEvents;
    listEvents.keyDown = [&](Key key) {
        Note("list");
        return key == Key::Delete;
    };
    Main().GetListBox(kList).SetEvents(listEvents);
    FormEvents events;
    events.keyDown = [&](Key key) {
        Note(key == Key::F1 ? "form F1" : "form other");
        return key == Key::F1;
    };
    Main().SetEvents(events);
    ShowMain();
    Main().GetListBox(kList).SetFocus();
    World().Press(Main(), Key::Delete);
    EXPECT_EQ(Events(), Noted{"list"});
    World().Press(Main(), Key::F1);
    EXPECT_EQ(Events(), (Noted{"list", "form F1"}));
    Main().GetCheckBox(kCheck).SetFocus();
    World().Press(Main(), Key::F1);
    World().Press(Main(), Key::F5);
    EXPECT_EQ(Events(), (Noted{"form F1", "form other"}));
}

}  // namespace zentar
