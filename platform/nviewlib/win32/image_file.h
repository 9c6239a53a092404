// The files that the library reads and writes, by paths in UTF-8 of any length.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace nviewlib {

inline constexpr std::int64_t kLongestFile = std::int64_t{208} << 20U;

// A file's bytes, in memory that the next file is read into as well: to get fresh memory takes
// longer than to read a file.
class FileBytes {
  public:
    // Reads the whole file; other programs may go on with it. False, and no bytes, when it cannot
    // be read or is longer than kLongestFile.
    [[nodiscard]] bool Read(std::string_view path);
    std::span<const std::uint8_t> All() const { return {bytes_.get(), size_}; }

  private:
    std::uint8_t* RoomFor(std::size_t bytes);

    std::unique_ptr<std::uint8_t[]> bytes_;
    std::size_t room_ = 0;
    std::size_t size_ = 0;
};

// Writes a file, over one that is there: first under its name and ".zentar-new", so that one
// that was there is as it was when this gives false.
[[nodiscard]] bool WriteImageFile(std::string_view path, std::span<const std::uint8_t> bytes);

}  // namespace nviewlib
