#include "core/text.h"

#include <algorithm>
#include <utility>

namespace zentar {
namespace {

// A code point of UTF-8 text and how many bytes it takes; a byte that is no UTF-8 gives itself with
// length 1 and `valid` false.
struct CodePoint {
    char32_t value;
    std::size_t length;
    bool valid;
};

bool IsContinuation(std::string_view text, std::size_t at) {
    return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
}

CodePoint Decode(std::string_view text, std::size_t at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    if (lead < 0x80) {
        return {lead, 1, true};
    }
    // Only two-byte sequences carry the letters that change; the others pass as they are.
    if (lead >= 0xC2 && lead < 0xE0 && IsContinuation(text, at + 1)) {
        const auto next = static_cast<unsigned char>(text[at + 1]);
        return {static_cast<char32_t>(((lead & 0x1FU) << 6U) | (next & 0x3FU)), 2, true};
    }
    return {lead, 1, false};
}

bool Within(char32_t c, char32_t first, char32_t last) { return c >= first && c <= last; }

// In these stretches of Latin Extended-A and Cyrillic, capitals and small letters alternate; the
// capital is the even one in some, the odd one in others.
bool IsEvenCapital(char32_t c) {
    return (c % 2) == 0 &&
           (Within(c, 0x100, 0x12F) || Within(c, 0x132, 0x137) || Within(c, 0x14A, 0x177) ||
            Within(c, 0x460, 0x481) || Within(c, 0x48A, 0x4BF) || Within(c, 0x4D0, 0x52F));
}

bool IsOddCapital(char32_t c) {
    return (c % 2) == 1 && (Within(c, 0x139, 0x148) || Within(c, 0x179, 0x17E));
}

char32_t LowerLetter(char32_t c) {
    if (Within(c, U'A', U'Z')) {
        return c + 32;
    }
    if (c < 0xC0) {
        return c;
    }
    if (Within(c, 0xC0, 0xDE) && c != 0xD7) {
        return c + 32;
    }
    if (IsEvenCapital(c) || IsOddCapital(c)) {
        return c + 1;
    }
    if (Within(c, 0x391, 0x3A9) && c != 0x3A2) {
        return c + 32;
    }
    if (Within(c, 0x410, 0x42F)) {
        return c + 32;
    }
    if (Within(c, 0x400, 0x40F)) {
        return c + 80;
    }
    return c;
}

}  // namespace

std::string LowerCase(std::string_view text) {
    std::string lower;
    lower.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = Decode(text, at);
        const char32_t small = point.valid ? LowerLetter(point.value) : point.value;
        if (!point.valid || small < 0x80) {
            lower += static_cast<char>(small);
        } else {
            lower += static_cast<char>(0xC0U | (small >> 6U));
            lower += static_cast<char>(0x80U | (small & 0x3FU));
        }
        at += point.length;
    }
    return lower;
}

std::string LowerAscii(std::string_view bytes) {
    std::string lower(bytes);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c + ('a' - 'A'));
        }
    }
    return lower;
}

void SortAlphabetically(std::vector<std::string>& texts) {
    std::vector<std::pair<std::string, std::string>> keyed;
    keyed.reserve(texts.size());
    for (std::string& text : texts) {
        std::string key = LowerCase(text);
        keyed.emplace_back(std::move(key), std::move(text));
    }
    std::sort(keyed.begin(), keyed.end());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        texts[i] = std::move(keyed[i].second);
    }
}

std::string TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(' ') + 1 - first));
}

bool EndsWithAnyCase(std::string_view text, std::string_view lowerEnd) {
    return text.size() >= lowerEnd.size() &&
           LowerAscii(text.substr(text.size() - lowerEnd.size())) == lowerEnd;
}

std::string WithBackslash(std::string path) {
    if (path.empty() || path.back() != '\\') {
        path += '\\';
    }
    return path;
}

std::string GroupDigits(std::uint64_t number, std::string_view separator) {
    const std::string digits = std::to_string(number);
    std::string grouped;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) {
            grouped += separator;
        }
        grouped += digits[i];
    }
    return grouped;
}

std::string Lines(std::initializer_list<std::string_view> lines) {
    std::string joined;
    bool first = true;
    for (const std::string_view line : lines) {
        if (!first) {
            joined += "\r\n";
        }
        first = false;
        joined += line;
    }
    return joined;
}

}  // namespace zentar
