// Check boxes, option buttons, buttons, tabs, and the frames around them.
#include "tests/contract/controls_contract.h"

namespace zentar {

TEST_P(ButtonsContract, ControlsBeginAsTheTableSays) {
    EXPECT_FALSE(Main().GetCheckBox(kCheck).Checked());
    EXPECT_TRUE(Main().GetCheckBox(kTicked).Checked());
    EXPECT_TRUE(Main().GetOptionButton(kOptionA).Selected());
    EXPECT_FALSE(Main().GetOptionButton(kOptionD).Selected());
    EXPECT_FALSE(Main().GetButton(kDisabledButton).Enabled());
    EXPECT_TRUE(Main().GetButton(kDisabledButton).Visible());
    EXPECT_FALSE(Main().GetButton(kHiddenButton).Visible());
    EXPECT_TRUE(Main().GetButton(kHiddenButton).Enabled());
    EXPECT_EQ(Main().GetLabel(kLabel).Text(), "Total listed: 0 of 0.");
    EXPECT_EQ(Main().GetFrame(kFrame).Text(), "Frame");
    EXPECT_EQ(Main().GetTab(kTabs).SelectedTab(), 0);
    EXPECT_EQ(Main().GetListBox(kList).Background(), SystemColour::Window);
    EXPECT_EQ(Main().GetListBox(kGreyList).Background(), SystemColour::ButtonFace);
    EXPECT_EQ(Main().GetTextBox(kOtherText).Background(), Colour(SystemColour::ButtonFace));
    EXPECT_FALSE(Main().GetTimer(kTimer).Enabled());
    EXPECT_FALSE(World().Shown(Main()));
}

TEST_P(ButtonsContract, ATickByTheProgramRunsTheClickProcedureWhenItChangesSomething) {
    NoteClicks(kCheck, "check");
    CheckBox& check = Main().GetCheckBox(kCheck);
    check.SetChecked(false);
    EXPECT_EQ(Events(), Noted{});
    check.SetChecked(true);
    EXPECT_EQ(Events(), Noted{"check click"});
    EXPECT_TRUE(check.Checked());
    check.SetChecked(true);
    EXPECT_EQ(Events(), Noted{});
    check.SetChecked(false);
    EXPECT_EQ(Events(), Noted{"check click"});
}

TEST_P(ButtonsContract, ATickByTheUserRunsTheClickProcedure) {
    NoteClicks(kCheck, "check");
    ShowMain();
    World().Click(Main(), kCheck);
    EXPECT_EQ(Events(), Noted{"check click"});
    EXPECT_TRUE(Main().GetCheckBox(kCheck).Checked());
    World().Click(Main(), kCheck);
    EXPECT_EQ(Events(), Noted{"check click"});
    EXPECT_FALSE(Main().GetCheckBox(kCheck).Checked());
}

TEST_P(ButtonsContract, AProcedureThatTakesTheTickAwayRunsOnceMore) {
    CheckBox& check = Main().GetCheckBox(kCheck);
    ControlEvents events;
    events.click = [&] {
        Note(check.Checked() ? "ticked" : "cleared");
        check.SetChecked(false);
        Note("done");
    };
    check.SetEvents(events);
    ShowMain();
    World().Click(Main(), kCheck);
    EXPECT_EQ(Events(), (Noted{"ticked", "cleared", "done", "done"}));
    EXPECT_FALSE(check.Checked());
}

TEST_P(ButtonsContract, DisabledAndHiddenControlsStillTellOfChangesByTheProgram) {
    NoteClicks(kChild, "child");
    Main().GetFrame(kFrame).SetEnabled(false);
    Main().GetCheckBox(kChild).SetChecked(true);
    Main().GetFrame(kFrame).SetVisible(false);
    Main().GetCheckBox(kChild).SetChecked(false);
    EXPECT_EQ(Events(), (Noted{"child click", "child click"}));
}

TEST_P(ButtonsContract, SelectingAnOptionByTheProgramClearsTheOthersAndRunsItsProcedureOnly) {
    for (const int id : {kOptionA, kOptionB, kOptionC})
        NoteClicks(id, std::to_string(id));
    OptionButton& b = Main().GetOptionButton(kOptionB);
    b.SetSelected(true);
    EXPECT_EQ(Events(), Noted{std::to_string(kOptionB) + " click"});
    EXPECT_FALSE(Main().GetOptionButton(kOptionA).Selected());
    EXPECT_TRUE(b.Selected());
    b.SetSelected(true);
    EXPECT_EQ(Events(), Noted{});
    b.SetSelected(false);
    EXPECT_EQ(Events(), Noted{});
    EXPECT_FALSE(b.Selected());
    b.SetSelected(true);
    EXPECT_EQ(Events(), Noted{std::to_string(kOptionB) + " click"});
}

TEST_P(ButtonsContract, TheOthersAreClearedBeforeTheProcedureOfTheSelectedOptionRuns) {
    ControlEvents events;
    events.click = [&] {
        Note(Main().GetOptionButton(kOptionA).Selected() ? "A still selected" : "A cleared");
        Note(Main().GetOptionButton(kOptionC).Selected() ? "C selected" : "C not yet selected");
    };
    Main().GetOptionButton(kOptionC).SetEvents(events);
    Main().GetOptionButton(kOptionC).SetSelected(true);
    Main().GetOptionButton(kOptionA).SetSelected(true);
    ShowMain();
    World().Click(Main(), kOptionC);
    EXPECT_EQ(Events(), (Noted{"A cleared", "C selected", "A cleared", "C selected"}));
}

TEST_P(ButtonsContract, OptionsOfAnotherFrameAreAGroupOfTheirOwn) {
    Main().GetOptionButton(kOptionD).SetSelected(true);
    EXPECT_TRUE(Main().GetOptionButton(kOptionA).Selected());
    Main().GetOptionButton(kOptionC).SetSelected(true);
    EXPECT_TRUE(Main().GetOptionButton(kOptionD).Selected());
    EXPECT_FALSE(Main().GetOptionButton(kOptionA).Selected());
    ShowMain();
    World().Click(Main(), kOptionE);
    EXPECT_TRUE(Main().GetOptionButton(kOptionE).Selected());
    EXPECT_FALSE(Main().GetOptionButton(kOptionD).Selected());
    EXPECT_TRUE(Main().GetOptionButton(kOptionC).Selected());
}

TEST_P(ButtonsContract, AnOptionThatTheUserSelectsAgainRunsNothing) {
    for (const int id : {kOptionA, kOptionB})
        NoteClicks(id, std::to_string(id));
    ShowMain();
    World().Click(Main(), kOptionB);
    EXPECT_EQ(Events(), Noted{std::to_string(kOptionB) + " click"});
    EXPECT_FALSE(Main().GetOptionButton(kOptionA).Selected());
    World().Click(Main(), kOptionB);
    EXPECT_EQ(Events(), Noted{});
    World().Click(Main(), kOptionA);
    EXPECT_EQ(Events(), Noted{std::to_string(kOptionA) + " click"});
}

TEST_P(ButtonsContract, AnOptionSelectedAgainByItsOwnClearedProcedureDoesNotLoop) {
    OptionButton& a = Main().GetOptionButton(kOptionA);
    ControlEvents events;
    events.click = [&] {
        Note("B");
        a.SetSelected(true);
    };
    Main().GetOptionButton(kOptionB).SetEvents(events);
    NoteClicks(kOptionA, "A");
    Main().GetOptionButton(kOptionB).SetSelected(true);
    EXPECT_EQ(Events(), (Noted{"B", "A click"}));
    EXPECT_TRUE(a.Selected());
    EXPECT_FALSE(Main().GetOptionButton(kOptionB).Selected());
}

TEST_P(ButtonsContract, AButtonRunsItsProcedureOnEachClick) {
    NoteClicks(kButton, "button");
    ShowMain();
    World().Click(Main(), kButton);
    World().Click(Main(), kButton);
    EXPECT_EQ(Events(), (Noted{"button click", "button click"}));
    Main().GetButton(kButton).SetText("Unavailable");
    EXPECT_EQ(Main().GetButton(kButton).Text(), "Unavailable");
    EXPECT_EQ(Events(), Noted{});
}

TEST_P(ButtonsContract, AProcedureMayReplaceItselfWhileItRuns) {
    ControlEvents events;
    const std::string second = "second";
    events.click = [&, second] {
        NoteClicks(kButton, second);
        Note("first");
    };
    Main().GetButton(kButton).SetEvents(events);
    ShowMain();
    World().Click(Main(), kButton);
    World().Click(Main(), kButton);
    EXPECT_EQ(Events(), (Noted{"first", "second click"}));
}

TEST_P(ButtonsContract, ADisabledFrameKeepsTheUserFromItsControls) {
    ShowMain();
    EXPECT_TRUE(World().TakesInput(Main(), kChild));
    EXPECT_TRUE(World().TakesInput(Main(), kOptionE));
    Main().GetFrame(kFrame).SetEnabled(false);
    EXPECT_FALSE(World().TakesInput(Main(), kChild));
    EXPECT_FALSE(World().TakesInput(Main(), kOptionE));
    EXPECT_TRUE(Main().GetCheckBox(kChild).Enabled());
    EXPECT_TRUE(World().Seen(Main(), kChild));
    Main().GetFrame(kFrame).SetEnabled(true);
    EXPECT_TRUE(World().TakesInput(Main(), kChild));
    Main().GetCheckBox(kChild).SetEnabled(false);
    EXPECT_FALSE(World().TakesInput(Main(), kChild));
    EXPECT_FALSE(World().TakesInput(Main(), kDisabledButton));
}

TEST_P(ButtonsContract, AHiddenFrameHidesItsControls) {
    ShowMain();
    EXPECT_TRUE(World().Seen(Main(), kOptionD));
    EXPECT_FALSE(World().Seen(Main(), kHiddenButton));
    Main().GetFrame(kFrame).SetVisible(false);
    EXPECT_FALSE(World().Seen(Main(), kOptionD));
    EXPECT_TRUE(Main().GetOptionButton(kOptionD).Visible());
    Main().GetFrame(kFrame).SetVisible(true);
    Main().GetButton(kHiddenButton).SetVisible(true);
    EXPECT_TRUE(World().Seen(Main(), kOptionD));
    EXPECT_TRUE(World().Seen(Main(), kHiddenButton));
}

TEST_P(ButtonsContract, ATabThatComesToTheFrontTellsOnceAndShowsItsPage) {
    NoteClicks(kTabs, "tabs");
    ShowMain();
    EXPECT_TRUE(World().Seen(Main(), kButtonOne));
    EXPECT_FALSE(World().Seen(Main(), kButtonTwo));
    TabControl& tabs = Main().GetTab(kTabs);
    tabs.SelectTab(0);
    EXPECT_EQ(Events(), Noted{});
    tabs.SelectTab(1);
    EXPECT_EQ(Events(), Noted{"tabs click"});
    EXPECT_EQ(tabs.SelectedTab(), 1);
    EXPECT_FALSE(World().Seen(Main(), kButtonOne));
    EXPECT_TRUE(World().Seen(Main(), kButtonTwo));
    World().ClickTab(Main(), kTabs, 0);
    EXPECT_EQ(Events(), Noted{"tabs click"});
    EXPECT_TRUE(World().Seen(Main(), kButtonOne));
    World().ClickTab(Main(), kTabs, 0);
    EXPECT_EQ(Events(), Noted{});
}

TEST_P(ButtonsContract, AControlOnAPageBehindKeepsWhatTheProgramSaysOfIt) {
    ShowMain();
    Main().GetButton(kButtonTwo).SetVisible(false);
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_FALSE(World().Seen(Main(), kButtonTwo));
    Main().GetTab(kTabs).SelectTab(0);
    Main().GetButton(kButtonTwo).SetVisible(true);
    EXPECT_TRUE(Main().GetButton(kButtonTwo).Visible());
    EXPECT_FALSE(World().Seen(Main(), kButtonTwo));
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_TRUE(World().Seen(Main(), kButtonTwo));
}

TEST_P(ButtonsContract, LabelsShowAnyTextAndMove) {
    Label& label = Main().GetLabel(kLabel);
    for (const char* text : {"Total listed: 12 of 40.", "", "Größe: дуэль \xF0\x9F\x98\x80",
                             "a & b", " two  blanks "}) {
        label.SetText(text);
        EXPECT_EQ(label.Text(), text);
    }
    for (const int twips : {480, 705, 930, 1155, 300}) {
        label.SetTop(twips);
        EXPECT_EQ(World().TopTwips(Main(), kLabel), twips);
    }
}

}  // namespace zentar
