// Emptying the name boxes, and what a change of one does.

#include "tests/unit/transcripts/chat_frame_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ClearNamesTest : public ChatFrameTest {};

// ---- The button ----

TEST_F(ClearNamesTest, TheButtonIsGreyedWhileAllBoxesAreEmpty) {
    EXPECT_FALSE(Enabled(IDC_cmdClearNames));
    for (const std::size_t box : {1, 12, 24}) {
        TypeName(box, "x");
        EXPECT_TRUE(Enabled(IDC_cmdClearNames)) << box;
        form->UserKey(Key::Backspace);
        EXPECT_FALSE(Enabled(IDC_cmdClearNames)) << box;
    }
    TypeName(3, "Bob");
    TypeName(7, "Ann");
    Box(3).SetText("");
    EXPECT_TRUE(Enabled(IDC_cmdClearNames));
    Box(7).SetText("");
    EXPECT_FALSE(Enabled(IDC_cmdClearNames));
}

TEST_F(ClearNamesTest, ABlankIsANameToo) {
    TypeName(5, " ");
    EXPECT_TRUE(Enabled(IDC_cmdClearNames));
}

TEST_F(ClearNamesTest, AllBoxesAreEmptiedAndTheFirstGetsTheFocus) {
    for (std::size_t box = 1; box <= kPlayerBoxes; ++box) {
        TypeName(box, "Player" + std::to_string(box));
    }
    EXPECT_EQ(Names().size(), kPlayerBoxes);
    Clear();
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_FALSE(Enabled(IDC_cmdClearNames));
    EXPECT_EQ(form->FocusedId(), IDC_txtPlayer1);
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
    EXPECT_THAT(os.windows.Pointers(), IsEmpty());
}

// ---- The colours ----

class ClearColoursTest : public ClearNamesTest {
  protected:
    ClearColoursTest() {
        state.settings.TranscriptBackground = 0x112233;
        state.settings.TranscriptMessages = 0x445566;
        state.settings.PlayerColour[0] = "255";
        state.settings.PlayerColour[23] = "65280";
        UseHtml();
        TypeName(1, "Bob");
    }
};

TEST_F(ClearColoursTest, StayWithoutShift) {
    for (const std::uint16_t shift : std::vector<std::uint16_t>{0x0000, 0x0001, 0x8000}) {
        TypeName(1, "Bob");
        os.windows.SetKeyState(PollKey::Shift, shift);
        Clear();
        EXPECT_EQ(Box(1).Foreground(), Colour(ColourRef{255})) << shift;
        EXPECT_EQ(Box(24).Foreground(), Colour(ColourRef{65280})) << shift;
        EXPECT_EQ(Box(24).Background(), Colour(ColourRef{0x112233})) << shift;
        EXPECT_EQ(MessagesBox().Background(), Colour(ColourRef{0x112233})) << shift;
        EXPECT_EQ(state.settings.TranscriptBackground, 0x112233) << shift;
        EXPECT_EQ(state.settings.PlayerColour[23], "65280") << shift;
    }
}

TEST_F(ClearColoursTest, GoWithShiftButForThatOfTheMessages) {
    ClearWithShift();
    EXPECT_THAT(Names(), IsEmpty());
    for (std::size_t box = 1; box <= kPlayerBoxes; ++box) {
        EXPECT_EQ(Box(box).Foreground(), Colour(SystemColour::WindowText)) << box;
        EXPECT_EQ(Box(box).Background(), Colour(SystemColour::Window)) << box;
        EXPECT_EQ(state.settings.PlayerColour[box - 1], "") << box;
    }
    EXPECT_EQ(MessagesBox().Background(), Colour(SystemColour::Window));
    EXPECT_EQ(MessagesBox().Foreground(), Colour(ColourRef{0x445566}));
    EXPECT_EQ(state.settings.TranscriptBackground, -1);
    EXPECT_EQ(state.settings.TranscriptMessages, 0x445566);
    EXPECT_EQ(form->FocusedId(), IDC_txtPlayer1);
}

TEST_F(ClearColoursTest, DoNotComeBackWhenTheOptionIsSwitched) {
    ClearWithShift();
    UseHtml(false);
    UseHtml();
    EXPECT_EQ(Box(1).Foreground(), Colour(SystemColour::WindowText));
    EXPECT_EQ(Box(1).Background(), Colour(SystemColour::Window));
}

// ---- A box ----

TEST_F(ClearNamesTest, ABoxThatGetsTheFocusIsSelectedWhole) {
    TypeName(4, "Bob");
    EXPECT_FALSE(form->AllSelected(BoxId(4)));
    form->UserClick(BoxId(5));
    form->UserClick(BoxId(4));
    EXPECT_TRUE(form->AllSelected(BoxId(4)));
    form->UserType("Ann");
    EXPECT_THAT(Names(), ElementsAre("", "", "", "Ann"));
}

TEST_F(ClearNamesTest, TheTitleFollowsTheGame) {
    EXPECT_EQ(form->AnyControl(IDC_fraChat).Text(), "Quake2 Chat Transcript");
    UseGame(kQuake1);
    EXPECT_EQ(form->AnyControl(IDC_fraChat).Text(), "Quake1 Chat Transcript");
    UseGame(kQuake3);
    EXPECT_EQ(form->AnyControl(IDC_fraChat).Text(), "Quake3 Chat Transcript");
}

}  // namespace
}  // namespace zentar
