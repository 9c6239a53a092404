// Coloured text as the game's console wants it, and back.
#include <gtest/gtest.h>

#include "q3tools/colour_codes.h"
#include "tests/unit/q3tools/plain_strip.h"

namespace zentar {
namespace {

using Runs = std::vector<ColouredRun>;

std::string Code(const Runs& runs, const Q3TextOptions& options = {}) {
    return BuildQ3TextCode({runs, runs.empty() ? kQ3Black : runs.back().colour}, options);
}

TEST(Q3TextCode, ACodeStandsAtEachChangeOfColour) {
    EXPECT_EQ(Code({{"A", kQ3Red}, {"b", kQ3White}}), "seta name \"^1A^7b\"");
    EXPECT_EQ(Code({{"Ab", kQ3Black}}), "seta name \"^^0Ab^7\"");
    EXPECT_EQ(Code({{"hi", kQ3Red}}, {.type = Q3TextType::PublicSpeech}),
              "bind pause \"say ^1hi^7\"");
    EXPECT_EQ(Code({{"hi", kQ3Red}}, {.type = Q3TextType::PublicSpeech, .keyfox = true}),
              "say ^1hi^7");
}

TEST(Q3TextCode, AnEmptyTextHasTheColourOfThePlaceWhereOneWouldBeTyped) {
    EXPECT_EQ(Code({}), "seta name \"^^0^7\"");
    EXPECT_EQ(BuildQ3TextCode({{}, kQ3White}, {}), "seta name \"^7\"");
    EXPECT_EQ(BuildQ3TextCode({{}, 0x123456}, {}), "seta name \"^7\"");
}

TEST(Q3TextCode, BlackDependsOnWhatTheTextIsFor) {
    const Runs black = {{"x", kQ3Black}};
    EXPECT_EQ(Code(black, {.type = Q3TextType::ServerName}), "seta sv_hostname \"^0x^7\"");
    EXPECT_EQ(Code(black, {.type = Q3TextType::ServerName, .osp = true}),
              "seta sv_hostname \"^8x^7\"");
    EXPECT_EQ(Code(black, {.osp = true}), "seta name \"^8x^7\"");
}

TEST(Q3TextCode, TheFirstCharacterOfAColourThatTheGameLacksIsLeftOut) {
    EXPECT_EQ(Code({{"ab", kQ3Red}, {"cde", 0x123456}, {"f", kQ3White}}),
              "seta name \"^1abde^7f\"");
    EXPECT_EQ(Code({{"\xC3\xA4\xE2\x82\xAC", 0x123456}}), "seta name \"\xE2\x82\xAC^7\"");
}

TEST(Q3TextCode, ANumberThatIsNoTypeCountsAsAPlayerName) {
    EXPECT_EQ(Code({{"x", kQ3Black}}, {.type = static_cast<Q3TextType>(200)}),
              "seta name \"^^0x^7\"");
}

TEST(Q3TextCode, RunsWithoutCharactersAreNone) {
    EXPECT_EQ(Code({{"", kQ3Green}, {"a", kQ3Red}, {"", kQ3Blue}, {"b", kQ3Red}}),
              "seta name \"^1ab^7\"");
    EXPECT_EQ(BuildQ3TextCode({{{"", kQ3Red}}, kQ3White}, {}), "seta name \"^7\"");
}

TEST(Q3TextCode, NeighboursOfOneColourAreOneRun) {
    EXPECT_EQ(Code({{"a", kQ3Red}, {"b", kQ3Red}}), "seta name \"^1ab^7\"");
    EXPECT_EQ(Code({{"a", 0x123456}, {"bc", 0x123456}}), "seta name \"bc^7\"");
}

TEST(Q3TextCode, TwoColoursThatTheGameLacksEachLoseACharacter) {
    EXPECT_EQ(Code({{"ab", 0x123456}, {"cd", 0x0000FE}}), "seta name \"bd^7\"");
}

TEST(Q3TextCode, ThePlaceBehindTheTextHasItsSayToo) {
    EXPECT_EQ(BuildQ3TextCode({{{"a", kQ3Red}}, kQ3White}, {}), "seta name \"^1a^7\"");
    EXPECT_EQ(BuildQ3TextCode({{{"a", kQ3White}}, kQ3Red}, {}), "seta name \"^7a^1^7\"");
    EXPECT_EQ(BuildQ3TextCode({{{"a", kQ3White}}, 0x123456}, {}), "seta name \"^7a^7\"");
}

TEST(Q3TextCode, LettersOfSeveralBytesAreLeftOutWhole) {
    EXPECT_EQ(Code({{"\xF0\x9F\x98\x80x", 0x123456}}), "seta name \"x^7\"");
    EXPECT_EQ(Code({{"\xF0\x9F\x98\x80", 0x123456}}), "seta name \"^7\"");
    EXPECT_EQ(Code({{"\x80\x80", 0x123456}}), "seta name \"^7\"");
}

TEST(StripColourCodes, LeavesThePlainText) {
    EXPECT_EQ(StripColourCodes("^^0ab^1c^7"), "abc");
    EXPECT_EQ(StripColourCodes("a^8b"), "a^8b");
    EXPECT_EQ(StripColourCodes("^"), "^");
    EXPECT_EQ(StripColourCodes("^^"), "^^");
    EXPECT_EQ(StripColourCodes("^^1"), "^");
    EXPECT_EQ(StripColourCodes(""), "");
    EXPECT_EQ(StripColourCodes("^^^0"), "^");
    EXPECT_EQ(StripColourCodes("^^00"), "0");
    EXPECT_EQ(StripColourCodes("^^8^9^a^^"), "^^8^9^a^^");
    EXPECT_EQ(StripColourCodes("^0^1^2^3^4^5^6^7"), "");
    // What is left is not looked at again.
    EXPECT_EQ(StripColourCodes("^^11"), "^1");
    EXPECT_EQ(StripColourCodes(std::string("^1\0\xFF^\0", 6)), std::string("\0\xFF^\0", 4));
}

void CheckStrip(std::string& text, std::size_t length) {
    ASSERT_EQ(StripColourCodes(text), PlainStrip(text)) << text;
    if (text.size() < length) {
        for (const char character : {'a', '^', '0', '1', '7', '8', '9'}) {
            text += character;
            CheckStrip(text, length);
            text.pop_back();
        }
    }
}

TEST(StripColourCodes, DoesSoWithEveryShortText) {
    std::string text;
    CheckStrip(text, 6);
}

}  // namespace
}  // namespace zentar
