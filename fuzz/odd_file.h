// A file in memory that gives a few bytes at a time, as a slow network drive may.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "fuzz/fuzz_file.h"

namespace zentar::fuzz {

class OddFile : public ReadableFile {
  public:
    // `steps` say one after the other, and again from the first, how many bytes the next reads
    // give.
    OddFile(std::string_view bytes, std::string_view steps) : file_(bytes), steps_(steps) {}

    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
        return file_.ReadAt(offset, into.first(std::min(into.size(), NextStep(into.size()))));
    }
    Result<std::uint64_t> Length() override { return file_.Length(); }

  private:
    std::size_t NextStep(std::size_t otherwise) {
        if (steps_.empty()) {
            return otherwise;
        }
        const auto step = static_cast<unsigned char>(steps_[at_++ % steps_.size()]);
        return std::size_t{1} + step;
    }

    FuzzFile file_;
    std::string_view steps_;
    std::size_t at_ = 0;
};

}  // namespace zentar::fuzz
