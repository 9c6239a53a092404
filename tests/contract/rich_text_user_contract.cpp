// What the user does in boxes of text in many colours.
#include "tests/contract/rich_text_contract.h"

namespace zentar {

TEST_P(RichTextContract, EachTypedCharacterIsAChange) {
    NoteClicks(kRich, "rich");
    ShowMain();
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.SetFocus();
    Events();
    World().Type(Main(), "aßд");
    EXPECT_EQ(box.Content(), Rich({{"aßд", kBlack}}));
    EXPECT_EQ(box.Caret(), 3);
    EXPECT_EQ(Events(), (Noted{"rich change", "rich change", "rich change"}));
    World().Press(Main(), Key::Backspace);
    EXPECT_EQ(box.Text(), "aß");
    EXPECT_EQ(Events(), Noted{"rich change"});
    box.PutCaret(0);
    World().Press(Main(), Key::Delete);
    EXPECT_EQ(box.Text(), "ß");
    EXPECT_EQ(Events(), Noted{"rich change"});
    World().Press(Main(), Key::Backspace);
    EXPECT_EQ(Events(), Noted{});
}

TEST_P(RichTextContract, WhatIsTypedHasTheColourOfTheCharacterBefore) {
    ShowMain();
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.SetContent({{"a", kRed}, {"b", kGreen}});
    World().SelectText(Main(), kRich, 1, 1);
    World().Type(Main(), "1");
    EXPECT_EQ(box.Content(), Rich({{"a1", kRed}, {"b", kGreen}}));
    World().SelectText(Main(), kRich, 3, 3);
    World().Type(Main(), "2");
    EXPECT_EQ(box.Content(), Rich({{"a1", kRed}, {"b2", kGreen}}));
    World().SelectText(Main(), kRich, 0, 0);
    World().Type(Main(), "0");
    EXPECT_EQ(box.Content(), Rich({{"0a1", kRed}, {"b2", kGreen}}));
    World().SelectText(Main(), kRich, 2, 4);
    World().Type(Main(), "-");
    EXPECT_EQ(box.Content(), Rich({{"0a-", kRed}, {"2", kGreen}}));
}

TEST_P(RichTextContract, AColourGivenToNothingIsThatOfWhatIsTypedNext) {
    NoteClicks(kRich, "rich");
    ShowMain();
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.SetFocus();
    Events();
    box.ColourSelection(kRed);
    EXPECT_EQ(Events(), Noted{});
    EXPECT_EQ(box.Content(), (RichText{{}, kRed}));
    box.PutCaret(0);  // where it is
    World().Type(Main(), "ab");
    EXPECT_EQ(box.Content(), Rich({{"ab", kRed}}));
    box.ColourSelection(kGreen);
    EXPECT_EQ(box.Content(), Rich({{"ab", kRed}}));
    World().Type(Main(), "c");
    EXPECT_EQ(box.Content(), Rich({{"ab", kRed}, {"c", kGreen}}));
    box.ColourSelection(kWhite);
    box.PutCaret(1);
    World().Type(Main(), "x");
    EXPECT_EQ(box.Content(), Rich({{"axb", kRed}, {"c", kGreen}}));
}

TEST_P(RichTextContract, AColourMayBeChosenBeforeTheBoxIsSeen) {
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.ColourSelection(kRed);
    EXPECT_EQ(box.Content(), (RichText{{}, kRed}));
    ShowMain();
    box.SetFocus();
    World().Type(Main(), "a");
    EXPECT_EQ(box.Content(), Rich({{"a", kRed}}));
}

TEST_P(RichTextContract, AnEmptiedBoxBeginsInBlackAgain) {
    ShowMain();
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.SetContent({{"ab", kRed}});
    World().SelectText(Main(), kRich, 0, 2);
    World().Press(Main(), Key::Delete);
    EXPECT_EQ(box.Content(), Rich({}));
    World().Type(Main(), "x");
    EXPECT_EQ(box.Content(), Rich({{"x", kBlack}}));
    box.SetContent({{"a", kRed}});
    World().SelectText(Main(), kRich, 1, 1);
    World().Press(Main(), Key::Backspace);
    EXPECT_EQ(box.Content(), Rich({}));
    box.SetContent({{"a", kRed}});
    box.SetText("");
    World().Type(Main(), "x");
    EXPECT_EQ(box.Content(), Rich({{"x", kBlack}}));
}

TEST_P(RichTextContract, ColouringWhatIsSelectedKeepsItSelectedAndTellsNothing) {
    ShowMain();
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.SetText("abcdef");
    NoteClicks(kRich, "rich");
    World().SelectText(Main(), kRich, 1, 3);
    Events();
    box.ColourSelection(kRed);
    EXPECT_EQ(box.Content(), Rich({{"a", kBlack}, {"bc", kRed}, {"def", kBlack}}));
    EXPECT_EQ(box.Caret(), 3);
    box.ColourSelection(kGreen);
    EXPECT_EQ(box.Content(), Rich({{"a", kBlack}, {"bc", kGreen}, {"def", kBlack}}));
    EXPECT_EQ(Events(), Noted{});
    World().Type(Main(), "x");
    EXPECT_EQ(box.Content(), Rich({{"a", kBlack}, {"x", kGreen}, {"def", kBlack}}));
}

TEST_P(RichTextContract, ColouringByTheProgramIsNotTakenForAChangeByTheNextKey) {
    ShowMain();
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.SetText("ab");
    NoteClicks(kRich, "rich");
    World().SelectText(Main(), kRich, 0, 2);
    Events();
    box.ColourSelection(kRed);
    World().SelectText(Main(), kRich, 0, 1);
    World().Type(Main(), "a");
    EXPECT_EQ(box.Content(), Rich({{"ab", kRed}}));
    EXPECT_EQ(Events(), Noted{});
}

TEST_P(RichTextContract, UndoTakesBackTextAndColoursAndIsTold) {
    ShowMain();
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.SetContent({{"ab", kRed}});
    NoteClicks(kRich, "rich");
    World().SelectText(Main(), kRich, 2, 2);
    Events();
    World().Type(Main(), "c");
    EXPECT_EQ(Events(), Noted{"rich change"});
    World().SelectText(Main(), kRich, 0, 1);
    box.ColourSelection(kGreen);
    EXPECT_EQ(box.Content(), Rich({{"a", kGreen}, {"bc", kRed}}));
    World().Undo(Main(), kRich);
    EXPECT_EQ(box.Content(), Rich({{"abc", kRed}}));
    EXPECT_EQ(Events(), Noted{"rich change"});
    World().Undo(Main(), kRich);
    EXPECT_EQ(box.Content(), Rich({{"ab", kRed}}));
    EXPECT_EQ(Events(), Noted{"rich change"});
    World().Undo(Main(), kRich);
    EXPECT_EQ(box.Content(), Rich({{"ab", kRed}}));
    EXPECT_EQ(Events(), Noted{});
}

TEST_P(RichTextContract, PastedTextKeepsItsColoursAndTakesThePlaceOfWhatIsSelected) {
    NoteClicks(kRich, "rich");
    ShowMain();
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.SetContent({{"abcd", kRed}});
    World().SelectText(Main(), kRich, 1, 3);
    Events();
    World().Paste(Main(), kRich, {{"1", kGreen}, {"23", kWhite}});
    const Runs pasted = {{"a", kRed}, {"1", kGreen}, {"23", kWhite}, {"d", kRed}};
    EXPECT_EQ(box.Content(), Rich(pasted));
    EXPECT_EQ(box.Caret(), 4);
    EXPECT_EQ(Events(), Noted{"rich change"});
    World().Undo(Main(), kRich);
    EXPECT_EQ(box.Content(), Rich({{"abcd", kRed}}));
    EXPECT_EQ(Events(), Noted{"rich change"});
    World().SelectText(Main(), kRich, 4, 4);
    World().Paste(Main(), kRich, {{"x", kGreen}});
    World().Type(Main(), "y");
    EXPECT_EQ(box.Content(), Rich({{"abcd", kRed}, {"xy", kGreen}}));
}

TEST_P(RichTextContract, ABoxHoldsSoMuchAndNoMore) {
    RichTextBox& box = Main().GetRichTextBox(kRich);
    // In words: one that long takes half a minute to be laid out.
    std::string most;
    while (most.size() < kMostRichText)
        most += "seven-x ";
    most.resize(kMostRichText);
    const std::string shorter = most.substr(0, most.size() - 2);
    for (int shown = 0; shown < 2; ++shown) {
        box.SetText(most + "y");
        EXPECT_TRUE(box.Text() == most);
        box.SetContent({{"ab", kRed}, {most, kGreen}, {"c", kWhite}});
        EXPECT_TRUE(box.Content() == Rich({{"ab", kRed}, {shorter, kGreen}}));
        ShowMain();
    }
    World().SelectText(Main(), kRich, 0, 2);
    World().Paste(Main(), kRich, {{"123", kWhite}});
    EXPECT_TRUE(box.Content() == Rich({{"12", kWhite}, {shorter, kGreen}}));
    World().Type(Main(), "z");
    EXPECT_TRUE(box.Content() == Rich({{"12", kWhite}, {shorter, kGreen}}));
}

TEST_P(RichTextContract, AChangeProcedureSeesTheNewContentAndMaySetAnother) {
    ShowMain();
    RichTextBox& box = Main().GetRichTextBox(kRich);
    ControlEvents events;
    events.change = [&] {
        const std::string text = box.Text();
        const int caret = box.Caret();
        Note(text);
        Note(std::to_string(caret));
        if (text == "a\"b") {
            box.SetText("a'b");
            box.PutCaret(caret);
        }
    };
    box.SetContent({{"ab", kRed}});
    box.SetEvents(events);
    World().SelectText(Main(), kRich, 1, 1);
    World().Type(Main(), "\"");
    EXPECT_EQ(Events(), (Noted{"a\"b", "2", "a'b", "0"}));
    EXPECT_EQ(box.Content(), Rich({{"a'b", kBlack}}));
    EXPECT_EQ(box.Caret(), 2);
    World().Type(Main(), "x");
    EXPECT_EQ(box.Text(), "a'xb");
}

TEST_P(RichTextContract, KeysAreToldAndUsedUpAsInOtherBoxes) {
    ShowMain();
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.SetText("ab");
    bool use = true;
    ControlEvents events;
    events.keyDown = [&](Key key) {
        Note(NoteOf(key));
        return use;
    };
    box.SetEvents(events);
    World().SelectText(Main(), kRich, 2, 2);
    World().Press(Main(), Key::Backspace);
    EXPECT_EQ(box.Text(), "ab");
    use = false;
    World().Press(Main(), Key::Backspace);
    EXPECT_EQ(box.Text(), "a");
    EXPECT_EQ(Events(), Noted(2, NoteOf(Key::Backspace)));
}

TEST_P(RichTextContract, TheFocusComesByAClickAndGoesWhenTheBoxIsDisabled) {
    NoteClicks(kRich, "rich");
    ShowMain();
    World().Click(Main(), kText);
    Events();
    World().Click(Main(), kRich);
    EXPECT_TRUE(Main().GetRichTextBox(kRich).HasFocus());
    EXPECT_EQ(Events(), Noted{"rich gotFocus"});
    Main().GetRichTextBox(kRich).SetEnabled(false);
    EXPECT_FALSE(Main().GetRichTextBox(kRich).Enabled());
    EXPECT_FALSE(Main().GetRichTextBox(kRich).HasFocus());
    EXPECT_FALSE(World().TakesInput(Main(), kRich));
    Main().GetRichTextBox(kRich).SetEnabled(true);
    EXPECT_TRUE(World().TakesInput(Main(), kRich));
}

}  // namespace zentar
