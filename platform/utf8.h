// Characters as UTF-8, written and read.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zentar {

// Any number up to U+10FFFF; a half of a pair of UTF-16 units, as file names may hold one, is
// written like every other.
inline void AppendUtf8(std::string& text, char32_t point) {
    const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
    const auto follow = [&put](char32_t bits) { put(0x80U | (bits & 0x3FU)); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0U | point >> 6U);
        follow(point);
    } else if (point < 0x10000) {
        put(0xE0U | point >> 12U);
        follow(point >> 6U);
        follow(point);
    } else {
        put(0xF0U | point >> 18U);
        follow(point >> 12U);
        follow(point >> 6U);
        follow(point);
    }
}

// Stands for bytes that are none.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

struct Utf8Character {
    char32_t point = 0;
    std::size_t length = 0;  // in bytes
};

// The character at the beginning of a text that is not empty, in its shortest form; a half of a
// pair of UTF-16 units is read like every other. Nothing when the bytes are no UTF-8.
inline std::optional<Utf8Character> FirstUtf8(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80) {
        return Utf8Character{lead, 1};
    }
    if (lead < 0xC2 || lead > 0xF4) {
        return std::nullopt;
    }
    constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    const std::size_t length = lead < 0xE0 ? 2 : (lead < 0xF0 ? 3 : 4);
    if (text.size() < length) {
        return std::nullopt;
    }
    char32_t point = lead & (0x7FU >> length);
    for (const char c : text.substr(1, length - 1)) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) != 0x80U) {
            return std::nullopt;
        }
        point = (point << 6U) | (byte & 0x3FU);
    }
    if (point < kLeast[length] || point > 0x10FFFF) {
        return std::nullopt;
    }
    return Utf8Character{point, length};
}

}  // namespace zentar
