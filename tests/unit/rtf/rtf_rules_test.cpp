// The reader against one that knows the same rules and looks each of them up anew.
#include <gtest/gtest.h>

#include <array>
#include <random>

#include "platform/rtf/rtf_reader.h"
#include "platform/rtf/rtf_writer.h"
#include "tests/unit/rtf/plain_rtf_reader.h"

namespace zentar {
namespace {

using testing::PlainReadRtf;

constexpr std::string_view kBegin = "{\\rtf1{\\colortbl;\\red255;\\blue255;}";

constexpr std::array<std::string_view, 12> kPieces = {
    "{", "}", "a", "\\cf1 ", "\\cf2", "\\plain", "\\u8364", "\\uc2", "\\*", "\\par", "\\v", " "};

constexpr std::array<std::string_view, 38> kMorePieces = {
    "{",         "}",     "{",       "}",        "a",         "b c",        ";",      "\\cf1 ",
    "\\cf2",     "\\cf",  "\\plain", "\\u8364",  "\\u-10179", "\\u-8704 ",  "\\uc0",  "\\uc2 ",
    "\\uc",      "\\*",   "\\par",   "\\v",      "\\v0 ",     "\\colortbl", "\\red7", "\\green",
    "\\fonttbl", "\\'e7", "\\'",     "\\bin3",   "\\pict",    "\\~",        "\\{",    "\\\\",
    "\r\n",      "-12",   "3",       "\\emdash", "\\fldrslt", "\\u2028?"};

void Check(const std::string& bytes) { ASSERT_EQ(ReadRtf(bytes), PlainReadRtf(bytes)) << bytes; }

void CheckAll(std::string& bytes, int pieces) {
    Check(bytes);
    if (pieces == 0) {
        return;
    }
    for (const std::string_view piece : kPieces) {
        const std::size_t length = bytes.size();
        bytes += piece;
        CheckAll(bytes, pieces - 1);
        bytes.resize(length);
    }
}

TEST(RtfRules, HoldForEveryShortDocument) {
    std::string bytes(kBegin);
    CheckAll(bytes, 4);
}

TEST(RtfRules, HoldForLongerDocuments) {
    std::mt19937 random(1);
    for (int document = 0; document < 10'000; ++document) {
        std::string bytes(kBegin);
        for (int piece = 0; piece < 24; ++piece) {
            bytes += kMorePieces[random() % kMorePieces.size()];
        }
        Check(bytes);
    }
}

TEST(RtfRules, HoldWhereverADocumentIsCutOff) {
    const std::vector<ColouredRun> runs = {{"a {b}", 0x0000FF}, {"Größe € 😀", 0x123456}};
    const std::string documents[] = {
        WriteRtf(runs),
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss MS Sans Serif;}}\r\n{\\colortbl\\red0\\green0"
        "\\blue0;\\red255\\green0\\blue0;}\r\n\\deflang1033\\pard\\plain\\f0\\fs17\\cf1 Bo\\plain"
        "\\f0\\fs17 b\r\n\\par }\r\n",
        "{\\rtf1{\\*\\generator Riched20;}\\uc1{\\field{\\*\\fldinst{\\b x}}{\\fldrslt{\\cf1 y}}}"
        "\\u-10179\\'3f\\u-8704\\'3f\\bin5 {}{}}z\\'e7\\v v\\v0\\par\\\r\n\\par}"};
    for (const std::string& document : documents) {
        for (std::size_t length = kBegin.find('1'); length <= document.size(); ++length) {
            Check(document.substr(0, length));
        }
    }
}

}  // namespace
}  // namespace zentar
