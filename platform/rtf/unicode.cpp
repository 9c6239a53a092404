#include "platform/rtf/unicode.h"

#include <cstddef>

namespace zentar {
namespace {

constexpr char32_t kContinuationBits = 0x3F;

// What the first byte of a character says: how many follow, and its own part of the character.
struct Lead {
    std::size_t following = 0;
    char32_t bits = 0;
    char32_t least = 0;  // a smaller character has a shorter form
    bool valid = false;
};

Lead LeadOf(unsigned char byte) {
    if (byte < 0x80) {
        return {0, byte, 0, true};
    }
    if ((byte & 0xE0U) == 0xC0U) {
        return {1, byte & 0x1FU, 0x80, true};
    }
    if ((byte & 0xF0U) == 0xE0U) {
        return {2, byte & 0x0FU, 0x800, true};
    }
    if ((byte & 0xF8U) == 0xF0U) {
        return {3, byte & 0x07U, 0x10000, true};
    }
    return {};
}

bool IsCharacter(char32_t point) { return point <= 0x10FFFF && (point < 0xD800 || point > 0xDFFF); }

}  // namespace

char32_t TakeUtf8(std::string_view& text) {
    const Lead lead = LeadOf(static_cast<unsigned char>(text.front()));
    if (!lead.valid || lead.following >= text.size()) {
        text.remove_prefix(1);
        return kReplacementCharacter;
    }
    char32_t point = lead.bits;
    bool valid = true;
    for (const char c : text.substr(1, lead.following)) {
        const auto byte = static_cast<unsigned char>(c);
        valid = valid && (byte & 0xC0U) == 0x80U;
        point = point << 6U | (byte & kContinuationBits);
    }
    valid = valid && point >= lead.least && IsCharacter(point);
    text.remove_prefix(valid ? 1 + lead.following : 1);
    return valid ? point : kReplacementCharacter;
}

}  // namespace zentar
