#include "tests/doubles/sparse_bytes.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace zentar {

void SparseBytes::Append(std::string_view bytes) {
    if (bytes.empty())
        return;
    const bool continues =
        !pieces_.empty() && pieces_.rbegin()->first + pieces_.rbegin()->second.size() == length_;
    if (!continues)
        pieces_.emplace(length_, std::string());
    pieces_.rbegin()->second += bytes;
    length_ += bytes.size();
}

void SparseBytes::Overwrite(std::uint64_t offset, std::string_view bytes) {
    // One piece from the first byte that any of them has to the last.
    const auto near = [&](const auto& piece) {
        return piece.first <= offset + bytes.size() && piece.first + piece.second.size() >= offset;
    };
    std::uint64_t begin = offset;
    std::uint64_t end = offset + bytes.size();
    for (const auto& piece : pieces_) {
        if (near(piece)) {
            begin = std::min(begin, piece.first);
            end = std::max(end, piece.first + piece.second.size());
        }
    }
    std::string joined(static_cast<std::size_t>(end - begin), '\0');
    ReadAt(begin, std::as_writable_bytes(std::span(joined)));
    joined.replace(static_cast<std::size_t>(offset - begin), bytes.size(), bytes);
    std::erase_if(pieces_, near);
    length_ = std::max(length_, offset + bytes.size());
    pieces_.emplace(begin, std::move(joined));
}

void SparseBytes::Clear() {
    length_ = 0;
    pieces_.clear();
}

std::size_t SparseBytes::ReadAt(std::uint64_t offset, std::span<std::byte> into) const {
    if (offset >= length_ || into.empty())
        return 0;
    const auto count =
        static_cast<std::size_t>(std::min<std::uint64_t>(into.size(), length_ - offset));
    std::memset(into.data(), 0, count);
    const std::uint64_t end = offset + count;
    for (const auto& [start, bytes] : pieces_) {
        const std::uint64_t from = std::max(start, offset);
        const std::uint64_t to = std::min<std::uint64_t>(start + bytes.size(), end);
        if (from >= to)
            continue;
        std::memcpy(into.data() + (from - offset), bytes.data() + (from - start), to - from);
    }
    return count;
}

std::string SparseBytes::Text() const {
    constexpr std::uint64_t kLargestText = 256u << 20;
    if (length_ > kLargestText) {
        std::string text = "(" + std::to_string(length_) + " bytes, zeros but for";
        for (const auto& [start, bytes] : pieces_) {
            text += " " + std::to_string(start) + ": " + bytes;
        }
        return text + ")";
    }
    std::string text(static_cast<std::size_t>(length_), '\0');
    ReadAt(0, std::as_writable_bytes(std::span(text)));
    return text;
}

}  // namespace zentar
