#include "fuzz/plain_speech.h"

#include "q3tools/colour_codes.h"

namespace zentar::fuzz {

namespace {

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

void CutFront(std::string& name, const std::string& front) {
    if (name.starts_with(front)) {
        name = name.substr(front.size());
    }
}

std::string WithoutFront(const std::string& name) {
    for (const char* front : {"\1", "<RED> ", "<BLUE> ", "<SPEC> "}) {
        std::string rest = name;
        CutFront(rest, front);
        if (rest != name) {
            return rest;
        }
    }
    return name;
}

bool IsEnclosed(const std::string& name) { return name.starts_with("(") && name.ends_with(")"); }

bool IsQuake3Message(const std::string& line, const std::string& name) {
    for (const char* end : {" Item", " ClientBegin", " ClientConnect", " ClientDisconnect",
                            " ClientUserinfoChanged", " InitGame"}) {
        if (name.ends_with(end)) {
            return true;
        }
    }
    return Has(line, ": ping time ") || Has(name, " Client") || Has(name, " Kill");
}

}  // namespace

std::vector<std::string> PlainLines(std::string_view bytes) {
    std::vector<std::string> lines;
    std::string line;
    for (const char c : bytes) {
        if (c == '\r' || c == '\n') {
            lines.push_back(line);
            line.clear();
        } else {
            line += c;
        }
    }
    return lines;
}

std::string PlainWithoutMarkers(std::string line) {
    for (const std::string marker : {" sayteam: ", " say: ", " vtell: ", " tell: "}) {
        if (Has(line, marker)) {
            line = line.substr(line.find(marker) + marker.size());
        }
    }
    return line;
}

std::optional<std::string> PlainSpeaker(std::string line, bool quake3) {
    if (quake3) {
        line = PlainWithoutMarkers(line);
    }
    if (!Has(line, ": ")) {
        return std::nullopt;
    }
    std::string name = line.substr(0, line.find(": "));
    if (Has(name, std::string(1, '\0')) || line.ends_with(": challenge") ||
        line.ends_with(": client_connect") || line.ends_with(": print")) {
        return std::nullopt;
    }
    if (quake3) {
        name = StripColourCodes(name);
        name = name.substr(0, name.find(" to "));
    }
    name = WithoutFront(name);
    if (IsEnclosed(name) && !Has(name, " (")) {
        name = name.substr(1, name.size() - 2);
    }
    if (!quake3) {
        return name;
    }
    if (IsQuake3Message(line, name)) {
        return std::nullopt;
    }
    if (IsEnclosed(name) && Has(name, " (")) {
        const auto place = static_cast<int>(name.find(" (")) + 1;
        name = place > 3 ? name.substr(1, static_cast<std::size_t>(place - 3)) : "";
    }
    return name;
}

}  // namespace zentar::fuzz
