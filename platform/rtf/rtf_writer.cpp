#include "platform/rtf/rtf_writer.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "platform/code_page.h"
#include "platform/rtf/coloured_text.h"
#include "platform/rtf/unicode.h"
#include "platform/utf16.h"

namespace zentar {
namespace {

std::vector<ColourRef> ColoursOf(std::span<const ColouredRun> runs) {
    std::vector<ColourRef> colours;
    colours.reserve(runs.size());
    for (const ColouredRun& run : runs) {
        colours.push_back(run.colour);
    }
    std::sort(colours.begin(), colours.end());
    colours.erase(std::unique(colours.begin(), colours.end()), colours.end());
    return colours;
}

// The first entry is empty: the colour of a text that has none.
std::string ColourTable(const std::vector<ColourRef>& colours) {
    std::string table = "{\\colortbl ;";
    for (const ColourRef colour : colours) {
        table += "\\red" + std::to_string(colour & 0xFFU);
        table += "\\green" + std::to_string(colour >> 8U & 0xFFU);
        table += "\\blue" + std::to_string(colour >> 16U & 0xFFU) + ";";
    }
    return table + "}";
}

// A UTF-16 unit, and what readers show that do not know "\u".
void AppendUnit(std::string& rtf, char32_t unit) {
    const auto number = static_cast<int>(unit);
    rtf += "\\u" + std::to_string(number < 0x8000 ? number : number - 0x10000) + "?";
}

// Characters of the document's code page as bytes, which the oldest readers understand too.
void AppendCharacter(std::string& rtf, char32_t point) {
    constexpr std::string_view kHex = "0123456789abcdef";
    constexpr std::string_view kEscaped = "\\{}";
    const auto byte = ByteOfCodePoint(point);
    if (point >= 0x10000) {
        AppendUnit(rtf, FirstHalfOf(point));
        AppendUnit(rtf, SecondHalfOf(point));
    } else if (!byte) {
        AppendUnit(rtf, point);
    } else if (*byte >= 0x80) {
        rtf.append("\\'") += kHex[*byte / 16];
        rtf += kHex[*byte % 16];
    } else {
        if (kEscaped.find(static_cast<char>(*byte)) != std::string_view::npos) {
            rtf += '\\';
        }
        rtf += static_cast<char>(*byte);
    }
}

void AppendText(std::string& rtf, std::string_view text) {
    while (!text.empty()) {
        if (text.starts_with("\r\n")) {
            text.remove_prefix(1);
        }
        const char32_t point = TakeUtf8(text);
        AppendCharacter(rtf, StandsAsBlank(point) ? U' ' : point);
    }
}

}  // namespace

// A font that does not name its character set has the one of the reader's own code page, which then
// stands for the document's.
std::string WriteRtf(std::span<const ColouredRun> runs) {
    const std::vector<ColourRef> colours = ColoursOf(runs);
    std::string rtf =
        "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Courier New;}}\r\n";
    rtf += ColourTable(colours) + "\r\n\\uc1\\pard\\f0";
    for (const ColouredRun& run : runs) {
        const auto place = std::lower_bound(colours.begin(), colours.end(), run.colour);
        rtf += "\\cf" + std::to_string(place - colours.begin() + 1) + " ";
        AppendText(rtf, run.text);
    }
    return rtf + "\\par\r\n}\r\n";
}

}  // namespace zentar
