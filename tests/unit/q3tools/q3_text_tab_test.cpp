// The editor of coloured texts: what the user does, and the code that follows it.

#include "q3tools/colour_codes.h"
#include "tests/unit/q3tools/q3_text_fixture.h"

namespace zentar {
namespace {

class Q3TextEditorTest : public Q3TextTabTest {};

// ---- The text ----

TEST_F(Q3TextEditorTest, EachCharacterMakesTheCodeAnew) {
    EXPECT_EQ(Code(), "seta name \"^^0^7\"");
    Type("H");
    EXPECT_EQ(Code(), "seta name \"^^0H^7\"");
    Type("i");
    EXPECT_EQ(Code(), "seta name \"^^0Hi^7\"");
    form->UserKey(Key::Backspace);
    EXPECT_EQ(Code(), "seta name \"^^0H^7\"");
    Editor().Undo();
    EXPECT_EQ(Code(), "seta name \"^^0Hi^7\"");
    Editor().Paste({{"x", kQ3Red}});
    EXPECT_EQ(Code(), "seta name \"^^0Hi^1x^7\"");
}

TEST_F(Q3TextEditorTest, TheEditorIsOrange) {
    EXPECT_EQ(Editor().Background(), zentar::Colour(ColourRef{0x006CD8}));
}

TEST_F(Q3TextEditorTest, ThreeButtonsAreGreyedWhileItIsEmpty) {
    const auto expectEnabled = [this](bool enabled) {
        EXPECT_EQ(Enabled(IDC_cmdQ3TextClipboard), enabled);
        EXPECT_EQ(Enabled(IDC_cmdQ3TextQ3Config), enabled);
        EXPECT_EQ(Enabled(IDC_cmdQ3TextSave), enabled);
        EXPECT_TRUE(Enabled(IDC_cmdQ3TextOpen));
    };
    expectEnabled(false);
    Type(" ");
    expectEnabled(true);
    form->UserKey(Key::Backspace);
    expectEnabled(false);
}

TEST_F(Q3TextEditorTest, ADoubleQuoteBecomesAnApostropheWhereItIsTyped) {
    Type("ab");
    Colour(0, 2, IDC_cmdQ3TextRed);
    Editor().Select(1, 1);
    form->UserType("\"");
    EXPECT_EQ(Text(), "a'b");
    EXPECT_EQ(Caret(), 2);
    EXPECT_EQ(Code(), "seta name \"^^0a'b^7\"");
    form->UserType("x");
    EXPECT_EQ(Text(), "a'xb");
}

TEST_F(Q3TextEditorTest, AllOfThemDo) {
    Editor().Paste({{"\"a\"", kQ3Red}, {"\"\"", kQ3White}});
    EXPECT_EQ(Text(), "'a'''");
    EXPECT_EQ(Code(), "seta name \"^^0'a'''^7\"");
    EXPECT_EQ(Caret(), 5);
}

TEST_F(Q3TextEditorTest, WithoutAQuoteTheColoursStay) {
    Editor().Paste({{"it's", kQ3Cyan}});
    EXPECT_EQ(Code(), "seta name \"^5it's^7\"");
}

TEST_F(Q3TextEditorTest, AColourThatTheGameLacksLosesItsFirstCharacter) {
    Editor().Paste({{"ab", kQ3Red}, {"cde", 0x123456}, {"f", kQ3White}});
    EXPECT_EQ(Code(), "seta name \"^1abde^7f\"");
    EXPECT_EQ(Text(), "abcdef");
}

// ---- The colours ----

TEST_F(Q3TextEditorTest, EachButtonGivesItsColour) {
    const std::vector<std::pair<int, std::string>> codes = {
        {IDC_cmdQ3TextBlack, "^^0ab^7"},  {IDC_cmdQ3TextRed, "^1ab^7"},
        {IDC_cmdQ3TextGreen, "^2ab^7"},   {IDC_cmdQ3TextYellow, "^3ab^7"},
        {IDC_cmdQ3TextBlue, "^4ab^7"},    {IDC_cmdQ3TextCyan, "^5ab^7"},
        {IDC_cmdQ3TextMagenta, "^6ab^7"}, {IDC_cmdQ3TextWhite, "^7ab"}};
    Type("ab");
    for (const auto& [button, code] : codes) {
        Colour(0, 2, button);
        EXPECT_EQ(Code(), "seta name \"" + code + "\"") << button;
    }
}

TEST_F(Q3TextEditorTest, OnlyWhatIsSelectedGetsTheColourAndNothingIsSelectedAfterwards) {
    Type("abcd");
    Colour(1, 3, IDC_cmdQ3TextGreen);
    EXPECT_EQ(Code(), "seta name \"^^0a^2bc^^0d^7\"");
    EXPECT_EQ(Caret(), 3);
    EXPECT_EQ(form->FocusedId(), IDC_rtbQ3Text);
    form->UserType("x");
    EXPECT_EQ(Text(), "abcxd");
    EXPECT_EQ(Code(), "seta name \"^^0a^2bcx^^0d^7\"");
}

TEST_F(Q3TextEditorTest, WithNothingSelectedItIsForWhatIsTypedNext) {
    Type("a");
    Click(IDC_cmdQ3TextRed);
    EXPECT_EQ(Code(), "seta name \"^^0a^7\"");
    form->UserType("bc");
    EXPECT_EQ(Code(), "seta name \"^^0a^1bc^7\"");
}

TEST_F(Q3TextEditorTest, OfAnEmptyTextItIsInTheCode) {
    Editor();
    Click(IDC_cmdQ3TextWhite);
    EXPECT_EQ(Code(), "seta name \"^7\"");
    Click(IDC_cmdQ3TextRed);
    EXPECT_EQ(Code(), "seta name \"^1^7\"");
    EXPECT_FALSE(Enabled(IDC_cmdQ3TextSave));
}

// ---- What it is for ----

struct Use {
    int button;
    std::uint8_t type;
    std::string code;    // of "hi" in red
    std::string keyfox;  // likewise
};

const std::vector<Use> kUses = {
    {IDC_optQ3TextServer, 1, "seta sv_hostname \"^1hi^7\"", "sv_hostname ^1hi^7"},
    {IDC_optQ3TextPublic, 2, "bind pause \"say ^1hi^7\"", "say ^1hi^7"},
    {IDC_optQ3TextTeam, 3, "bind pause \"say_team ^1hi^7\"", "say_team ^1hi^7"},
    {IDC_optQ3TextAttacker, 4, "bind pause \"tell_attacker ^1hi^7\"", "tell_attacker ^1hi^7"},
    {IDC_optQ3TextTarget, 5, "bind pause \"tell_target ^1hi^7\"", "tell_target ^1hi^7"},
    {IDC_optQ3TextName, 0, "seta name \"^1hi^7\"", "name ^1hi^7"},
};

TEST_F(Q3TextEditorTest, EachUseHasItsCommandWithAndWithoutTheWrapper) {
    Type("hi");
    Colour(0, 2, IDC_cmdQ3TextRed);
    for (const Use& use : kUses) {
        Editor().Select(0, 1);
        Click(use.button);
        EXPECT_EQ(state.settings.Q3TextType, use.type);
        EXPECT_EQ(Code(), use.code);
        Click(IDC_chkQ3TextKeyfox);
        EXPECT_EQ(Code(), use.keyfox);
        Click(IDC_chkQ3TextKeyfox);
        EXPECT_EQ(Code(), use.code);
    }
}

TEST_F(Q3TextEditorTest, BlackFollowsTheUseAndTheMod) {
    Type("x");
    for (const Use& use : kUses) {
        Click(use.button);
        const std::string plain = use.type == 0 ? "^^0x^7" : "^0x^7";
        EXPECT_THAT(Code(), ::testing::EndsWith(plain + "\"")) << use.button;
        Click(IDC_chkQ3TextOSP);
        EXPECT_THAT(Code(), ::testing::EndsWith("^8x^7\"")) << use.button;
        Click(IDC_chkQ3TextKeyfox);
        EXPECT_THAT(Code(), ::testing::EndsWith(" ^8x^7")) << use.button;
        Click(IDC_chkQ3TextOSP);
        EXPECT_THAT(Code(), ::testing::EndsWith(" " + plain)) << use.button;
        Click(IDC_chkQ3TextKeyfox);
    }
}

// A number that no option button has stands in the settings: the code is that of a player name.
TEST_F(Q3TextEditorTest, ANumberThatIsNoUseCountsAsAPlayerName) {
    state.settings.Q3TextType = 200;
    Type("x");
    EXPECT_EQ(Code(), "seta name \"^^0x^7\"");
}

// Each of these deselects what was selected, and the caret stays at the end of it.
TEST_F(Q3TextEditorTest, AfterEachEventNothingIsSelected) {
    Type("abcd");
    for (const int id : {IDC_cmdQ3TextBlue, IDC_optQ3TextTeam, IDC_optQ3TextName,
                         IDC_chkQ3TextKeyfox, IDC_chkQ3TextOSP}) {
        Editor().Select(1, 3);
        Click(id);
        EXPECT_EQ(Caret(), 3) << id;
        Type("x");
        EXPECT_EQ(Text(), "abcxd") << id;
        form->UserKey(Key::Backspace);
        EXPECT_EQ(Text(), "abcd") << id;
    }
}

TEST_F(Q3TextEditorTest, NobodyTypesIntoTheCode) {
    Type("a");
    Click(IDC_txtQ3TextCode);
    form->UserType("x");
    form->UserKey(Key::Backspace);
    EXPECT_EQ(Code(), "seta name \"^^0a^7\"");
}

}  // namespace
}  // namespace zentar
