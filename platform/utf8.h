// Characters written as UTF-8.
#pragma once

#include <string>

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

}  // namespace zentar
