// Characters that UTF-16 writes as a pair of units.
#pragma once

namespace zentar {

constexpr bool IsFirstHalf(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }

constexpr bool IsSecondHalf(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

// Of a character behind U+FFFF.
constexpr char32_t FirstHalfOf(char32_t point) { return 0xD800 + ((point - 0x10000) >> 10U); }

constexpr char32_t SecondHalfOf(char32_t point) { return 0xDC00 + ((point - 0x10000) & 0x3FFU); }

constexpr char32_t JoinHalves(char32_t first, char32_t second) {
    return 0x10000 + ((first - 0xD800) << 10U) + (second - 0xDC00);
}

}  // namespace zentar
