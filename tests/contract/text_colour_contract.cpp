// Text boxes in colours, of many lines, and such that are only read.
#include "tests/contract/controls_contract.h"

namespace zentar {
namespace {

constexpr ColourRef kOrange = 0x006CD8;
constexpr ColourRef kGreen = 0x00C000;
constexpr ColourRef kBlue = 0xFF0000;
// Of letters that are thick enough for pixels of the very colour.
const std::string kThick = "MMMM|||HHHH";

}  // namespace

TEST_P(TextColourContract, ATextBoxBeginsInTheColoursOfTheSystem) {
    EXPECT_EQ(Main().GetTextBox(kText).Foreground(), Colour(SystemColour::WindowText));
    EXPECT_EQ(Main().GetTextBox(kText).Background(), Colour(SystemColour::Window));
    EXPECT_EQ(Main().GetTextBox(kOtherText).Foreground(), Colour(SystemColour::WindowText));
    EXPECT_EQ(Main().GetTextBox(kOtherText).Background(), Colour(SystemColour::ButtonFace));
}

TEST_P(TextColourContract, ATextBoxShowsTheColoursThatItIsGiven) {
    ShowMain();
    TextBox& text = Main().GetTextBox(kText);
    text.SetText(kThick);
    EXPECT_FALSE(World().Shows(Main(), kText, kOrange));
    text.SetBackground(kOrange);
    text.SetForeground(kGreen);
    EXPECT_EQ(text.Background(), Colour(kOrange));
    EXPECT_EQ(text.Foreground(), Colour(kGreen));
    EXPECT_TRUE(World().Shows(Main(), kText, kOrange));
    EXPECT_TRUE(World().Shows(Main(), kText, kGreen));
    text.SetBackground(kBlue);
    EXPECT_TRUE(World().Shows(Main(), kText, kBlue));
    EXPECT_FALSE(World().Shows(Main(), kText, kOrange));
    text.SetForeground(SystemColour::WindowText);
    text.SetBackground(SystemColour::Window);
    EXPECT_EQ(text.Background(), Colour(SystemColour::Window));
    EXPECT_FALSE(World().Shows(Main(), kText, kBlue));
    EXPECT_FALSE(World().Shows(Main(), kText, kGreen));
}

TEST_P(TextColourContract, ColoursGivenBeforeTheWindowIsSeenAreShown) {
    Main().GetTextBox(kText).SetBackground(kOrange);
    ShowMain();
    EXPECT_TRUE(World().Shows(Main(), kText, kOrange));
}

TEST_P(TextColourContract, ADisabledBoxShowsItsTextInTheSystemsGrey) {
    ShowMain();
    TextBox& text = Main().GetTextBox(kText);
    text.SetText(kThick);
    text.SetForeground(kGreen);
    text.SetBackground(kOrange);
    text.SetEnabled(false);
    EXPECT_FALSE(World().Shows(Main(), kText, kGreen));
    EXPECT_TRUE(World().Shows(Main(), kText, kOrange));
    EXPECT_EQ(text.Foreground(), Colour(kGreen));
    text.SetEnabled(true);
    EXPECT_TRUE(World().Shows(Main(), kText, kGreen));
}

TEST_P(TextColourContract, ABoxThatIsOnlyReadHasItsColoursToo) {
    ShowMain();
    TextBox& text = Main().GetTextBox(kReadOnlyText);
    text.SetText(kThick);
    text.SetForeground(kGreen);
    text.SetBackground(kOrange);
    EXPECT_TRUE(World().Shows(Main(), kReadOnlyText, kGreen));
    EXPECT_TRUE(World().Shows(Main(), kReadOnlyText, kOrange));
}

TEST_P(TextColourContract, NothingIsTypedIntoABoxThatIsOnlyRead) {
    NoteClicks(kReadOnlyText, "text");
    ShowMain();
    TextBox& text = Main().GetTextBox(kReadOnlyText);
    text.SetFocus();
    EXPECT_TRUE(text.HasFocus());
    Events();
    World().Type(Main(), "ab");
    World().Press(Main(), Key::Backspace);
    text.SelectAll();
    World().Press(Main(), Key::Delete);
    EXPECT_EQ(text.Text(), "read only");
    EXPECT_EQ(Events(), Noted{});
    text.SetText("by the program");
    EXPECT_EQ(text.Text(), "by the program");
    EXPECT_EQ(Events(), Noted{"text change"});
}

TEST_P(TextColourContract, ADoubleClickOnATextBoxIsTold) {
    NoteClicks(kText, "text");
    ShowMain();
    World().Click(Main(), kOtherText);
    Events();
    World().DoubleClick(Main(), kText);
    EXPECT_EQ(Events(), (Noted{"text gotFocus", "text doubleClick"}));
    EXPECT_TRUE(Main().GetTextBox(kText).HasFocus());
}

TEST_P(TextColourContract, ADoubleClickMayMoveTheFocusAndShowAWindow) {
    ShowMain();
    const std::unique_ptr<Form> dialog = World().Create(ContractDialogTable());
    World().InModal(*dialog, [&] { World().Click(*dialog, kDialogClose); });
    ControlEvents closing;
    closing.click = [&] { dialog->Close(); };
    dialog->GetButton(kDialogClose).SetEvents(closing);
    ControlEvents events;
    events.doubleClick = [&] {
        dialog->ShowModal();
        Main().GetButton(kButton).SetFocus();
        Note("done");
    };
    Main().GetTextBox(kText).SetEvents(events);
    World().DoubleClick(Main(), kText);
    EXPECT_EQ(Events(), Noted{"done"});
    EXPECT_TRUE(Main().GetButton(kButton).HasFocus());
    EXPECT_FALSE(World().Shown(*dialog));
}

TEST_P(TextColourContract, TheCaretThatIsPutFirstTypesBeforeTheText) {
    ShowMain();
    for (const int id : {kText, kManyLines}) {
        TextBox& text = Main().GetTextBox(id);
        text.SetText("cd");
        text.SetFocus();
        text.SelectAll();
        text.PutCaretFirst();
        World().Type(Main(), "ab");
        EXPECT_EQ(text.Text(), "abcd");
        text.PutCaretFirst();
        World().Press(Main(), Key::Delete);
        EXPECT_EQ(text.Text(), "bcd");
    }
}

TEST_P(TextColourContract, EnterInABoxOfManyLinesGoesToTheWindow) {
    NoteClicks(kDefaultButton, "go");
    NoteClicks(kManyLines, "text");
    ShowMain();
    TextBox& text = Main().GetTextBox(kManyLines);
    text.SetText("one two three four five six seven eight nine ten eleven twelve");
    text.SetFocus();
    Events();
    World().Press(Main(), Key::Enter);
    EXPECT_EQ(Events(), Noted{"go click"});
    EXPECT_EQ(text.Text(), "one two three four five six seven eight nine ten eleven twelve");
}

TEST_P(TextColourContract, TextInABoxOfManyLinesComesBackAsItWasSet) {
    NoteClicks(kManyLines, "text");
    TextBox& text = Main().GetTextBox(kManyLines);
    std::string value = "first\r\n\r\nthird ";
    while (value.size() < 40'000) {
        value.append(98, 'x').append("\r\n");
    }
    text.SetText(value);
    EXPECT_EQ(text.Text(), value);
    EXPECT_EQ(Events(), Noted{"text change"});
    text.SetText(value);
    EXPECT_EQ(Events(), Noted{});
}

}  // namespace zentar
