// The bytes of a file, of which long stretches may be zeros that take no memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace zentar {

class SparseBytes {
  public:
    std::uint64_t Length() const { return length_; }
    void Append(std::string_view bytes);
    void AppendZeros(std::uint64_t count) { length_ += count; }
    // From an offset within what there is, or at its end.
    void Overwrite(std::uint64_t offset, std::string_view bytes);
    void Clear();

    // How many bytes were read: fewer than asked for only at the end.
    std::size_t ReadAt(std::uint64_t offset, std::span<std::byte> into) const;

    // All of them; of a file too large to hold in memory, its length and its pieces in words.
    std::string Text() const;

  private:
    std::uint64_t length_ = 0;
    std::map<std::uint64_t, std::string> pieces_;  // by offset; zeros between them
};

}  // namespace zentar
