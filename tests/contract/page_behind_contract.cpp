// The controls of a tab page that has not been in front yet: the program makes something of them,
// and the user finds it when the page comes to the front.
#include "tests/contract/controls_contract.h"

namespace zentar {
namespace {

using Strings = std::vector<std::string>;

Strings ItemsOf(const ListBox& list) {
    Strings items;
    for (int i = 0; i < list.Count(); ++i)
        items.push_back(list.Item(i));
    return items;
}

}  // namespace

TEST_P(PageBehindContract, TextsAreKept) {
    const std::string name =
        "Gr\xC3\xB6\xC3\x9F"
        "e & \xF0\x9F\x98\x80";
    const auto check = [&](bool isNew) {
        EXPECT_EQ(Main().GetTextBox(kBehindText).Text(), isNew ? name : "text");
        EXPECT_EQ(Main().GetButton(kButtonTwo).Text(), isNew ? name : "Second");
        EXPECT_EQ(Main().GetFrame(kBehindFrame).Text(), isNew ? name : "Frame");
        EXPECT_EQ(Main().GetLabel(kBehindLabel).Text(), isNew ? name : "Label");
    };
    check(false);
    for (const int id : {kBehindText, kButtonTwo, kBehindFrame, kBehindLabel})
        Main().AnyControl(id).SetText(name);
    Main().GetTextBox(kBehindText).PutCaretFirst();
    check(true);
    ShowMain();
    Main().GetTab(kTabs).SelectTab(1);
    check(true);
    EXPECT_TRUE(World().Seen(Main(), kBehindText));
}

TEST_P(PageBehindContract, ATextThatIsSetTellsOfTheChange) {
    ControlEvents events;
    events.change = [this] { Note(Main().GetTextBox(kBehindText).Text()); };
    Main().GetTextBox(kBehindText).SetEvents(events);
    Main().GetTextBox(kBehindText).SetText("text");
    EXPECT_EQ(Events(), Noted{});
    Main().GetTextBox(kBehindText).SetText("other");
    EXPECT_EQ(Events(), Noted{"other"});
    ShowMain();
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_EQ(Events(), Noted{});
    Main().GetTextBox(kBehindText).SetText("third");
    EXPECT_EQ(Events(), Noted{"third"});
}

TEST_P(PageBehindContract, TicksAndOptionsAreKeptAndTellOnce) {
    NoteClicks(kBehindCheck, "check");
    NoteClicks(kBehindOptionA, "A");
    NoteClicks(kBehindOptionB, "B");
    EXPECT_TRUE(Main().GetCheckBox(kBehindCheck).Checked());
    EXPECT_TRUE(Main().GetOptionButton(kBehindOptionA).Selected());
    Main().GetCheckBox(kBehindCheck).SetChecked(true);
    Main().GetOptionButton(kBehindOptionA).SetSelected(true);
    EXPECT_EQ(Events(), Noted{});
    Main().GetCheckBox(kBehindCheck).SetChecked(false);
    Main().GetOptionButton(kBehindOptionB).SetSelected(true);
    EXPECT_EQ(Events(), (Noted{"check click", "B click"}));
    for (int round = 0; round < 2; ++round) {
        EXPECT_FALSE(Main().GetCheckBox(kBehindCheck).Checked());
        EXPECT_FALSE(Main().GetOptionButton(kBehindOptionA).Selected());
        EXPECT_TRUE(Main().GetOptionButton(kBehindOptionB).Selected());
        ShowMain();
        Main().GetTab(kTabs).SelectTab(1);
    }
    EXPECT_EQ(Events(), Noted{});
    World().Click(Main(), kBehindOptionA);
    World().Click(Main(), kBehindCheck);
    EXPECT_EQ(Events(), (Noted{"A click", "check click"}));
    EXPECT_FALSE(Main().GetOptionButton(kBehindOptionB).Selected());
}

TEST_P(PageBehindContract, AClearedOptionLeavesNoneSelected) {
    Main().GetOptionButton(kBehindOptionA).SetSelected(false);
    for (int round = 0; round < 2; ++round) {
        EXPECT_FALSE(Main().GetOptionButton(kBehindOptionA).Selected());
        EXPECT_FALSE(Main().GetOptionButton(kBehindOptionB).Selected());
        ShowMain();
        Main().GetTab(kTabs).SelectTab(1);
    }
}

TEST_P(PageBehindContract, AListKeepsItsEntriesAndWhatIsSelected) {
    NoteClicks(kBehindList, "list");
    ListBox& list = Main().GetListBox(kBehindList);
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.SelectedIndex(), -1);
    list.SetItems({"x"});
    list.Select(0);
    EXPECT_EQ(Events(), Noted{"list click"});
    list.UpdateItems({"b", "", "a"});
    EXPECT_EQ(list.SelectedIndex(), -1);
    EXPECT_EQ(Events(), Noted{});
    list.Select(2);
    list.Select(2);
    EXPECT_EQ(Events(), Noted{"list click"});
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(ItemsOf(list), (Strings{"b", "", "a"}));
        EXPECT_EQ(list.SelectedIndex(), 2);
        ShowMain();
        Main().GetTab(kTabs).SelectTab(1);
    }
    EXPECT_EQ(Events(), Noted{});
    World().ClickEntry(Main(), kBehindList, 2);
    EXPECT_EQ(Events(), Noted{});
    World().ClickEntry(Main(), kBehindList, 0);
    EXPECT_EQ(Events(), Noted{"list click"});
}

TEST_P(PageBehindContract, AListMayBeClearedAndLeftUnselected) {
    ListBox& list = Main().GetListBox(kBehindList);
    list.SetItems({"a", "b"});
    list.Select(1);
    list.Select(-1);
    EXPECT_EQ(list.SelectedIndex(), -1);
    ShowMain();
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_EQ(list.SelectedIndex(), -1);
    EXPECT_EQ(ItemsOf(list), (Strings{"a", "b"}));
    list.SetItems({});
    EXPECT_EQ(list.Count(), 0);
}

TEST_P(PageBehindContract, StatesPlacesAndTooltipsAreKept) {
    Main().GetButton(kButtonTwo).SetEnabled(false);
    Main().GetButton(kButtonTwo).SetTooltip("Later.");
    Main().GetCheckBox(kBehindCheck).SetVisible(false);
    Main().GetTextBox(kBehindText).SetTop(750);
    Main().GetFrame(kBehindFrame).SetEnabled(false);
    EXPECT_FALSE(Main().GetButton(kButtonTwo).Enabled());
    EXPECT_FALSE(Main().GetCheckBox(kBehindCheck).Visible());
    ShowMain();
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_FALSE(World().TakesInput(Main(), kButtonTwo));
    EXPECT_EQ(World().Tooltip(Main(), kButtonTwo), "Later.");
    EXPECT_FALSE(World().Seen(Main(), kBehindCheck));
    EXPECT_EQ(World().TopTwips(Main(), kBehindText), 750);
    EXPECT_FALSE(World().TakesInput(Main(), kBehindLabel));
    EXPECT_TRUE(World().TakesInput(Main(), kBehindOptionA));
    Main().GetButton(kButtonTwo).SetEnabled(true);
    Main().GetCheckBox(kBehindCheck).SetVisible(true);
    EXPECT_TRUE(World().TakesInput(Main(), kButtonTwo));
    EXPECT_TRUE(World().Seen(Main(), kBehindCheck));
}

TEST_P(PageBehindContract, ColoursAreKept) {
    constexpr ColourRef kOrange = 0x0080FF;
    Main().GetTextBox(kBehindText).SetBackground(kOrange);
    Main().GetListBox(kBehindList).SetBackground(SystemColour::ButtonFace);
    ShowMain();
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_EQ(Main().GetTextBox(kBehindText).Background(), Colour(kOrange));
    EXPECT_TRUE(World().Shows(Main(), kBehindText, kOrange));
    EXPECT_EQ(Main().GetListBox(kBehindList).Background(), SystemColour::ButtonFace);
}

TEST_P(PageBehindContract, PicturesAndRichTextAreKept) {
    const BitmapPtr image = World().MakeBitmap({8, 8});
    const std::vector<ColouredRun> runs = {{"red", 0x0000FF}, {"green", 0x00FF00}};
    ControlEvents events;
    events.change = [this] { Note("changed"); };
    Main().GetImageBox(kBehindImage).SetImage(image);
    Main().GetRichTextBox(kBehindRich).SetEvents(events);
    Main().GetRichTextBox(kBehindRich).SetContent(runs);
    Main().GetRichTextBox(kBehindRich).PutCaret(4);
    EXPECT_EQ(Events(), Noted{"changed"});
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(Main().GetImageBox(kBehindImage).Image(), image);
        EXPECT_EQ(Main().GetRichTextBox(kBehindRich).Content().runs, runs);
        EXPECT_EQ(Main().GetRichTextBox(kBehindRich).Caret(), 4);
        ShowMain();
        Main().GetTab(kTabs).SelectTab(1);
    }
    EXPECT_EQ(Events(), Noted{});
}

TEST_P(PageBehindContract, APictureIsThereAndGreyInADisabledFrame) {
    ShowMain();
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_FALSE(World().ShownGrey(Main(), kBehindPicture));
    Main().GetFrame(kBehindFrame).SetEnabled(false);
    EXPECT_TRUE(World().ShownGrey(Main(), kBehindPicture));
}

TEST_P(PageBehindContract, APictureOfAFrameThatWasDisabledBeforeIsGrey) {
    Main().GetFrame(kBehindFrame).SetEnabled(false);
    ShowMain();
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_TRUE(World().ShownGrey(Main(), kBehindPicture));
}

TEST_P(PageBehindContract, AColourButtonShowsItsColour) {
    ShowMain();
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_TRUE(World().Shows(Main(), kBehindColour, 0x123456));
    EXPECT_FALSE(World().Shows(Main(), kBehindColour, 0x563412));
    EXPECT_FALSE(World().Shows(Main(), kButtonTwo, 0x123456));
}

TEST_P(PageBehindContract, RichTextHasItsColoursAndBackground) {
    constexpr ColourRef kOrange = 0x0080FF;
    Main().GetRichTextBox(kBehindRich).SetBackground(kOrange);
    Main().GetRichTextBox(kBehindRich).SetContent({{"MMMM", 0xFF0000}});
    ShowMain();
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_TRUE(World().Shows(Main(), kBehindRich, kOrange));
    EXPECT_TRUE(World().Shows(Main(), kBehindRich, 0xFF0000));
}

TEST_P(PageBehindContract, TooltipsOfTheTableAreThereUnlessTheyWereTakenAway) {
    Main().GetButton(kButtonThree).SetTooltip("Third.");
    ShowMain();
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_EQ(World().Tooltip(Main(), kBehindCheck), "Tick here.");
    Main().GetTab(kTabs).SelectTab(2);
    EXPECT_EQ(World().Tooltip(Main(), kButtonThree), "Third.");
}

TEST_P(PageBehindContract, ATooltipThatWasTakenAwayIsNotThere) {
    Main().GetCheckBox(kBehindCheck).SetTooltip("");
    ShowMain();
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_EQ(World().Tooltip(Main(), kBehindCheck), "");
}

TEST_P(PageBehindContract, NothingThereTakesTheFocus) {
    ShowMain();
    Main().GetTextBox(kBehindText).SetFocus();
    EXPECT_FALSE(Main().GetTextBox(kBehindText).HasFocus());
    EXPECT_TRUE(Main().GetCheckBox(kCheck).HasFocus());
    Main().GetTab(kTabs).SelectTab(1);
    Main().GetTextBox(kBehindText).SetFocus();
    EXPECT_TRUE(Main().GetTextBox(kBehindText).HasFocus());
}

TEST_P(PageBehindContract, ColouringRichTextThereWorks) {
    Main().GetRichTextBox(kBehindRich).SetContent({{"abc", 0x0000FF}});
    Main().GetRichTextBox(kBehindRich).ColourSelection(0x00FF00);
    EXPECT_EQ(Main().GetRichTextBox(kBehindRich).Text(), "abc");
    ShowMain();
    EXPECT_FALSE(World().Seen(Main(), kBehindRich));
    EXPECT_FALSE(World().Seen(Main(), kButtonTwo));
    Main().GetTab(kTabs).SelectTab(1);
    EXPECT_TRUE(World().Seen(Main(), kBehindRich));
    EXPECT_TRUE(World().Seen(Main(), kButtonTwo));
}

}  // namespace zentar
