// Transcripts of whatever consoles and names there are, in all forms.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "fuzz/plain_speech.h"
#include "fuzz/require.h"
#include "q3tools/colour_codes.h"
#include "transcripts/transcript_writer.h"

namespace {

using namespace zentar;
using fuzz::Require;

constexpr std::string_view kSource = "C:\\qconsole.log";
constexpr std::string_view kSite = "https://zentar.example/";
constexpr ColourRef kSpeech = 0x563412;
constexpr std::string_view kColoured = "<font color=\"123456\">";

// The first line holds the names, between NULs.
std::vector<std::string> NamesIn(std::string_view line) {
    std::vector<std::string> names(1);
    for (const char c : line) {
        if (c != '\0') {
            names.back() += c;
        } else if (names.size() < kPlayerBoxes) {
            names.emplace_back();
        }
    }
    return names;
}

std::string WithoutBrackets(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        escaped += c == '<' ? "&lt;" : c == '>' ? "&gt;" : std::string(1, c);
    }
    return escaped;
}

// What a line of the console becomes; every other name has a colour.
std::vector<std::string> PlainTranscript(std::string line, const TranscriptOptions& options) {
    if (options.quake3) {
        line = fuzz::PlainWithoutMarkers(StripColourCodes(line));
    }
    if (line.starts_with('\1')) {
        line = line.substr(1);
    }
    const std::string text = options.html ? WithoutBrackets(line) : line;
    const std::string end = options.html ? "<br>" : "";
    const std::size_t mark = line.find(": ");
    if (mark == std::string::npos) {
        return options.gameMessages && !line.empty() ? std::vector{text + end}
                                                     : std::vector<std::string>{};
    }
    for (const ChosenPlayer& player : options.players) {
        if (player.name.empty() || line.substr(0, mark).find(player.name) == std::string::npos) {
            continue;
        }
        if (!options.html || !player.colour) {
            return {text + end};
        }
        return {std::string(kColoured) + (options.gameMessages ? "<b>" + text + "</b>" : text) +
                "</font>" + end};
    }
    return {};
}

// Each bracket belongs to one of the tags that a transcript is made of.
void CheckTags(std::string_view line) {
    constexpr std::array<std::string_view, 16> kTags = {"<html>",
                                                        "<body bgcolor=\"ffffff\" text=\"000000\">",
                                                        "<h3>",
                                                        "</h3>",
                                                        "<br>",
                                                        "<p>",
                                                        "<b>",
                                                        "</b>",
                                                        "<i>",
                                                        "</i>",
                                                        kColoured,
                                                        "</font>",
                                                        "<a href=\"https://zentar.example/\">",
                                                        "</a>",
                                                        "</body>",
                                                        "</html>"};
    for (std::size_t at = line.find_first_of("<>"); at != std::string_view::npos;
         at = line.find_first_of("<>")) {
        line.remove_prefix(at);
        const auto* const tag =
            std::find_if(kTags.begin(), kTags.end(),
                         [line](std::string_view known) { return line.starts_with(known); });
        Require(tag != kTags.end());
        line.remove_prefix(tag->size());
    }
}

// The lines between the head and the foot, whose lengths are known but for the list of the players.
void CheckTranscript(const std::vector<std::string>& written, const std::vector<std::string>& body,
                     const TranscriptOptions& options) {
    const std::string start = options.html ? "<b><i>START OF TRANSCRIPT</i></b>"
                                           : "------------------------ START OF TRANSCRIPT "
                                             "-------------------------";
    const std::size_t feet = options.html ? 4 : 2;
    Require(written.size() >= body.size() + feet);
    const auto end = written.end() - static_cast<std::ptrdiff_t>(feet);
    const auto begin = end - static_cast<std::ptrdiff_t>(body.size());
    Require(std::equal(begin, end, body.begin()));
    Require(begin - written.begin() >= 2 && *(begin - 2) == start);
    const std::size_t heads = static_cast<std::size_t>(begin - written.begin());
    constexpr std::size_t kMostHeads = 13;
    Require(heads <= kMostHeads + kPlayerBoxes);
}

void Check(const TranscriptOptions& options, const std::vector<std::string>& lines) {
    std::vector<std::string> written;
    TranscriptWriter writer(options, [&written](std::string_view line) {
        Require(line.ends_with("\r\n"));
        written.emplace_back(line.substr(0, line.size() - 2));
        Require(written.back().find_first_of("\r\n") == std::string::npos);
    });
    writer.Begin();
    std::vector<std::string> body;
    for (const std::string& line : lines) {
        const auto more = PlainTranscript(line, options);
        body.insert(body.end(), more.begin(), more.end());
        writer.Add(line);
    }
    writer.End();
    CheckTranscript(written, body, options);
    if (options.html) {
        std::for_each(written.begin(), written.end(), CheckTags);
    }
}

}  // namespace

// The first byte says in which form.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    std::vector<std::string> lines =
        fuzz::PlainLines({reinterpret_cast<const char*>(data) + 1, size - 1});
    if (lines.empty()) {
        return 0;
    }
    TranscriptOptions options{.html = (data[0] & 1U) != 0,
                              .gameMessages = (data[0] & 2U) != 0,
                              .quake3 = (data[0] & 4U) != 0,
                              .players = {},
                              .background = {},
                              .messages = {},
                              .source = std::string(kSource),
                              .webSite = std::string(kSite)};
    const std::vector<std::string> names = NamesIn(lines.front());
    for (std::size_t box = 0; box < names.size(); ++box) {
        options.players[box].name = names[box];
        if (box % 2 == 0) {
            options.players[box].colour = kSpeech;
        }
    }
    lines.erase(lines.begin());
    Check(options, lines);
    return 0;
}
