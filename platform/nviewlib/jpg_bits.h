// The coded data of a JPEG file, bit by bit.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/nviewlib/jpg_tables.h"

namespace nviewlib {

class JpgBits {
  public:
    explicit JpgBits(std::vector<std::uint8_t>& bytes) : bytes_(bytes) {}

    // The lowest `count` bits, at most 16, the highest of them first.
    void Put(unsigned bits, unsigned count) {
        held_ = (held_ << count) | (bits & ((1U << count) - 1U));
        count_ += count;
        while (count_ >= 8) {
            count_ -= 8;
            PutByte(static_cast<std::uint8_t>(held_ >> count_));
        }
    }
    void Put(HuffmanCode code) { Put(code.bits, code.length); }
    // Fills the last byte with ones.
    void End() {
        if (count_ > 0) {
            Put(0xFF, 8 - count_);
        }
    }

  private:
    // A byte of ones begins a marker; as data it has a zero behind it.
    void PutByte(std::uint8_t byte) {
        bytes_.push_back(byte);
        if (byte == 0xFF) {
            bytes_.push_back(0);
        }
    }

    std::vector<std::uint8_t>& bytes_;
    std::uint64_t held_ = 0;
    unsigned count_ = 0;
};

}  // namespace nviewlib
