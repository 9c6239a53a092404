#include "transcripts/speech_line.h"

#include <algorithm>
#include <array>

#include "q3tools/colour_codes.h"

namespace zentar {
namespace {

constexpr std::string_view kSpeechMark = ": ";

constexpr std::array<std::string_view, 4> kSpeechMarkers = {
    " sayteam: ", " say: ", " vtell: ", " tell: "};

// What a team's log puts before a name; \1 makes a name golden.
constexpr std::array<std::string_view, 4> kPrefixes = {"\1", "<RED> ", "<BLUE> ", "<SPEC> "};

constexpr std::array<std::string_view, 3> kMessageEnds = {": challenge", ": client_connect",
                                                          ": print"};

// How messages of the consoles begin, in lower case; those with the same first byte stand together.
constexpr std::array<std::string_view, 83> kMessageBeginnings = {
    "...",
    "** author",
    "** max fps capped at  ",
    "** max rate capped at ",
    "** running",
    "** web",
    "[bw-admin]",
    "adding maps to cycle",
    "bind <key> [command]",
    "blaster   ",
    "bonus",
    "can't find pic",
    "cash giveaway",
    "cbuf_",
    "cdaudio_init",
    "chaingun  ",
    "cl_",
    "client",
    "cm_",
    "com_",
    "compiled vertex arrays",
    "compressed textures",
    "cpu",
    "enemy flag carrier killed",
    "error",
    "exe",
    "failed to load skin file",
    "fs_",
    "g.launcher",
    "gamedate",
    "gamename",
    "gamma",
    "gl_",
    "gl pfd",
    "grenades  ",
    "handle ",
    "head skin load failure",
    "hostname",
    "hunk_",
    "in_",
    "infostring",
    "ip",
    "item",
    "leg skin load failure",
    "loopback",
    "machinegun",
    "map",
    "multitexture",
    "mode",
    "msg_",
    "net_",
    "opening ip socket",
    "out of item",
    "picmip",
    "pixelformat",
    "ps_",
    "r.launcher",
    "r_",
    "railgun   ",
    "ref_",
    "rendering primitives",
    "requesting download",
    "s_",
    "s.shotgun ",
    "server",
    "set primary sound buffer format",
    "setting mode",
    "sound sampling rate",
    "sv_",
    "texenv add",
    "texture bits",
    "texturemode",
    "torso skin load failure",
    "total damage given",
    "total damage rcvd ",
    "type",
    "unknown item",
    "unknown command",
    "usage",
    "warning",
    "wipx_init",
    "working directory",
    "z_",
};

constexpr std::array<std::string_view, 2> kQuake3Ends = {" Item", " InitGame"};

bool IsWithin(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

template <typename Texts>
bool EndsWithAny(std::string_view text, const Texts& ends) {
    return std::any_of(ends.begin(), ends.end(),
                       [text](std::string_view end) { return text.ends_with(end); });
}

// Each of the markers ends with a speech mark, of which most lines have one or none.
bool HoldsSpeechMarker(std::string_view line) {
    for (std::size_t at = FindSpeechMark(line); at != std::string_view::npos;
         at = FindSpeechMark(line, at + 1)) {
        if (EndsWithAny(line.substr(0, at + kSpeechMark.size()), kSpeechMarkers)) {
            return true;
        }
    }
    return false;
}

// Where the messages stand whose beginnings have the same first byte.
struct Section {
    std::size_t begin = 0;
    std::size_t end = 0;
};

constexpr std::array<Section, 256> kSections = [] {
    std::array<Section, 256> sections{};
    for (std::size_t i = 0; i < kMessageBeginnings.size(); ++i) {
        Section& section = sections[static_cast<unsigned char>(kMessageBeginnings[i].front())];
        section.begin = section.end == 0 ? i : section.begin;
        section.end = i + 1;
    }
    return sections;
}();

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool BeginsWithLower(std::string_view text, std::string_view lower) {
    return text.size() >= lower.size() &&
           std::equal(lower.begin(), lower.end(), text.begin(),
                      [](char one, char other) { return one == Lower(other); });
}

bool BeginsAsMessage(std::string_view name) {
    if (name.empty()) {
        return false;
    }
    const Section section = kSections[static_cast<unsigned char>(Lower(name.front()))];
    const auto* const first = kMessageBeginnings.begin();
    return std::any_of(
        first + section.begin, first + section.end,
        [name](std::string_view beginning) { return BeginsWithLower(name, beginning); });
}

std::string_view WithoutPrefix(std::string_view name) {
    for (const std::string_view prefix : kPrefixes) {
        if (name.starts_with(prefix)) {
            return name.substr(prefix.size());
        }
    }
    return name;
}

bool IsInParentheses(std::string_view name) { return name.starts_with('(') && name.ends_with(')'); }

bool IsQuake3Message(std::string_view line, std::string_view name) {
    return EndsWithAny(name, kQuake3Ends) || IsWithin(name, " Client") || IsWithin(name, " Kill") ||
           IsWithin(line, ": ping time ");
}

}  // namespace

std::size_t FindSpeechMark(std::string_view line, std::size_t from) {
    for (std::size_t at = line.find(':', from); at != std::string_view::npos;
         at = line.find(':', at + 1)) {
        if (at + 1 < line.size() && line[at + 1] == ' ') {
            return at;
        }
    }
    return std::string_view::npos;
}

std::string_view WithoutSpeechMarkers(std::string_view line) {
    if (!HoldsSpeechMarker(line)) {
        return line;
    }
    for (const std::string_view marker : kSpeechMarkers) {
        const std::size_t at = line.find(marker);
        if (at != std::string_view::npos) {
            line.remove_prefix(at + marker.size());
        }
    }
    return line;
}

std::optional<std::string> SpeakerOf(std::string_view line, bool quake3) {
    if (quake3) {
        line = WithoutSpeechMarkers(line);
    }
    const std::size_t mark = FindSpeechMark(line);
    if (mark == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view name = line.substr(0, mark);
    if (name.find('\0') != std::string_view::npos || EndsWithAny(line, kMessageEnds) ||
        BeginsAsMessage(name)) {
        return std::nullopt;
    }
    std::string plain;
    if (quake3) {
        plain = StripColourCodes(name);
        name = plain;
        name = name.substr(0, name.find(" to "));
    }
    name = WithoutPrefix(name);
    constexpr std::string_view kInner = " (";
    if (IsInParentheses(name) && !IsWithin(name, kInner)) {
        name = name.substr(1, name.size() - 2);
    }
    if (quake3 && IsQuake3Message(line, name)) {
        return std::nullopt;
    }
    if (quake3 && IsInParentheses(name) && IsWithin(name, kInner)) {
        // "(Bob) (Base)" is Bob, who is at the base. The blank stands behind his parenthesis.
        const std::size_t inner = name.find(kInner);
        name = name.substr(1, inner < 2 ? 0 : inner - 2);
    }
    return std::string(name);
}

}  // namespace zentar
