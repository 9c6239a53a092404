#include "core/text.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "platform/utf8.h"

namespace zentar {
namespace {

bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

char LowerAsciiLetter(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

bool Within(char32_t c, char32_t first, char32_t last) { return c >= first && c <= last; }

// In these stretches of Latin Extended and Cyrillic, capitals and small letters alternate; the
// capital is the even one in some, the odd one in others.
bool IsEvenCapital(char32_t c) {
    return (c % 2) == 0 &&
           (Within(c, 0x100, 0x12F) || Within(c, 0x132, 0x137) || Within(c, 0x14A, 0x177) ||
            Within(c, 0x1A0, 0x1A5) || Within(c, 0x1DE, 0x1EF) || Within(c, 0x1F8, 0x21F) ||
            Within(c, 0x222, 0x233) || Within(c, 0x460, 0x481) || Within(c, 0x48A, 0x4BF) ||
            Within(c, 0x4D0, 0x52F));
}

bool IsOddCapital(char32_t c) {
    return (c % 2) == 1 && (Within(c, 0x139, 0x148) || Within(c, 0x179, 0x17E) ||
                            Within(c, 0x1CD, 0x1DC) || Within(c, 0x4C1, 0x4CE));
}

// Those whose small letter stands where no rule would look for it: with an accent, mostly.
constexpr std::array<std::pair<char32_t, char32_t>, 10> kStrayCapitals = {{{0x178, 0xFF},
                                                                           {0x1AF, 0x1B0},
                                                                           {0x386, 0x3AC},
                                                                           {0x388, 0x3AD},
                                                                           {0x389, 0x3AE},
                                                                           {0x38A, 0x3AF},
                                                                           {0x38C, 0x3CC},
                                                                           {0x38E, 0x3CD},
                                                                           {0x38F, 0x3CE},
                                                                           {0x4C0, 0x4CF}}};

// Of a letter of two bytes, whose small form has two as well.
char32_t LowerLetter(char32_t c) {
    if (Within(c, 0xC0, 0xDE) && c != 0xD7) {
        return c + 32;
    }
    if (IsEvenCapital(c) || IsOddCapital(c)) {
        return c + 1;
    }
    if (Within(c, 0x391, 0x3AB) && c != 0x3A2) {
        return c + 32;
    }
    if (Within(c, 0x410, 0x42F)) {
        return c + 32;
    }
    if (Within(c, 0x400, 0x40F)) {
        return c + 80;
    }
    const auto* const stray = std::find_if(kStrayCapitals.begin(), kStrayCapitals.end(),
                                           [c](const auto& pair) { return pair.first == c; });
    return stray == kStrayCapitals.end() ? c : stray->second;
}

}  // namespace

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    for (std::size_t at = 0; at < lower.size(); ++at) {
        if (IsAscii(lower[at])) {
            lower[at] = LowerAsciiLetter(lower[at]);
        } else if (const auto first = FirstUtf8(text.substr(at)); first && first->length == 2) {
            // Only those are letters that change.
            const char32_t small = LowerLetter(first->point);
            lower[at] = static_cast<char>(0xC0U | (small >> 6U));
            lower[++at] = static_cast<char>(0x80U | (small & 0x3FU));
        }
    }
    return lower;
}

std::string LowerAscii(std::string_view bytes) {
    std::string lower(bytes);
    for (char& c : lower) {
        c = LowerAsciiLetter(c);
    }
    return lower;
}

// Sorts their numbers, which are moved about faster than the texts.
void SortAlphabetically(std::vector<std::string>& texts) {
    std::vector<std::string> keys;
    keys.reserve(texts.size());
    for (const std::string& text : texts) {
        keys.push_back(LowerCase(text));
    }
    std::vector<std::size_t> order(texts.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](std::size_t one, std::size_t other) {
        const int keyed = keys[one].compare(keys[other]);
        return keyed != 0 ? keyed < 0 : texts[one] < texts[other];
    });
    std::vector<std::string> sorted;
    sorted.reserve(texts.size());
    for (const std::size_t number : order) {
        sorted.push_back(std::move(texts[number]));
    }
    texts = std::move(sorted);
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
           std::equal(lowerEnd.rbegin(), lowerEnd.rend(), text.rbegin(),
                      [](char lower, char c) { return lower == LowerAsciiLetter(c); });
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
