// Boxes of text in many colours, as the program uses them.
#include "tests/contract/rich_text_contract.h"

namespace zentar {

TEST_P(RichTextContract, ABoxBeginsEmptyAndBlack) {
    RichTextBox& box = Main().GetRichTextBox(kRich);
    for (int shown = 0; shown < 2; ++shown) {
        EXPECT_EQ(box.Content(), Rich({}));
        EXPECT_EQ(box.Text(), "");
        EXPECT_EQ(box.Caret(), 0);
        ShowMain();
    }
}

TEST_P(RichTextContract, ContentThatTheProgramSetsIsToldAlways) {
    NoteClicks(kRich, "rich");
    RichTextBox& box = Main().GetRichTextBox(kRich);
    const Runs runs = {{"Ab", kRed}, {"c", kWhite}, {" d ", kBlack}};
    for (int shown = 0; shown < 2; ++shown) {
        box.SetContent(runs);
        EXPECT_EQ(Events(), Noted{"rich change"});
        EXPECT_EQ(box.Content(), Rich(runs));
        EXPECT_EQ(box.Text(), "Abc d ");
        EXPECT_EQ(box.Caret(), 0);
        box.SetContent(runs);
        EXPECT_EQ(Events(), Noted{"rich change"});
        box.SetContent({});
        EXPECT_EQ(Events(), Noted{"rich change"});
        EXPECT_EQ(box.Content(), Rich({}));
        ShowMain();
        Events();
    }
}

TEST_P(RichTextContract, NeighboursOfOneColourAreOneRun) {
    RichTextBox& box = Main().GetRichTextBox(kRich);
    for (int shown = 0; shown < 2; ++shown) {
        box.SetContent({{"a", kRed}, {"b", kRed}, {"", kGreen}, {"c", kRed}, {"d", kGreen}});
        EXPECT_EQ(box.Content(), Rich({{"abc", kRed}, {"d", kGreen}}));
        ShowMain();
    }
}

TEST_P(RichTextContract, ATextSetByTheProgramIsBlackAndToldWhenItIsAnother) {
    NoteClicks(kRich, "rich");
    RichTextBox& box = Main().GetRichTextBox(kRich);
    for (int shown = 0; shown < 2; ++shown) {
        box.SetText("name");
        EXPECT_EQ(Events(), Noted{"rich change"});
        EXPECT_EQ(box.Content(), Rich({{"name", kBlack}}));
        box.SetText("name");
        EXPECT_EQ(Events(), Noted{});
        box.SetContent({{"name", kRed}});
        Events();
        box.SetText("name");
        EXPECT_EQ(Events(), Noted{"rich change"});
        EXPECT_EQ(box.Content(), Rich({{"name", kBlack}}));
        box.SetText("");
        EXPECT_EQ(Events(), Noted{"rich change"});
        EXPECT_EQ(box.Content(), Rich({}));
        ShowMain();
        Events();
    }
}

TEST_P(RichTextContract, WhatWasSetBeforeTheBoxIsSeenIsThereAfterwards) {
    NoteClicks(kRich, "rich");
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.SetContent({{"ab", kRed}, {"c", kGreen}});
    box.PutCaret(1);
    EXPECT_EQ(box.Caret(), 1);
    box.SetBackground(kOrange);
    Events();
    ShowMain();
    EXPECT_EQ(box.Content(), Rich({{"ab", kRed}, {"c", kGreen}}));
    EXPECT_EQ(box.Caret(), 1);
    EXPECT_EQ(Events(), Noted{});
    box.SetFocus();
    EXPECT_TRUE(box.HasFocus());
    EXPECT_EQ(Events(), Noted{"rich gotFocus"});
    World().Type(Main(), "x");
    EXPECT_EQ(box.Content(), Rich({{"axb", kRed}, {"c", kGreen}}));
    EXPECT_EQ(Events(), Noted{"rich change"});
}

TEST_P(RichTextContract, WhatTheSystemTakesForMarkupIsTextLikeAnyOther) {
    RichTextBox& box = Main().GetRichTextBox(kRich);
    const std::string text = "{\\rtf1\\ansi {\\b x}} \\par \\'e4 {";
    for (int shown = 0; shown < 2; ++shown) {
        box.SetText(text);
        EXPECT_EQ(box.Text(), text);
        ShowMain();
    }
    box.SetText("");
    box.SetFocus();
    World().Type(Main(), text);
    EXPECT_EQ(box.Content(), Rich({{text, kBlack}}));
}

TEST_P(RichTextContract, WhatWouldBreakALineStandsAsABlank) {
    NoteClicks(kDefaultButton, "go");
    RichTextBox& box = Main().GetRichTextBox(kRich);
    for (int shown = 0; shown < 2; ++shown) {
        box.SetText(
            "a\r\nb\nc\rd\te\xE2\x80\xA8"
            "f\x7F"
            "g");
        EXPECT_EQ(box.Text(), "a b c d e f g");
        box.SetContent({{"a\r\n", kRed}, {"\r\nb\r\n", kGreen}});
        EXPECT_EQ(box.Text(), "a  b ");
        ShowMain();
    }
    box.SetText("ab");
    box.SetFocus();
    Events();
    World().Press(Main(), Key::Enter);
    EXPECT_EQ(Events(), Noted{"go click"});
    EXPECT_EQ(box.Text(), "ab");
}

TEST_P(RichTextContract, CharactersOfTwoUnitsOrWithoutWidthSurvive) {
    RichTextBox& box = Main().GetRichTextBox(kRich);
    const std::string bold = "\xF0\x9D\x90\x80";
    const std::string zeroWidth = "\xE2\x80\x8B";
    const std::string byteOrderMark = "\xEF\xBB\xBF";
    const std::string allBytes = "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D\xC2\xA0\xC2\xAD\xC3\xBF";
    const Runs runs = {{bold + zeroWidth, kRed}, {byteOrderMark + bold, kGreen}, {allBytes, kRed}};
    for (int shown = 0; shown < 2; ++shown) {
        box.SetContent(runs);
        EXPECT_EQ(box.Content(), Rich(runs));
        box.PutCaret(6);
        EXPECT_EQ(box.Caret(), 6);
        box.PutCaret(1'000'000);
        EXPECT_EQ(box.Caret(), 14);
        ShowMain();
    }
    World().SelectText(Main(), kRich, 2, 4);
    World().Paste(Main(), kRich, {{bold, kWhite}});
    const Runs pasted = {{bold, kRed}, {bold, kWhite}, {bold, kGreen}, {allBytes, kRed}};
    EXPECT_EQ(box.Content(), Rich(pasted));
    World().Undo(Main(), kRich);
    EXPECT_EQ(box.Content(), Rich(runs));
}

TEST_P(RichTextContract, ABoxThatWasHiddenIsTheSameOneAfterwards) {
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.SetVisible(false);
    EXPECT_FALSE(box.Visible());
    box.SetContent({{"a", kRed}});
    ShowMain();
    EXPECT_FALSE(World().Seen(Main(), kRich));
    box.SetVisible(true);
    EXPECT_TRUE(World().Seen(Main(), kRich));
    EXPECT_EQ(box.Content(), Rich({{"a", kRed}}));
    box.SetVisible(false);
    EXPECT_FALSE(World().Seen(Main(), kRich));
    EXPECT_EQ(box.Content(), Rich({{"a", kRed}}));
}

TEST_P(RichTextContract, TheColoursAreSeenOnTheBackground) {
    RichTextBox& box = Main().GetRichTextBox(kRich);
    box.SetBackground(kOrange);
    ShowMain();
    EXPECT_TRUE(World().Shows(Main(), kRich, kOrange));
    EXPECT_FALSE(World().Shows(Main(), kRich, kRed));
    box.SetContent({{"MM||HH", kRed}, {"HH||MM", kWhite}});
    for (const ColourRef colour : {kOrange, kRed, kWhite})
        EXPECT_TRUE(World().Shows(Main(), kRich, colour)) << colour;
    EXPECT_FALSE(World().Shows(Main(), kRich, kGreen));
    box.SetBackground(kGreen);
    EXPECT_TRUE(World().Shows(Main(), kRich, kGreen));
    EXPECT_FALSE(World().Shows(Main(), kRich, kOrange));
    box.SetEnabled(false);
    EXPECT_FALSE(World().Shows(Main(), kRich, kGreen));
    box.SetEnabled(true);
    EXPECT_TRUE(World().Shows(Main(), kRich, kGreen));
}

}  // namespace zentar
