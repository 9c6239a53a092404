// What is saved comes back as it was, and is what other editors read.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "core/game_text.h"
#include "platform/rtf/rtf_reader.h"
#include "platform/rtf/rtf_writer.h"
#include "platform/rtf/unicode.h"
#include "platform/utf8.h"

namespace zentar {
namespace {

using Runs = std::vector<ColouredRun>;

const std::string kBegin =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Courier New;}}\r\n";

Runs ThereAndBack(const Runs& runs) {
    const std::string bytes = WriteRtf(runs);
    EXPECT_TRUE(std::all_of(bytes.begin(), bytes.end(), [](char c) {
        return c == '\r' || c == '\n' || (c >= ' ' && c <= '~');
    }));
    return ReadRtf(bytes).value_or(Runs{});
}

// Of a black text.
std::string Written(const std::string& text) {
    const std::string bytes = WriteRtf(Runs{{text, 0}});
    const std::string begin = "\\pard\\f0\\cf1 ";
    const std::string end = "\\par\r\n}\r\n";
    const std::size_t at = bytes.find(begin) + begin.size();
    EXPECT_TRUE(bytes.ends_with(end));
    return bytes.substr(at, bytes.size() - end.size() - at);
}

TEST(RtfWriter, WritesColoursAndText) {
    EXPECT_EQ(WriteRtf(Runs{{"Bo", 0x0000FF}, {"b ", 0xFFFF00}, {"!", 0x0000FF}}),
              kBegin +
                  "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green255\\blue255;}\r\n"
                  "\\uc1\\pard\\f0\\cf1 Bo\\cf2 b \\cf1 !\\par\r\n}\r\n");
    EXPECT_EQ(WriteRtf({}), kBegin + "{\\colortbl ;}\r\n\\uc1\\pard\\f0\\par\r\n}\r\n");
}

TEST(RtfWriter, WritesAsciiAlone) {
    EXPECT_EQ(Written("a\\{b}"), "a\\\\\\{b\\}");
    EXPECT_EQ(Written("Größe"), "Gr\\'f6\\'dfe");
    EXPECT_EQ(Written("€\u0081\u009D"), "\\'80\\'81\\'9d");
    EXPECT_EQ(Written("\u0085д"), "\\u133?\\u1076?");
    EXPECT_EQ(Written("\u7FFF\u8000"), "\\u32767?\\u-32768?");
    EXPECT_EQ(Written("\uFFFD\U0001F600"), "\\u-3?\\u-10179?\\u-8704?");
}

TEST(RtfWriter, LineEndsBecomeBlanks) {
    EXPECT_EQ(Written("a\nb\rc\r\nd\te\u2028f\x7Fg"), "a b c d e f g");
    EXPECT_EQ(Written(std::string("a\0b\n\r", 5)), "a b  ");
}

TEST(RtfWriter, BrokenUtf8IsNoText) {
    EXPECT_EQ(Written("a\x80"
                      "b\xC3"),
              "a\\u-3?b\\u-3?");
    EXPECT_EQ(Written("\xC0\xAF"), "\\u-3?\\u-3?");
    EXPECT_EQ(Written("\xED\xA0\x80"), "\\u-3?\\u-3?\\u-3?");
    EXPECT_EQ(Written("\xF4\x90\x80\x80"), "\\u-3?\\u-3?\\u-3?\\u-3?");
    EXPECT_EQ(Written("\xF8"
                      "a\xE2\x82"
                      "b"),
              "\\u-3?a\\u-3?\\u-3?b");
}

TEST(RtfWriter, TextComesBackAsItWas) {
    const Runs runs{{" a", 0x0000FF}, {"  ", 0x123456}, {"\\'e7 {}1 ", 0}};
    EXPECT_EQ(ThereAndBack(runs), runs);
    EXPECT_EQ(ThereAndBack({}), Runs{});
    EXPECT_EQ(ThereAndBack({{"", 7}}), Runs{});
    EXPECT_EQ(ThereAndBack({{"a", 1}, {"", 7}, {"b", 1}}), (Runs{{"ab", 1}}));
}

TEST(RtfWriter, EachByteOfTheGameComesBack) {
    std::string bytes;
    std::string hex;
    for (int byte = 0x20; byte < 0x100; ++byte) {
        if (byte != 0x7F) {
            constexpr std::string_view kDigits = "0123456789abcdef";
            bytes += static_cast<char>(byte);
            hex += "\\'";
            hex += kDigits[static_cast<std::size_t>(byte / 16)];
            hex += kDigits[static_cast<std::size_t>(byte % 16)];
        }
    }
    const Runs runs{{GameTextToUtf8(bytes), 0x00FF00}};
    EXPECT_EQ(ThereAndBack(runs), runs);
    EXPECT_EQ(ReadRtf("{\\rtf1 " + hex + "}"), (Runs{{GameTextToUtf8(bytes), 0}}));
}

TEST(RtfWriter, EveryCharacterOfUnicodeComesBack) {
    std::string text;
    std::size_t count = 0;
    const auto check = [&] {
        const Runs runs{{text, 0}};
        EXPECT_EQ(ThereAndBack(runs), runs);
        text.clear();
        count = 0;
    };
    for (char32_t point = ' '; point <= 0x10FFFF; ++point) {
        const bool isSurrogate = point >= 0xD800 && point < 0xE000;
        if (isSurrogate || point == 0x7F || point == 0x2028 || point == 0x2029) {
            continue;
        }
        AppendUtf8(text, point);
        if (++count == kMostRtfCharacters) {
            check();
        }
    }
    check();
}

TEST(RtfWriter, EachCharacterMayHaveAColourOfItsOwn) {
    Runs runs;
    for (std::size_t i = 0; i < kMostRtfCharacters; ++i) {
        runs.push_back({"x", static_cast<ColourRef>(i * 255)});
    }
    EXPECT_EQ(ThereAndBack(runs), runs);
}

}  // namespace
}  // namespace zentar
