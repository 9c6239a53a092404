// The tables of ITU-T Recommendation T.81 that a JPEG file is made with.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace nviewlib {

inline constexpr std::size_t kBlockSide = 8;
inline constexpr std::size_t kBlockValues = kBlockSide * kBlockSide;

// Where in a block, line by line, the values stand that a file has one after the other.
extern const std::array<std::uint8_t, kBlockValues> kZigZag;

// By how much each value of a block is divided, line by line.
using Divisors = std::array<std::uint8_t, kBlockValues>;
extern const Divisors kLumaDivisors;
extern const Divisors kChromaDivisors;
// Those for a quality of 0 to 100.
Divisors ScaledTo(int quality, const Divisors& divisors);

// How many codes there are of each length, 1 to 16 bits, and what they stand for, in their order.
struct HuffmanTable {
    std::array<std::uint8_t, 16> counts;
    std::span<const std::uint8_t> symbols;
};
extern const HuffmanTable kLumaFirst;  // the first value of a block, as the change of it
extern const HuffmanTable kLumaRest;
extern const HuffmanTable kChromaFirst;
extern const HuffmanTable kChromaRest;

struct HuffmanCode {
    std::uint16_t bits = 0;
    std::uint8_t length = 0;
};
using HuffmanCodes = std::array<HuffmanCode, 256>;  // by symbol
HuffmanCodes CodesOf(const HuffmanTable& table);

}  // namespace nviewlib
