// The code page that the program takes single bytes for: Windows-1252, with the five bytes that it
// leaves unassigned as the code points of the same value, so that every byte goes there and back.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

namespace zentar {

// The code points of the bytes 80 to 9F; the other bytes stand for themselves.
inline constexpr std::array<char32_t, 32> kWindows1252 = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

constexpr char32_t CodePointOfByte(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80U] : byte;
}

// Nothing for a character that no byte stands for.
constexpr std::optional<unsigned char> ByteOfCodePoint(char32_t point) {
    if (point < 0x80 || (point >= 0xA0 && point <= 0xFF)) {
        return static_cast<unsigned char>(point);
    }
    for (std::size_t i = 0; i < kWindows1252.size(); ++i) {
        if (kWindows1252[i] == point) {
            return static_cast<unsigned char>(0x80 + i);
        }
    }
    return std::nullopt;
}

}  // namespace zentar
