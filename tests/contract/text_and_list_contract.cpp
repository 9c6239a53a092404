// Text boxes and lists.
#include "tests/contract/controls_contract.h"

namespace zentar {
namespace {

const std::vector<std::string> kDemos = {"ctf one", "duel ", "Größe", "дуэль"};

}  // namespace

TEST_P(TextAndListContract, ATextSetByTheProgramRunsTheChangeProcedureWhenItIsAnother) {
    NoteClicks(kText, "text");
    TextBox& text = Main().GetTextBox(kText);
    text.SetText("");
    EXPECT_EQ(Events(), Noted{});
    text.SetText("phrase");
    EXPECT_EQ(Events(), Noted{"text change"});
    text.SetText("phrase");
    EXPECT_EQ(Events(), Noted{});
    text.SetText("Phrase");
    EXPECT_EQ(Events(), Noted{"text change"});
    text.SetText("");
    EXPECT_EQ(Events(), Noted{"text change"});
}

TEST_P(TextAndListContract, AChangeProcedureSeesTheNewTextAndMaySetAnother) {
    TextBox& text = Main().GetTextBox(kText);
    ControlEvents events;
    events.change = [&] {
        Note(text.Text());
        text.SetText("settled");
    };
    text.SetEvents(events);
    text.SetText("first");
    EXPECT_EQ(Events(), (Noted{"first", "settled"}));
    EXPECT_EQ(text.Text(), "settled");
}

TEST_P(TextAndListContract, EachTypedCharacterIsAChange) {
    NoteClicks(kText, "text");
    ShowMain();
    Main().GetTextBox(kText).SetFocus();
    Events();
    World().Type(Main(), "aßд");
    EXPECT_EQ(Main().GetTextBox(kText).Text(), "aßд");
    EXPECT_EQ(Events(), (Noted{"text change", "text change", "text change"}));
    World().Press(Main(), Key::Backspace);
    EXPECT_EQ(Main().GetTextBox(kText).Text(), "aß");
    EXPECT_EQ(Events(), Noted{"text change"});
}

TEST_P(TextAndListContract, TypingReplacesASelectedText) {
    ShowMain();
    TextBox& text = Main().GetTextBox(kText);
    text.SetText("old");
    text.SetFocus();
    text.SelectAll();
    World().Type(Main(), "n");
    EXPECT_EQ(text.Text(), "n");
    text.SelectAll();
    World().Press(Main(), Key::Delete);
    EXPECT_EQ(text.Text(), "");
}

TEST_P(TextAndListContract, TextsOfEveryKindComeBackAsTheyWereSet) {
    TextBox& text = Main().GetTextBox(kText);
    const std::string everyByteAsACharacter = "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D\xC3\xBF";
    const std::string mathematicalBold = "\xF0\x9D\x90\x80";
    for (const std::string& value : {std::string("  blanks  "), everyByteAsACharacter,
                                     mathematicalBold, std::string(40'000, 'x')}) {
        text.SetText(value);
        EXPECT_EQ(text.Text(), value);
    }
}

TEST_P(TextAndListContract, AKeyThatAProcedureUsedUpDoesNothingToTheText) {
    ShowMain();
    TextBox& text = Main().GetTextBox(kText);
    bool use = true;
    ControlEvents events;
    events.keyDown = [&](Key key) {
        Note(NoteOf(key));
        return use;
    };
    text.SetEvents(events);
    text.SetFocus();
    World().Type(Main(), "ab");
    World().Press(Main(), Key::Backspace);
    EXPECT_EQ(text.Text(), "ab");
    use = false;
    World().Press(Main(), Key::Backspace);
    EXPECT_EQ(text.Text(), "a");
    EXPECT_EQ(Events(), Noted(2, NoteOf(Key::Backspace)));
}

TEST_P(TextAndListContract, ATextBoxTellsWhenItGetsTheFocus) {
    NoteClicks(kText, "text");
    ShowMain();
    World().Click(Main(), kOtherText);
    Events();
    World().Click(Main(), kText);
    EXPECT_EQ(Events(), Noted{"text gotFocus"});
    World().Click(Main(), kText);
    Main().GetTextBox(kText).SetFocus();
    EXPECT_EQ(Events(), Noted{});
    Main().GetTextBox(kOtherText).SetFocus();
    Main().GetTextBox(kText).SetFocus();
    EXPECT_EQ(Events(), Noted{"text gotFocus"});
}

TEST_P(TextAndListContract, ATextThatIsSelectedOnFocusStaysSelectedAfterTheClick) {
    ShowMain();
    TextBox& text = Main().GetTextBox(kText);
    text.SetText("phrase");
    ControlEvents events;
    events.gotFocus = [&] { text.SelectAll(); };
    text.SetEvents(events);
    World().Click(Main(), kOtherText);
    World().Click(Main(), kText);
    World().Type(Main(), "x");
    EXPECT_EQ(text.Text(), "x");
}

TEST_P(TextAndListContract, AListScrollsToAnEntry) {
    ListBox& list = Main().GetListBox(kList);
    std::vector<std::string> items;
    for (int i = 0; i < 100; ++i)
        items.push_back("entry " + std::to_string(i));
    list.SetItems(items);
    list.ShowFirst(40);
    ShowMain();
    EXPECT_EQ(World().FirstShown(Main(), kList), 40);
    EXPECT_EQ(list.SelectedIndex(), -1);
    list.Select(42);
    EXPECT_EQ(World().FirstShown(Main(), kList), 40);
    list.ShowFirst(0);
    EXPECT_EQ(World().FirstShown(Main(), kList), 0);
    EXPECT_EQ(list.SelectedIndex(), 42);
    list.ShowFirst(40);
    list.SetItems(items);
    EXPECT_EQ(World().FirstShown(Main(), kList), 0);
}

TEST_P(TextAndListContract, AVeryLongTextIsKeptWhole) {
    const std::string line(100'000, 'x');
    Main().GetTextBox(kText).SetText(line);
    EXPECT_TRUE(Main().GetTextBox(kText).Text() == line);
    // Wine's boxes of many lines take very long for a very long line.
    std::string lines;
    while (lines.size() < line.size()) {
        lines.append(98, 'x').append("\r\n");
    }
    Main().GetTextBox(kManyLines).SetText(lines);
    EXPECT_TRUE(Main().GetTextBox(kManyLines).Text() == lines);
}

TEST_P(TextAndListContract, AListShowsItsEntriesInTheirOrderAndSelectsNone) {
    NoteClicks(kList, "list");
    ListBox& list = Main().GetListBox(kList);
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.SelectedIndex(), -1);
    list.SetItems({"b", "a", "b"});
    ASSERT_EQ(list.Count(), 3);
    EXPECT_EQ(list.Item(0) + list.Item(1) + list.Item(2), "bab");
    EXPECT_EQ(list.SelectedIndex(), -1);
    list.Select(1);
    Events();
    list.SetItems(kDemos);
    EXPECT_EQ(list.SelectedIndex(), -1);
    for (int i = 0; i < list.Count(); ++i) {
        EXPECT_EQ(list.Item(i), kDemos[static_cast<std::size_t>(i)]);
    }
    list.SetItems({});
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(Events(), Noted{});
}

TEST_P(TextAndListContract, SelectingAnotherEntryByTheProgramRunsTheClickProcedure) {
    NoteClicks(kList, "list");
    ListBox& list = Main().GetListBox(kList);
    list.SetItems(kDemos);
    list.Select(2);
    EXPECT_EQ(Events(), Noted{"list click"});
    EXPECT_EQ(list.SelectedIndex(), 2);
    list.Select(2);
    EXPECT_EQ(Events(), Noted{});
    list.Select(0);
    EXPECT_EQ(Events(), Noted{"list click"});
    list.Select(-1);
    EXPECT_EQ(Events(), Noted{});
    EXPECT_EQ(list.SelectedIndex(), -1);
    list.Select(0);
    EXPECT_EQ(Events(), Noted{"list click"});
    list.SetItems(kDemos);
    list.Select(0);
    EXPECT_EQ(Events(), Noted{"list click"});
}

TEST_P(TextAndListContract, AClickProcedureSeesTheSelectionAndMayRefillTheList) {
    ListBox& list = Main().GetListBox(kList);
    list.SetItems(kDemos);
    ControlEvents events;
    events.click = [&] {
        Note("selected " + std::to_string(list.SelectedIndex()));
        if (list.Count() == 4)
            list.SetItems({"one", "two"});
    };
    list.SetEvents(events);
    ShowMain();
    World().ClickEntry(Main(), kList, 3);
    EXPECT_EQ(Events(), Noted{"selected 3"});
    EXPECT_EQ(list.SelectedIndex(), -1);
    EXPECT_EQ(list.Count(), 2);
    World().ClickEntry(Main(), kList, 1);
    EXPECT_EQ(Events(), Noted{"selected 1"});
}

TEST_P(TextAndListContract, SelectingAnEntryByTheUserRunsTheClickProcedureOnce) {
    NoteClicks(kList, "list");
    ListBox& list = Main().GetListBox(kList);
    list.SetItems(kDemos);
    ShowMain();
    World().ClickEntry(Main(), kList, 1);
    EXPECT_EQ(Events(), Noted{"list click"});
    EXPECT_EQ(list.SelectedIndex(), 1);
    World().ClickEntry(Main(), kList, 1);
    EXPECT_EQ(Events(), Noted{});
    World().ClickEntry(Main(), kList, 0);
    EXPECT_EQ(Events(), Noted{"list click"});
}

TEST_P(TextAndListContract, ADoubleClickSelectsFirst) {
    NoteClicks(kList, "list");
    Main().GetListBox(kList).SetItems(kDemos);
    ShowMain();
    World().DoubleClickEntry(Main(), kList, 2);
    EXPECT_EQ(Events(), (Noted{"list click", "list doubleClick"}));
    World().DoubleClickEntry(Main(), kList, 2);
    EXPECT_EQ(Events(), Noted{"list doubleClick"});
}

TEST_P(TextAndListContract, ARightClickAsksForTheMenuAndLeavesTheSelectionToTheProgram) {
    NoteClicks(kList, "list");
    ListBox& list = Main().GetListBox(kList);
    list.SetItems(kDemos);
    ShowMain();
    World().RightClickEntry(Main(), kList, 1);
    EXPECT_EQ(Events(), Noted{"list menuRequested"});
    EXPECT_EQ(list.SelectedIndex(), -1);
}

TEST_P(TextAndListContract, TheEntryUnderThePointerIsSelectedAsByAClick) {
    ListBox& list = Main().GetListBox(kList);
    list.SetItems(kDemos);
    ControlEvents events = Noting("list");
    events.menuRequested = [&] {
        list.SelectAtPointer();
        Note("menu for " + std::to_string(list.SelectedIndex()));
    };
    list.SetEvents(events);
    ShowMain();
    World().RightClickEntry(Main(), kList, 1);
    EXPECT_EQ(Events(), (Noted{"list click", "menu for 1"}));
    World().RightClickEntry(Main(), kList, 1);
    EXPECT_EQ(Events(), Noted{"menu for 1"});
    World().RightClickEntry(Main(), kList, -1);
    EXPECT_EQ(Events(), Noted{"menu for 1"});
    World().RightClickEntry(Main(), kList, 0);
    EXPECT_EQ(Events(), (Noted{"list click", "menu for 0"}));
}

TEST_P(TextAndListContract, AListOffersTheProgramsKeys) {
    ListBox& list = Main().GetListBox(kList);
    list.SetItems(kDemos);
    ControlEvents events;
    events.keyDown = [&](Key key) {
        Note(NoteOf(key));
        return true;
    };
    list.SetEvents(events);
    ShowMain();
    list.SetFocus();
    for (const Key key : {Key::F2, Key::F4, Key::F5, Key::Delete, Key::Backspace, Key::Enter}) {
        World().Press(Main(), key);
        EXPECT_EQ(Events(), Noted{NoteOf(key)});
    }
}

TEST_P(TextAndListContract, AListOfManyEntriesKeepsThemAll) {
    std::vector<std::string> items;
    for (int i = 0; i < 10'000; ++i)
        items.push_back("demo " + std::to_string(i));
    ListBox& list = Main().GetListBox(kList);
    list.SetItems(items);
    ASSERT_EQ(list.Count(), 10'000);
    EXPECT_EQ(list.Item(9'999), "demo 9999");
    list.Select(9'999);
    EXPECT_EQ(list.SelectedIndex(), 9'999);
}

TEST_P(TextAndListContract, BackgroundsAreAsTheProgramSetsThem) {
    ListBox& list = Main().GetListBox(kList);
    list.SetBackground(SystemColour::ButtonFace);
    EXPECT_EQ(list.Background(), SystemColour::ButtonFace);
    list.SetBackground(SystemColour::Window);
    EXPECT_EQ(list.Background(), SystemColour::Window);
    TextBox& text = Main().GetTextBox(kOtherText);
    text.SetBackground(SystemColour::Window);
    EXPECT_EQ(text.Background(), Colour(SystemColour::Window));
}

}  // namespace zentar
