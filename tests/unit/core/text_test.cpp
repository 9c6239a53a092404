#include "core/text.h"

#include <gtest/gtest.h>

namespace zentar {
namespace {

TEST(LowerCaseTest, LettersOfEveryAlphabetOfPlayersGetSmall) {
    EXPECT_EQ(LowerCase("QUAKE2 baseq2"), "quake2 baseq2");
    EXPECT_EQ(LowerCase("GRÖSSE ÅÉÑ"), "grösse åéñ");
    EXPECT_EQ(LowerCase("ДУЭЛЬ ЁЖ"), "дуэль ёж");
    EXPECT_EQ(LowerCase("ΑΩΣ ΆΈΉΊΌΎΏΪΫ"), "αωσ άέήίόύώϊϋ");
    EXPECT_EQ(LowerCase("ŸȘȚ ƠƯǍ"), "ÿșț ơưǎ");
    EXPECT_EQ(LowerCase("ӀӁ"), "ӏӂ");
    EXPECT_EQ(LowerCase("ŁÓDŹ ČŠŽ Ğ"), "łódź čšž ğ");
}

TEST(LowerCaseTest, LettersWithoutASingleSmallFormStay) {
    // A Turkish dotted I would become two code points, and the name another name.
    EXPECT_EQ(LowerCase("İ×÷ß"), "İ×÷ß");
}

TEST(LowerCaseTest, EmojiAndBrokenUtf8PassUnchanged) {
    EXPECT_EQ(LowerCase("A\xF0\x9F\x98\x80Z"), "a\xF0\x9F\x98\x80z");
    EXPECT_EQ(LowerCase("A\xC3"), "a\xC3");
    EXPECT_EQ(LowerCase("\x80\xFF\xD0Z"), "\x80\xFF\xD0z");
}

TEST(LowerAsciiTest, BytesAboveAsciiStay) {
    EXPECT_EQ(LowerAscii("Q2DM1\xC4.BSP"), "q2dm1\xC4.bsp");
}

TEST(SortAlphabeticallyTest, CaseDoesNotMatter) {
    std::vector<std::string> texts = {"b", "C", "a", "B", "[x]", "10", "9"};
    SortAlphabetically(texts);
    EXPECT_EQ(texts, (std::vector<std::string>{"10", "9", "[x]", "a", "B", "b", "C"}));
}

TEST(SortAlphabeticallyTest, ABlankAtTheEndComesAfterTheBareName) {
    std::vector<std::string> texts = {"a  ", "a ", "a", "a b"};
    SortAlphabetically(texts);
    EXPECT_EQ(texts, (std::vector<std::string>{"a", "a ", "a  ", "a b"}));
}

TEST(WithBackslashTest, AddsOneOnlyWhereItIsMissing) {
    EXPECT_EQ(WithBackslash("C:\\Games"), "C:\\Games\\");
    EXPECT_EQ(WithBackslash("C:\\"), "C:\\");
}

TEST(GroupDigitsTest, GroupsOfThreeWithoutALeadingSeparator) {
    EXPECT_EQ(GroupDigits(0, ","), "0");
    EXPECT_EQ(GroupDigits(999, ","), "999");
    EXPECT_EQ(GroupDigits(1000, ","), "1,000");
    EXPECT_EQ(GroupDigits(1204311, ","), "1,204,311");
    EXPECT_EQ(GroupDigits(5368709120ULL, "\xC2\xA0"),
              "5\xC2\xA0"
              "368\xC2\xA0"
              "709\xC2\xA0"
              "120");
    EXPECT_EQ(GroupDigits(1234, ""), "1234");
}

TEST(LinesTest, AreJoinedByCrLf) {
    EXPECT_EQ(Lines({"a", "", "b"}), "a\r\n\r\nb");
    EXPECT_EQ(Lines({"", "a"}), "\r\na");
}

TEST(TrimBlanksTest, OnlyBlanksAroundATextGo) {
    EXPECT_EQ(TrimBlanks("  a b  "), "a b");
    EXPECT_EQ(TrimBlanks("\ta\t"), "\ta\t");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks(""), "");
}

TEST(EndsWithAnyCaseTest, TheCaseOfTheTextDoesNotMatter) {
    EXPECT_TRUE(EndsWithAnyCase("DUEL.DM2", ".dm2"));
    EXPECT_TRUE(EndsWithAnyCase(".dm2", ".dm2"));
    EXPECT_FALSE(EndsWithAnyCase("dm2", ".dm2"));
    EXPECT_FALSE(EndsWithAnyCase("duel.dm2!", ".dm2"));
}

}  // namespace
}  // namespace zentar
