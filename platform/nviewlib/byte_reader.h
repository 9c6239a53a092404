// Numbers in the bytes of a file.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace nviewlib {

// Two bytes, the lower first.
inline unsigned WordAt(std::span<const std::uint8_t> bytes, std::size_t at) {
    return bytes[at] | (static_cast<unsigned>(bytes[at + 1]) << 8U);
}

// Goes through bytes from the front. What would stand behind their end reads as 0, and is told.
class ByteReader {
  public:
    explicit ByteReader(std::span<const std::uint8_t> bytes, std::size_t at = 0)
        : bytes_(bytes), at_(std::min(at, bytes.size())) {}

    // Whether something behind the end was asked for.
    bool Failed() const { return failed_; }
    std::size_t At() const { return at_; }

    std::uint8_t Byte() {
        if (at_ >= bytes_.size()) {
            failed_ = true;
            return 0;
        }
        return bytes_[at_++];
    }
    void Skip(std::size_t count) {
        if (count > bytes_.size() - at_) {
            failed_ = true;
            at_ = bytes_.size();
            return;
        }
        at_ += count;
    }
    int BigWord() {
        const int high = Byte();
        return high * 256 + Byte();
    }
    int LittleWord() {
        const int low = Byte();
        return low + Byte() * 256;
    }
    std::int64_t LittleLong() {
        const std::int64_t low = LittleWord();
        return low + LittleWord() * std::int64_t{65536};
    }

  private:
    std::span<const std::uint8_t> bytes_;
    std::size_t at_;
    bool failed_ = false;
};

}  // namespace nviewlib
