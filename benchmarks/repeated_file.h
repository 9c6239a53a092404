// A file of any length that takes no room: one piece again and again.
#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include "platform/file_system.h"

namespace zentar::benchmarks {

class RepeatedFile : public ReadableFile {
  public:
    // `piece` is not empty. `end` stands behind `length` bytes of it.
    RepeatedFile(std::string piece, std::uint64_t length, std::string end)
        : piece_(std::move(piece)), length_(length), end_(std::move(end)) {
        while (piece_.size() < kBlock) {
            piece_ += piece_;
        }
    }

    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
        std::size_t done = 0;
        while (done < into.size()) {
            const std::string_view from = PieceAt(offset + done);
            if (from.empty()) {
                break;
            }
            const std::size_t count = std::min(from.size(), into.size() - done);
            std::memcpy(into.data() + done, from.data(), count);
            done += count;
        }
        return done;
    }
    Result<std::uint64_t> Length() override { return length_ + end_.size(); }

  private:
    static constexpr std::size_t kBlock = std::size_t{64} * 1024;

    std::string_view PieceAt(std::uint64_t offset) const {
        if (offset < length_) {
            const auto at = static_cast<std::size_t>(offset % piece_.size());
            const std::uint64_t left = length_ - offset;
            return std::string_view(piece_).substr(at).substr(0, left);
        }
        const std::uint64_t at = offset - length_;
        return at < end_.size() ? std::string_view(end_).substr(at) : std::string_view();
    }

    std::string piece_;
    std::uint64_t length_;
    std::string end_;
};

}  // namespace zentar::benchmarks
