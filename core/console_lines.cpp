#include "core/console_lines.h"

#include <emmintrin.h>

#include <algorithm>
#include <bit>
#include <span>
#include <utility>

namespace zentar {
namespace {

// Under Wine a call costs more than to read a quarter of a megabyte.
constexpr std::size_t kBlock = std::size_t{256} * 1024;

// A bit for each of 16 bytes that ends a line.
unsigned EndsIn16(const char* text) {
    // The unaligned load is made for such pointers.
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
    return static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(
        _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r')))));
}

// The length of the line that begins here; `size` when its end is not there yet. Looks for both
// ends at once: in a file that has only one of them the other is far away.
std::size_t LineLength(const char* text, std::size_t size) {
    constexpr std::size_t kLanes = sizeof(__m128i);
    std::size_t at = 0;
    for (; at + kLanes <= size; at += kLanes) {
        if (const unsigned ends = EndsIn16(text + at)) {
            return at + static_cast<std::size_t>(std::countr_zero(ends));
        }
    }
    while (at < size && text[at] != '\n' && text[at] != '\r') {
        ++at;
    }
    return at;
}

}  // namespace

ConsoleLines::ConsoleLines(ReadableFile& file)
    : file_(file), buffer_(std::make_unique_for_overwrite<char[]>(kLongest + kBlock)) {}

std::optional<std::string_view> ConsoleLines::Next() {
    for (;;) {
        const std::size_t length = LineLength(buffer_.get() + begin_, end_ - begin_);
        if (length < end_ - begin_) {
            if (const auto line = TakeLine(length)) {
                return line;
            }
        } else if (!ReadOn()) {
            return std::nullopt;
        }
    }
}

// Nothing for the end of a line that is too long.
std::optional<std::string_view> ConsoleLines::TakeLine(std::size_t length) {
    const std::string_view line(buffer_.get() + begin_, length);
    begin_ += length + 1;
    if (std::exchange(tooLong_, false) || length > kLongest) {
        return std::nullopt;
    }
    return line;
}

// Moves what is there of the line to the front and reads the next block behind it.
bool ConsoleLines::ReadOn() {
    if (end_ - begin_ > kLongest) {
        begin_ = end_;
        tooLong_ = true;
    }
    std::copy(buffer_.get() + begin_, buffer_.get() + end_, buffer_.get());
    end_ -= begin_;
    begin_ = 0;
    const auto room = std::span(buffer_.get() + end_, kBlock);
    const Result<std::size_t> got = file_.ReadAt(offset_, std::as_writable_bytes(room));
    failed_ = !got.Ok();
    if (failed_ || got.Value() == 0) {
        return false;
    }
    offset_ += got.Value();
    end_ += got.Value();
    return true;
}

}  // namespace zentar
