// Searches files for a phrase, byte for byte.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace zentar {

// Offset of the first occurrence of `phrase` in `text`; std::string_view::npos when there is none.
// `phrase` is not empty.
std::size_t FindPhrase(std::string_view text, std::string_view phrase);

// One of these searches any number of files, one after the other, through one block of memory.
class PhraseSearch {
  public:
    // Read at a time: few calls of the system for a demo, and the block stays in the cache.
    static constexpr std::size_t kBlockSize = 256 * 1024;

    // `phrase` is not empty.
    explicit PhraseSearch(std::string phrase);

    // Offset of the phrase's first occurrence; no value when there is none. Files of any length;
    // the rest of the file behind the first occurrence is not read.
    Result<std::optional<std::uint64_t>> FirstIn(ReadableFile& file);
    Result<bool> FoundIn(ReadableFile& file);

  private:
    std::string phrase_;
    // The end of the block before, which may hold the phrase's beginning, and the block.
    std::vector<char> memory_;
};

}  // namespace zentar
