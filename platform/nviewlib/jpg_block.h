// A block of 8 x 8 values on its way into a JPEG file.
#pragma once

#include <array>

#include "platform/nviewlib/jpg_bits.h"
#include "platform/nviewlib/jpg_tables.h"

namespace nviewlib {

using Block = std::array<float, kBlockValues>;  // line by line, around 0

// Encodes the blocks of one component, one after the other.
class JpgBlockEncoder {
  public:
    JpgBlockEncoder(const Divisors& divisors, const HuffmanTable& first, const HuffmanTable& rest);

    void Encode(const Block& block, JpgBits& bits);

  private:
    void PutFirst(int value, JpgBits& bits);
    void PutOther(unsigned zeros, int value, JpgBits& bits) const;

    // Where in a transformed block the values stand that the file has one after the other.
    std::array<std::uint8_t, kBlockValues> order_{};
    // By what each value of a transformed block is multiplied.
    std::array<float, kBlockValues> factors_{};
    HuffmanCodes first_;
    HuffmanCodes rest_;
    int before_ = 0;  // the first value of the block before
};

}  // namespace nviewlib
