#include "platform/nviewlib/pcx_lines.h"

#include <algorithm>
#include <cstring>

namespace nviewlib {

namespace {

// A byte with both of its upper bits set tells how often the next one stands; any other stands for
// itself.
constexpr unsigned kRunMark = 0xC0;
constexpr std::size_t kMostInRun = 63;

// Room behind a line, so that a run is stored at one go whatever its length.
constexpr std::size_t kRunRoom = 64;

// So many bytes are looked at together.
constexpr std::size_t kBlock = sizeof(std::uint64_t);

bool HasRunMark(std::uint64_t block) {
    constexpr std::uint64_t kUpperBits = 0x8080808080808080U;
    return (block & (block << 1U) & kUpperBits) != 0;
}

}  // namespace

PcxLines::PcxLines(const PcxHeader& header, std::span<const std::uint8_t> bytes)
    : begin_(bytes.data()),
      at_(begin_),
      end_(begin_ + bytes.size()),
      lineBytes_(header.LineBytes()),
      runLength_(header.runLength),
      line_(header.runLength ? lineBytes_ + kRunRoom : 0) {}

std::size_t PcxLines::MostBytes(const PcxHeader& header, std::size_t bytes) {
    return header.runLength ? (bytes / 2 * kMostInRun) + (bytes % 2) : bytes;
}

const std::uint8_t* PcxLines::Next() {
    if (runLength_) {
        return ReadRuns(line_.data(), line_.data() + lineBytes_) ? line_.data() : nullptr;
    }
    if (Left() < lineBytes_) {
        return nullptr;
    }
    const std::uint8_t* const line = at_;
    at_ += lineBytes_;
    return line;
}

// Runs may go on in the next line, and the last one may be longer than the image.
bool PcxLines::ReadRuns(std::uint8_t* to, std::uint8_t* end) {
    const std::size_t now = std::min(over_, static_cast<std::size_t>(end - to));
    std::memset(to, overValue_, now);
    to += now;
    over_ -= now;
    while (to < end) {
        std::uint64_t block = 0;
        if (Left() >= kBlock) {
            std::memcpy(&block, at_, kBlock);
            if (!HasRunMark(block)) {
                std::memcpy(to, &block, kBlock);
                const std::size_t used = std::min(kBlock, static_cast<std::size_t>(end - to));
                to += used;
                at_ += used;
                continue;
            }
        }
        if (!ReadRun(&to)) {
            return false;
        }
    }
    over_ += static_cast<std::size_t>(to - end);
    return true;
}

bool PcxLines::ReadRun(std::uint8_t** to) {
    const std::size_t marked = Left() > 0 && *at_ >= kRunMark ? 1 : 0;
    if (Left() < 1 + marked) {
        return false;
    }
    const std::size_t count = marked != 0 ? *at_ - kRunMark : 1;
    overValue_ = at_[marked];
    at_ += 1 + marked;
    std::memset(*to, overValue_, kRunRoom);
    *to += count;
    return true;
}

}  // namespace nviewlib
