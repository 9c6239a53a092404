// A file in memory for the fuzz targets, which counts what is read of it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

#include "platform/file_system.h"

namespace zentar::fuzz {

class FuzzFile : public ReadableFile {
  public:
    explicit FuzzFile(std::string_view bytes) : bytes_(bytes) {}

    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
        ++reads_;
        if (offset >= bytes_.size()) {
            return std::size_t{0};
        }
        const std::string_view rest = bytes_.substr(static_cast<std::size_t>(offset));
        const std::size_t count = std::min(rest.size(), into.size());
        std::memcpy(into.data(), rest.data(), count);
        read_ += count;
        return count;
    }
    Result<std::uint64_t> Length() override { return std::uint64_t{bytes_.size()}; }

    std::size_t Reads() const { return reads_; }
    std::size_t BytesRead() const { return read_; }

  private:
    std::string_view bytes_;
    std::size_t reads_ = 0;
    std::size_t read_ = 0;
};

}  // namespace zentar::fuzz
