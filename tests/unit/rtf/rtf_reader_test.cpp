// What the editor shows of rich text that other programs wrote, whatever else it holds.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/rtf/rtf_reader.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Runs = std::vector<ColouredRun>;

constexpr ColourRef kRed = 0x0000FF;
constexpr ColourRef kBlue = 0xFF0000;

Runs RunsOf(const std::string& bytes) { return ReadRtf(bytes).value_or(Runs{{"no RTF", 1}}); }

// The text of a document that has this between its beginning and its end; all in one colour.
std::string TextOf(const std::string& inside) {
    const Runs runs = RunsOf("{\\rtf1\\ansi " + inside + "}");
    EXPECT_LE(runs.size(), 1U);
    return runs.empty() ? "" : runs[0].text;
}

// The same with a table of the colours red (1) and blue (2).
Runs Coloured(const std::string& inside) {
    return RunsOf("{\\rtf1{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}" + inside +
                  "}");
}

TEST(RtfReader, WhatIsNoRichTextIsNotRead) {
    EXPECT_FALSE(ReadRtf(""));
    EXPECT_FALSE(ReadRtf("seta name \"Bob\""));
    EXPECT_FALSE(ReadRtf("{\\rt"));
    EXPECT_FALSE(ReadRtf(" {\\rtf1 a}"));
    EXPECT_FALSE(ReadRtf("\\rtf1 a"));
}

TEST(RtfReader, ADocumentMayBeEmptyOrEndAnywhere) {
    EXPECT_THAT(RunsOf("{\\rtf"), IsEmpty());
    EXPECT_THAT(RunsOf("{\\rtf1}"), IsEmpty());
    EXPECT_THAT(RunsOf("{\\rtf1 ab"), ElementsAre(ColouredRun{"ab", 0}));
    EXPECT_THAT(RunsOf("{\\rtf1 ab\\"), ElementsAre(ColouredRun{"ab", 0}));
    EXPECT_THAT(RunsOf("{\\rtf1 ab{{"), ElementsAre(ColouredRun{"ab", 0}));
}

TEST(RtfReader, NothingIsReadBehindTheDocument) {
    EXPECT_THAT(RunsOf("{\\rtf1 a}b}}{c"), ElementsAre(ColouredRun{"a", 0}));
}

TEST(RtfReader, BackslashAndBracesAreEscaped) { EXPECT_EQ(TextOf("\\{a\\\\b\\}"), "{a\\b}"); }

TEST(RtfReader, EachEndOfALineOrCellIsABlank) {
    EXPECT_EQ(TextOf("a\\par b\\line c\\tab d\\cell e\\row f\\page g"), "a b c d e f g");
    EXPECT_EQ(TextOf("a\\sect b\\column c\\nestcell d\\nestrow e"), "a b c d e");
    EXPECT_EQ(TextOf("a\\\rb\\\nc\\\td\te\x01"
                     "f\x7Fg"),
              "a b c d e f g");
    EXPECT_EQ(TextOf("a\\\r\nb"), "a b");
    EXPECT_EQ(TextOf("a\\u8232?b\\u8233?c\\u10?d\\'0ae"), "a b c d e");
}

TEST(RtfReader, LineEndsAndZerosOfTheFileAreNoText) {
    EXPECT_EQ(TextOf("a\r\nb\nc\rd" + std::string(1, '\0') + "e"), "abcde");
}

TEST(RtfReader, TheLastEndOfALineIsNoText) {
    EXPECT_EQ(TextOf("a\\par"), "a");
    EXPECT_EQ(TextOf("a\\par \\line\\tab\\u10?"), "a");
    EXPECT_EQ(TextOf("\\par"), "");
    EXPECT_EQ(TextOf("\\par a"), " a");
    EXPECT_EQ(TextOf("a \\par"), "a ");
    EXPECT_EQ(TextOf("a\\par  \\par"), "a  ");
    EXPECT_THAT(Coloured("\\cf1 a\\cf2\\par\\cf1\\par"), ElementsAre(ColouredRun{"a", kRed}));
}

TEST(RtfReader, OneBlankBehindAControlWordBelongsToIt) {
    EXPECT_EQ(TextOf("\\b0 a\\b  b\\i\\f1c\\fs-20d\\fs-e"),
              "a bc"
              "d-e");
}

TEST(RtfReader, ControlWordsMayHaveCapitalLetters) {
    EXPECT_EQ(TextOf("\\Unheard1 a\\wordIs b"), "ab");
}

TEST(RtfReader, SignsThatHaveAWordAreThemselves) {
    EXPECT_EQ(TextOf("\\emdash\\endash\\emspace\\enspace\\qmspace"), "—–\u2003\u2002\u2005");
    EXPECT_EQ(TextOf("\\lquote\\rquote\\ldblquote\\rdblquote\\bullet"), "‘’“”•");
    EXPECT_EQ(TextOf("\\ltrmark\\rtlmark\\zwj\\zwnj a"),
              "\u200E\u200F\u200D\u200C"
              "a");
    EXPECT_EQ(TextOf("\\~\\_\\-"), "\u00A0\u2011\u00AD");
    EXPECT_EQ(TextOf("a\\|b\\:c\\%d"), "abcd");
}

TEST(RtfReader, HexBytesThatAreNoneAreText) {
    EXPECT_EQ(TextOf("\\'e7\\'F4\\'41"), "çôA");
    EXPECT_EQ(TextOf("\\'4g\\'g4"), "4gg4");
    EXPECT_EQ(TextOf("a\\'"), "a");
}

TEST(RtfReader, UnicodeStandsBeforeItsFallback) {
    EXPECT_EQ(TextOf("\\u8364?\\u1076 d\\u-3?e"),
              "€д\uFFFD"
              "e");
    EXPECT_EQ(TextOf("\\u8364\\'80b"), "€b");
    EXPECT_EQ(TextOf("\\u8364\\emdash b"), "€b");
    EXPECT_EQ(TextOf("\\u8364\r\nab"), "€b");
    EXPECT_EQ(TextOf("\\uc0\\u8364 a"), "€a");
    EXPECT_EQ(TextOf("\\uc3\\u8364 abcd"), "€d");
    EXPECT_EQ(TextOf("\\uc-1\\u8364 a"), "€a");
    EXPECT_EQ(TextOf("\\uc2\\u8364 a\\bin3 {}}b"), "€b");
}

TEST(RtfReader, AFallbackEndsWithItsGroup) {
    EXPECT_EQ(TextOf("\\uc3{\\u8364 a}bcde"), "€bcde");
    EXPECT_EQ(TextOf("\\uc3\\u8364 a{b}c"), "€bc");
    EXPECT_EQ(TextOf("{\\uc0\\u8364}\\u8364 ab"), "€€b");
}

TEST(RtfReader, SurrogatesMakeOneCharacterOrNone) {
    EXPECT_EQ(TextOf("\\u-10179?\\u-8704?"), "\U0001F600");
    EXPECT_EQ(TextOf("\\u55357?\\u56832?"), "\U0001F600");
    EXPECT_EQ(TextOf("\\u128512?"), "\U0001F600");
    EXPECT_EQ(TextOf("\\u-10179?a\\u-8704?"), "\uFFFDa\uFFFD");
    EXPECT_EQ(TextOf("\\u-10179?\\u-10179?\\u-8704?"), "\uFFFD\U0001F600");
    EXPECT_EQ(TextOf("\\u-10179?"), "\uFFFD");
}

TEST(RtfReader, NumbersBeyondEverythingAreNoCharacters) {
    EXPECT_EQ(TextOf("\\u1114111?"), "\U0010FFFF");
    EXPECT_EQ(TextOf("\\u1114112?\\u-65537?\\u99999999999999999999?\\u-99999999999999999999?"),
              "\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_THAT(Coloured("\\cf99999999999999999999 a\\cf-99999999999999999999 b"),
                ElementsAre(ColouredRun{"ab", 0}));
    EXPECT_EQ(TextOf("\\uc99999999999999999999\\u8364 abc"), "€");
}

TEST(RtfReader, ColoursComeFromTheTable) {
    EXPECT_THAT(Coloured("a\\cf1 b\\cf2 c\\cf0 d"),
                ElementsAre(ColouredRun{"a", 0}, ColouredRun{"b", kRed}, ColouredRun{"c", kBlue},
                            ColouredRun{"d", 0}));
    EXPECT_THAT(Coloured("\\cf1 a\\cf b"),
                ElementsAre(ColouredRun{"a", kRed}, ColouredRun{"b", 0}));
    EXPECT_THAT(Coloured("\\cf3 a\\cf-1 b"), ElementsAre(ColouredRun{"ab", 0}));
    EXPECT_THAT(RunsOf("{\\rtf1\\cf1 a}"), ElementsAre(ColouredRun{"a", 0}));
}

TEST(RtfReader, TheTableMayBeginWithAColourWhichTextHasOnlyByItsNumber) {
    const std::string table = "{\\colortbl\\red0\\green0\\blue255;\\red255\\green0\\blue0;}";
    EXPECT_THAT(RunsOf("{\\rtf1" + table + "a\\cf0 b\\cf1 c\\cf d\\plain e}"),
                ElementsAre(ColouredRun{"a", 0}, ColouredRun{"b", kBlue}, ColouredRun{"c", kRed},
                            ColouredRun{"d", kBlue}, ColouredRun{"e", 0}));
}

TEST(RtfReader, TheTableMayBeBroken) {
    EXPECT_THAT(RunsOf("{\\rtf1{\\colortbl;\\red300\\green-5\\blue7 }\\cf1 a}"),
                ElementsAre(ColouredRun{"a", 0x0700FF}));
    EXPECT_THAT(RunsOf("{\\rtf1{\\colortbl;\\red\\green9\\blue;}\\cf1 a}"),
                ElementsAre(ColouredRun{"a", 0x000900}));
    EXPECT_THAT(RunsOf("{\\rtf1{\\colortbl;\\red1\\red2;\\ctint255 text;;\\blue1;}\\cf1 a\\cf4 b}"),
                ElementsAre(ColouredRun{"a", 2}, ColouredRun{"b", 0x010000}));
    EXPECT_THAT(RunsOf("{\\rtf1{\\colortbl{;\\red1;}}\\cf1 a}"), ElementsAre(ColouredRun{"a", 1}));
}

TEST(RtfReader, AGroupKeepsItsColourToItself) {
    EXPECT_THAT(
        Coloured("\\cf1 a{b\\cf2 c}d"),
        ElementsAre(ColouredRun{"ab", kRed}, ColouredRun{"c", kBlue}, ColouredRun{"d", kRed}));
}

TEST(RtfReader, PlainTextIsBlackAndShown) {
    EXPECT_THAT(Coloured("\\cf1 a\\plain b"),
                ElementsAre(ColouredRun{"a", kRed}, ColouredRun{"b", 0}));
    EXPECT_THAT(Coloured("\\cf1 a\\pard b"), ElementsAre(ColouredRun{"ab", kRed}));
    EXPECT_EQ(TextOf("\\v a\\plain b"), "b");
}

TEST(RtfReader, NeighboursOfOneColourAreOneRun) {
    EXPECT_THAT(Coloured("\\cf1 a\\cf2\\cf1{\\b b}\\plain\\cf1 c"),
                ElementsAre(ColouredRun{"abc", kRed}));
}

TEST(RtfReader, HiddenTextIsNotShown) {
    EXPECT_EQ(TextOf("a\\v b\\u8364?\\par\\v0 c{\\v d}e\\v1 f"), "ace");
}

TEST(RtfReader, WhatIsNoTextIsPassedOver) {
    for (const char* const word : {"fonttbl",      "stylesheet",
                                   "info",         "pict",
                                   "object",       "objdata",
                                   "header",       "headerl",
                                   "footer",       "footerr",
                                   "footnote",     "fldinst",
                                   "pntext",       "listtext",
                                   "*\\generator", "*\\themedata",
                                   "*\\unheard",   "*",
                                   "xe",           "tc",
                                   "shp",          "nonshppict",
                                   "bkmkstart",    "template",
                                   "listtable",    "listoverridetable",
                                   "filetbl",      "revtbl",
                                   "aftncn",       "aftnsep",
                                   "aftnsepc",     "annotation",
                                   "bkmkend",      "footerf",
                                   "footerl",      "ftncn",
                                   "ftnsep",       "ftnsepc",
                                   "generator",    "headerf",
                                   "headerr",      "nextfile",
                                   "private",      "rxe",
                                   "tcn"}) {
        EXPECT_EQ(TextOf("a{\\" + std::string(word) + " b{c}\\par d;}e"), "ae") << word;
    }
}

TEST(RtfReader, UnknownGroupsAreText) {
    EXPECT_EQ(TextOf("a{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt b}}{\\unheard c}d"),
              "abcd");
    EXPECT_EQ(TextOf("{\\parents a}{\\fonttbl2 b}{\\infos c}"), "ac");
}

TEST(RtfReader, TheDocumentItselfIsTextWhateverItSays) {
    EXPECT_EQ(TextOf("a\\*b\\pict c\\colortbl d"), "abcd");
}

TEST(RtfReader, BytesOfPicturesMayLookLikeAnything) {
    EXPECT_EQ(TextOf("a{\\pict\\bin4 }}}}b}c"), "ac");
    EXPECT_EQ(TextOf("a\\bin4 }}}}b\\bin0 c\\bin-3 d\\bin e"), "abcde");
    EXPECT_EQ(TextOf("a\\bin999999999999 b"), "a");
}

TEST(RtfReader, GroupsMayBeAsDeepAsTheyLike) {
    const auto nested = [](std::size_t depth, const std::string& inner) {
        std::string body = "a";
        body.append(depth, '{').append(inner).append(depth, '}').append("c");
        return TextOf(body);
    };
    EXPECT_EQ(nested(9'999, "b"), "abc");
    // Deeper than any program writes.
    EXPECT_EQ(nested(10'000, "b"), "ac");
    EXPECT_EQ(nested(1'000'000, "b\\bin2 }}\\v"), "ac");
    std::string opened = "{\\rtf1 a";
    opened.append(1'000'000, '{');
    EXPECT_EQ(RunsOf(opened).size(), 1U);
    EXPECT_EQ(TextOf(std::string(1'000'000, '}')), "");
}

TEST(RtfReader, TakesAsManyCharactersAsANameCouldEverNeed) {
    EXPECT_EQ(TextOf(std::string(kMostRtfCharacters, 'x')), std::string(kMostRtfCharacters, 'x'));
    EXPECT_EQ(TextOf(std::string(2'000'000, 'x')), std::string(kMostRtfCharacters, 'x'));
    std::string text;
    for (std::size_t i = 0; i < kMostRtfCharacters; ++i) {
        text += "\\u-10179?\\u-8704?";
    }
    EXPECT_EQ(TextOf(text + "a").size(), 4 * kMostRtfCharacters);
    const std::string allButOne(kMostRtfCharacters - 1, 'x');
    EXPECT_EQ(TextOf(allButOne + "\\u-10179?a"), allButOne + "\uFFFD");
}

// By the rich text box of Windows and by that of the 1990s.
TEST(RtfReader, ReadsWhatTheUsualEditorsWrite) {
    EXPECT_THAT(
        RunsOf(
            "{\\rtf1\\ansi\\ansicpg1252\\deff0\\nouicompat\\deflang1033{\\fonttbl{\\f0\\fnil"
            "\\fcharset0 Calibri;}}\r\n{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green0"
            "\\blue255;}\r\n{\\*\\generator Riched20 10.0.19041}\\viewkind4\\uc1 \r\n\\pard\\sa200"
            "\\sl276\\slmult1\\cf1\\f0\\fs22\\lang9 Bo\\cf2 b\\cf0\\par\r\n}\r\n"),
        ElementsAre(ColouredRun{"Bo", kRed}, ColouredRun{"b", kBlue}));
    EXPECT_THAT(
        RunsOf("{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}{\\f1\\froman"
               "\\fcharset2 Symbol;}}\r\n{\\colortbl\\red0\\green0\\blue0;\\red255\\green0\\blue0;"
               "\\red0\\green0\\blue255;}\r\n\\deflang1033\\pard\\plain\\f0\\fs17\\cf1 Bo"
               "\\plain\\f0\\fs17\\cf2 b\\plain\\f0\\fs17 !\r\n\\par }\r\n"),
        ElementsAre(ColouredRun{"Bo", kRed}, ColouredRun{"b", kBlue}, ColouredRun{"!", 0}));
}

}  // namespace
}  // namespace zentar
