// The colours of a transcript: choosing them by double clicks, and showing them in the boxes.

#include <limits>

#include "tests/unit/transcripts/chat_frame_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;

const ColourRef kRed = 0x0000FF;

class TranscriptColoursTest : public ChatFrameTest {
  protected:
    TranscriptColoursTest() {
        TypeName(2, "Bob");
        UseHtml();
    }

    void ExpectBackground(const Colour& colour) {
        for (std::size_t box = 1; box <= kPlayerBoxes; ++box) {
            EXPECT_EQ(Box(box).Background(), colour) << box;
        }
        EXPECT_EQ(MessagesBox().Background(), colour);
    }
    void ExpectSystemColours() {
        ExpectBackground(SystemColour::Window);
        for (std::size_t box = 1; box <= kPlayerBoxes; ++box) {
            EXPECT_EQ(Box(box).Foreground(), Colour(SystemColour::WindowText)) << box;
        }
        EXPECT_EQ(MessagesBox().Foreground(), Colour(SystemColour::WindowText));
    }
    // What a box shows for a stored colour.
    Colour Shown(const std::string& stored) {
        state.settings.PlayerColour[0] = stored;
        UseHtml(false);
        UseHtml();
        return Box(1).Foreground();
    }
};

// ---- Double clicks on a name box ----

TEST_F(TranscriptColoursTest, OnAnEmptyBoxTheyChooseTheBackgroundOfAll) {
    os.windows.ExpectColour(kWhite, 0x804020);
    DoubleClick(5);
    ExpectBackground(ColourRef{0x804020});
    EXPECT_EQ(state.settings.TranscriptBackground, 0x804020);
    EXPECT_EQ(state.settings.PlayerColour[4], "");
    EXPECT_EQ(Box(5).Foreground(), Colour(SystemColour::WindowText));
    EXPECT_EQ(form->FocusedId(), IDC_cmdCreateTranscript);
    os.windows.ExpectColour(0x804020, kBlack);
    DoubleClick(24);
    ExpectBackground(kBlack);
    EXPECT_EQ(state.settings.TranscriptBackground, 0);
}

TEST_F(TranscriptColoursTest, OnANameTheyChooseTheColourOfItsSpeech) {
    os.windows.ExpectColour(kBlack, kRed);
    DoubleClick(2);
    EXPECT_EQ(Box(2).Foreground(), Colour(kRed));
    EXPECT_EQ(Box(1).Foreground(), Colour(SystemColour::WindowText));
    EXPECT_EQ(state.settings.PlayerColour[1], "255");
    ExpectBackground(SystemColour::Window);
    EXPECT_EQ(state.settings.TranscriptBackground, -1);
    EXPECT_EQ(form->FocusedId(), IDC_cmdCreateTranscript);
    os.windows.ExpectColour(kRed, kWhite);
    DoubleClick(2);
    EXPECT_EQ(state.settings.PlayerColour[1], "16777215");
}

TEST_F(TranscriptColoursTest, TheCaretOfANameGoesToItsStart) {
    os.windows.ExpectColour(kBlack, kRed);
    DoubleClick(2);
    EXPECT_TRUE(os.log.Has("txtPlayer2.PutCaretFirst()"));
    EXPECT_FALSE(form->AllSelected(BoxId(2)));
}

TEST_F(TranscriptColoursTest, CancelChangesNothing) {
    for (const std::size_t box : {1, 2}) {
        os.windows.ExpectColour(box == 1 ? kWhite : kBlack, std::nullopt);
        DoubleClick(box);
        EXPECT_EQ(form->FocusedId(), BoxId(box));
    }
    os.windows.ExpectColour(kBlack, std::nullopt);
    form->UserDoubleClick(IDC_txtTranscriptMessages);
    EXPECT_EQ(form->FocusedId(), IDC_txtTranscriptMessages);
    ExpectSystemColours();
    EXPECT_EQ(state.settings.PlayerColour[1], "");
}

TEST_F(TranscriptColoursTest, F4DoesTheSame) {
    os.windows.ExpectColour(kBlack, kRed);
    Box(2).SetFocus();
    form->UserKey(Key::F4);
    EXPECT_EQ(state.settings.PlayerColour[1], "255");
    os.windows.ExpectColour(kBlack, 0x00FF00);
    MessagesBox().SetFocus();
    form->UserKey(Key::F2);
    form->UserKey(Key::F4);
    EXPECT_EQ(MessagesBox().Foreground(), Colour(ColourRef{0x00FF00}));
}

TEST_F(TranscriptColoursTest, WithoutHtmlTheyDoNothing) {
    UseHtml(false);
    DoubleClick(1);
    DoubleClick(2);
    EXPECT_EQ(form->FocusedId(), BoxId(2));
    frame->txtTranscriptMessages_DblClick();
    ExpectSystemColours();
    EXPECT_EQ(form->FocusedId(), BoxId(2));
}

TEST_F(TranscriptColoursTest, ABlankIsANameToo) {
    TypeName(7, " ");
    os.windows.ExpectColour(kBlack, kRed);
    DoubleClick(7);
    EXPECT_EQ(state.settings.PlayerColour[6], "255");
}

// ---- Double clicks on the box of the messages ----

TEST_F(TranscriptColoursTest, OnTheMessagesTheyChooseTheirColour) {
    os.windows.ExpectColour(kBlack, 0x00FF00);
    form->UserDoubleClick(IDC_txtTranscriptMessages);
    EXPECT_EQ(MessagesBox().Foreground(), Colour(ColourRef{0x00FF00}));
    EXPECT_EQ(state.settings.TranscriptMessages, 0x00FF00);
    EXPECT_EQ(Box(1).Foreground(), Colour(SystemColour::WindowText));
    EXPECT_EQ(form->FocusedId(), IDC_cmdCreateTranscript);
    os.windows.ExpectColour(0x00FF00, kRed);
    form->UserDoubleClick(IDC_txtTranscriptMessages);
    EXPECT_EQ(state.settings.TranscriptMessages, 0x0000FF);
}

TEST_F(TranscriptColoursTest, TheUserDoesNotTypeIntoThatBox) {
    form->UserClick(IDC_txtTranscriptMessages);
    form->UserType("x");
    form->UserKey(Key::Backspace);
    EXPECT_EQ(MessagesBox().Text(), "msgs");
}

// ---- The option ----

TEST_F(TranscriptColoursTest, TheOptionShowsAndHidesTheColours) {
    state.settings.TranscriptBackground = 0x112233;
    state.settings.TranscriptMessages = 0x445566;
    state.settings.PlayerColour[1] = "255";
    UseHtml(false);
    ExpectSystemColours();
    EXPECT_FALSE(Enabled(IDC_txtTranscriptMessages));
    EXPECT_FALSE(Enabled(IDC_labColourUsed));
    form->UserClick(IDC_chkTranscriptHTML);
    ExpectBackground(ColourRef{0x112233});
    EXPECT_EQ(MessagesBox().Foreground(), Colour(ColourRef{0x445566}));
    EXPECT_EQ(Box(2).Foreground(), Colour(kRed));
    EXPECT_EQ(Box(1).Foreground(), Colour(SystemColour::WindowText));
    EXPECT_TRUE(Enabled(IDC_txtTranscriptMessages));
    EXPECT_TRUE(Enabled(IDC_labColourUsed));
    form->UserClick(IDC_chkTranscriptHTML);
    ExpectSystemColours();
    EXPECT_EQ(state.settings.TranscriptBackground, 0x112233);
    EXPECT_EQ(state.settings.PlayerColour[1], "255");
}

TEST_F(TranscriptColoursTest, NegativeNumbersAreNoColours) {
    EXPECT_EQ(Shown("-1"), Colour(SystemColour::WindowText));
    EXPECT_EQ(Shown("-2147483648"), Colour(SystemColour::WindowText));
    EXPECT_EQ(Shown(""), Colour(SystemColour::WindowText));
    for (const std::int32_t none : {-1, -5, std::numeric_limits<std::int32_t>::min()}) {
        state.settings.TranscriptBackground = none;
        state.settings.TranscriptMessages = none;
        UseHtml(false);
        UseHtml();
        ExpectSystemColours();
    }
}

TEST_F(TranscriptColoursTest, OfLargerNumbersTheLowestTwentyFourBitsCount) {
    EXPECT_EQ(Shown("16777216"), Colour(kBlack));
    EXPECT_EQ(Shown("2147483647"), Colour(kWhite));
    state.settings.TranscriptBackground = 0x7F0000FF;
    state.settings.TranscriptMessages = 0x01000080;
    UseHtml(false);
    UseHtml();
    ExpectBackground(kRed);
    EXPECT_EQ(MessagesBox().Foreground(), Colour(ColourRef{0x80}));
}

// As the numbers of the settings file are read everywhere.
TEST_F(TranscriptColoursTest, OfATextTheNumberAtItsBeginningCounts) {
    EXPECT_EQ(Shown("255 red"), Colour(kRed));
    EXPECT_EQ(Shown(" 255"), Colour(kRed));
    EXPECT_EQ(Shown("red"), Colour(kBlack));
    EXPECT_EQ(Shown("99999999999"), Colour(SystemColour::WindowText));
}

// ---- The game's messages ----

TEST_F(TranscriptColoursTest, TickingTheMessagesMovesTheFocusToTheButton) {
    form->UserClick(IDC_chkTranscriptGameplay);
    EXPECT_TRUE(GameplayBox().Checked());
    EXPECT_EQ(form->FocusedId(), IDC_cmdCreateTranscript);
    form->UserClick(IDC_chkTranscriptGameplay);
    EXPECT_FALSE(GameplayBox().Checked());
    EXPECT_EQ(form->FocusedId(), IDC_cmdCreateTranscript);
    ExpectSystemColours();
}

TEST_F(TranscriptColoursTest, BeforeTheWindowWasInFrontTheFocusStays) {
    state.FirstActivationDone = false;
    form->UserClick(BoxId(2));
    GameplayBox().SetChecked(true);
    EXPECT_EQ(form->FocusedId(), BoxId(2));
}

}  // namespace
}  // namespace zentar
