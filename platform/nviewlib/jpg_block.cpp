#include "platform/nviewlib/jpg_block.h"

#include <bit>
#include <cstdlib>
#include <utility>

namespace nviewlib {
namespace {

constexpr unsigned kLongestRun = 16;
constexpr std::size_t kSixteenZeros = 0xF0;
constexpr std::size_t kOnlyZerosFollow = 0;

// The transform of Arai, Agui and Nakajima, which leaves these factors, one a frequency, to be
// divided away together with the rest.
constexpr std::array<double, kBlockSide> kLeftOver = {1, 1.387039845, 1.306562965, 1.175875602,
                                                      1, 0.785694958, 0.541196100, 0.275899379};

// All columns of a block; each step is done for the eight of them at once.
void TransformColumns(Block& block) {
    constexpr float kCos2 = 0.923879533F;  // cos(n * pi / 16)
    constexpr float kCos4 = 0.707106781F;
    constexpr float kCos6 = 0.382683433F;
    for (std::size_t x = 0; x < kBlockSide; ++x) {
        float* const column = block.data() + x;
        const auto sum = [column](std::size_t y) { return column[8 * y] + column[56 - 8 * y]; };
        const auto difference = [column](std::size_t y) {
            return column[8 * y] - column[56 - 8 * y];
        };
        const float outerSum = sum(0) + sum(3);
        const float outerDifference = sum(0) - sum(3);
        const float innerSum = sum(1) + sum(2);
        const float turned = (sum(1) - sum(2) + outerDifference) * kCos4;

        const float low = difference(3) + difference(2);
        const float middle = (difference(2) + difference(1)) * kCos4;
        const float high = difference(1) + difference(0);
        const float both = (low - high) * kCos6;
        const float lowTurned = (kCos2 - kCos6) * low + both;
        const float highTurned = (kCos2 + kCos6) * high + both;
        const float more = difference(0) + middle;
        const float less = difference(0) - middle;

        column[0] = outerSum + innerSum;
        column[8] = more + highTurned;
        column[16] = outerDifference + turned;
        column[24] = less - lowTurned;
        column[32] = outerSum - innerSum;
        column[40] = less + lowTurned;
        column[48] = outerDifference - turned;
        column[56] = more - highTurned;
    }
}

std::size_t Turned(std::size_t at) { return at % kBlockSide * kBlockSide + at / kBlockSide; }

// The frequencies of a block, column by column.
Block Transform(Block block) {
    TransformColumns(block);
    Block turned{};
    for (std::size_t i = 0; i < kBlockValues; ++i) {
        turned[Turned(i)] = block[i];
    }
    TransformColumns(turned);
    return turned;
}

// To the nearest whole number; without a branch, which the processor could not foresee.
int Rounded(float value) {
    constexpr int kLarge = 1 << 14;
    return static_cast<int>(value + (kLarge + 0.5F)) - kLarge;
}

unsigned BitsIn(int value) {
    return static_cast<unsigned>(std::bit_width(static_cast<unsigned>(std::abs(value))));
}

// The value in so many bits; of a negative one, those of one less.
void PutValue(int value, unsigned count, JpgBits& bits) {
    bits.Put(static_cast<unsigned>(value < 0 ? value - 1 : value), count);
}

}  // namespace

JpgBlockEncoder::JpgBlockEncoder(const Divisors& divisors, const HuffmanTable& first,
                                 const HuffmanTable& rest)
    : first_(CodesOf(first)), rest_(CodesOf(rest)) {
    for (std::size_t i = 0; i < kBlockValues; ++i) {
        const std::size_t at = kZigZag[i];
        order_[i] = static_cast<std::uint8_t>(Turned(at));
        factors_[order_[i]] = static_cast<float>(
            1 / (kLeftOver[at / kBlockSide] * kLeftOver[at % kBlockSide] * 8 * divisors[at]));
    }
}

void JpgBlockEncoder::Encode(const Block& block, JpgBits& bits) {
    const Block frequencies = Transform(block);
    std::array<int, kBlockValues> values{};
    for (std::size_t i = 0; i < kBlockValues; ++i) {
        values[i] = Rounded(frequencies[i] * factors_[i]);
    }
    PutFirst(values[0], bits);
    std::uint64_t others = 0;  // a bit for each that is not 0
    for (std::size_t i = 1; i < kBlockValues; ++i) {
        others |= static_cast<std::uint64_t>(values[order_[i]] != 0) << i;
    }
    unsigned before = 0;
    for (; others != 0; others &= others - 1) {
        const auto i = static_cast<unsigned>(std::countr_zero(others));
        PutOther(i - before - 1, values[order_[i]], bits);
        before = i;
    }
    if (before + 1 < kBlockValues) {
        bits.Put(rest_[kOnlyZerosFollow]);
    }
}

void JpgBlockEncoder::PutFirst(int value, JpgBits& bits) {
    const int change = value - std::exchange(before_, value);
    const unsigned count = BitsIn(change);
    bits.Put(first_[count]);
    PutValue(change, count, bits);
}

void JpgBlockEncoder::PutOther(unsigned zeros, int value, JpgBits& bits) const {
    for (; zeros >= kLongestRun; zeros -= kLongestRun) {
        bits.Put(rest_[kSixteenZeros]);
    }
    const unsigned count = BitsIn(value);
    bits.Put(rest_[zeros * kLongestRun + count]);
    PutValue(value, count, bits);
}

}  // namespace nviewlib
