#include "transcripts/transcript_writer.h"

#include <bit>
#include <utility>

#include "core/program_info.h"
#include "q3tools/colour_codes.h"
#include "transcripts/speech_line.h"

namespace zentar {
namespace {

std::string ColourToHtmlHex(ColourRef colour) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string hex;
    for (int channel = 0; channel < 3; ++channel) {
        const ColourRef value = colour >> (8U * static_cast<unsigned>(channel)) & 0xFFU;
        hex += kDigits[value / 16];
        hex += kDigits[value % 16];
    }
    return hex;
}

std::string_view WithoutScheme(std::string_view address) {
    constexpr std::string_view kScheme = "://";
    const std::size_t at = address.find(kScheme);
    return at == std::string_view::npos ? address : address.substr(at + kScheme.size());
}

bool HasBrackets(std::string_view text) {
    return text.find('<') != std::string_view::npos || text.find('>') != std::string_view::npos;
}

// The ampersand stays: speech in HTML is as players wrote it before.
std::string EscapeBrackets(std::string_view text) {
    std::string escaped;
    for (const char character : text) {
        if (character == '<') {
            escaped += "&lt;";
        } else if (character == '>') {
            escaped += "&gt;";
        } else {
            escaped += character;
        }
    }
    return escaped;
}

}  // namespace

TranscriptWriter::TranscriptWriter(const TranscriptOptions& options, Sink sink)
    : options_(options),
      sink_(std::move(sink)),
      br_(options.html ? "<br>" : ""),
      p_(options.html ? "<p>" : "") {
    static_assert(kPlayerBoxes <= 32, "a bit for each box");
    for (std::size_t box = 0; box < kPlayerBoxes; ++box) {
        const std::string& name = options.players[box].name;
        if (!name.empty()) {
            boxesByFirstByte_[static_cast<unsigned char>(name.front())] |= 1U << box;
        }
    }
}

void TranscriptWriter::Write(std::initializer_list<std::string_view> pieces) {
    line_.clear();
    for (const std::string_view piece : pieces) {
        line_ += piece;
    }
    line_ += "\r\n";
    sink_(line_);
}

std::string_view TranscriptWriter::Escaped(std::string_view text) {
    if (!options_.html || !HasBrackets(text)) {
        return text;
    }
    escaped_ = EscapeBrackets(text);
    return escaped_;
}

void TranscriptWriter::Begin() {
    WriteHead();
    Write({p_});
    Write({"Chat transcript of \"", options_.source, "\"."});
    Write({p_});
    Write({"The following players were chosen to be part of this transcript:", br_});
    if (!options_.html) {
        Write({});
    }
    WritePlayers();
    Write({p_});
    Write({options_.html
               ? "<b><i>START OF TRANSCRIPT</i></b>"
               : "------------------------ START OF TRANSCRIPT -------------------------"});
    Write({p_});
}

void TranscriptWriter::WriteHead() {
    if (options_.html) {
        Write({"<html>"});
        Write({"<body bgcolor=\"", ColourToHtmlHex(options_.background.value_or(kWhite)),
               "\" text=\"", ColourToHtmlHex(options_.messages.value_or(kBlack)), "\">"});
        Write({"<h3>"});
    }
    Write({kVersionLine, " Chat Transcript", br_});
    if (options_.html) {
        Write({"Web Site: <a href=\"", options_.webSite, "\">", WithoutScheme(options_.webSite),
               "</a>"});
        Write({"</h3>"});
    } else {
        Write({"Web Site: ", options_.webSite});
        Write({"-------------------------------"});
    }
}

void TranscriptWriter::WritePlayers() {
    constexpr std::string_view kBetween = ", ";
    const std::size_t limit = options_.html ? 999 : 71;
    std::string list;
    for (const ChosenPlayer& player : options_.players) {
        if (player.name.empty()) {
            continue;
        }
        const std::string_view name = Escaped(player.name);
        if (list.size() + name.size() + kBetween.size() >= limit) {
            Write({list, br_});
            list.clear();
        }
        list.append(name).append(kBetween);
    }
    if (!list.empty()) {
        list.resize(list.size() - kBetween.size());
        Write({list, "."});
    }
}

// Looks only for names of which the first byte is there.
const ChosenPlayer* TranscriptWriter::SpeakerIn(std::string_view name) const {
    std::uint32_t boxes = 0;
    for (const char byte : name) {
        boxes |= boxesByFirstByte_[static_cast<unsigned char>(byte)];
    }
    for (; boxes != 0; boxes &= boxes - 1) {
        const ChosenPlayer& player =
            options_.players[static_cast<std::size_t>(std::countr_zero(boxes))];
        if (name.find(player.name) != std::string_view::npos) {
            return &player;
        }
    }
    return nullptr;
}

void TranscriptWriter::Add(std::string_view line) {
    std::string plain;
    if (options_.quake3) {
        plain = StripColourCodes(line);
        line = WithoutSpeechMarkers(plain);
    }
    if (line.starts_with('\1')) {
        line.remove_prefix(1);
    }
    const std::size_t mark = FindSpeechMark(line);
    if (mark != std::string_view::npos) {
        if (const ChosenPlayer* speaker = SpeakerIn(line.substr(0, mark))) {
            WriteSpeech(line, *speaker);
        }
    } else if (options_.gameMessages && !line.empty()) {
        Write({Escaped(line), br_});
    }
}

// Speech is bold where messages of the game stand beside it.
void TranscriptWriter::WriteSpeech(std::string_view line, const ChosenPlayer& speaker) {
    const std::string_view text = Escaped(line);
    if (!options_.html || !speaker.colour) {
        Write({text, br_});
        return;
    }
    const bool bold = options_.gameMessages;
    Write({"<font color=\"", ColourToHtmlHex(*speaker.colour), "\">", bold ? "<b>" : "", text,
           bold ? "</b>" : "", "</font>", br_});
}

void TranscriptWriter::End() {
    Write({p_});
    if (options_.html) {
        Write({"<b><i>END OF TRANSCRIPT</i></b>"});
        Write({"</body>"});
        Write({"</html>"});
    } else {
        Write({"========================= END OF TRANSCRIPT =========================="});
    }
}

}  // namespace zentar
