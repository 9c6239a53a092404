#include "demos/phrase_search.h"

#include <emmintrin.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <span>
#include <utility>

namespace zentar {

namespace {

constexpr std::size_t kLanes = sizeof(__m128i);

__m128i Load(const char* from) {
    // The unaligned load is made for such pointers.
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
}

// The phrase's first and last byte, each in all lanes. Where both fit, the phrase may stand.
struct Ends {
    explicit Ends(std::string_view phrase)
        : first(_mm_set1_epi8(phrase.front())),
          last(_mm_set1_epi8(phrase.back())),
          lastOffset(phrase.size() - 1) {}

    // All bits of a lane are set where the phrase may begin, of the 16 places from `at`.
    __m128i FitAt(const char* at) const {
        return _mm_and_si128(_mm_cmpeq_epi8(Load(at), first),
                             _mm_cmpeq_epi8(Load(at + lastOffset), last));
    }

    __m128i first;
    __m128i last;
    std::size_t lastOffset;
};

bool AnyOf64FitsAt(const char* at, const Ends& ends) {
    const __m128i low = _mm_or_si128(ends.FitAt(at), ends.FitAt(at + kLanes));
    const __m128i high = _mm_or_si128(ends.FitAt(at + 2 * kLanes), ends.FitAt(at + 3 * kLanes));
    return _mm_movemask_epi8(_mm_or_si128(low, high)) != 0;
}

// The first of 16 places from `at` where the phrase stands; kLanes when none.
std::size_t FindIn16(const char* at, std::string_view phrase, const Ends& ends) {
    auto candidates = static_cast<unsigned>(_mm_movemask_epi8(ends.FitAt(at)));
    for (; candidates != 0; candidates &= candidates - 1) {
        const auto place = static_cast<std::size_t>(std::countr_zero(candidates));
        if (std::memcmp(at + place, phrase.data(), phrase.size()) == 0) {
            return place;
        }
    }
    return kLanes;
}

std::size_t FindByte(std::string_view text, char byte) {
    const void* found = std::memchr(text.data(), byte, text.size());
    return found == nullptr
               ? std::string_view::npos
               : static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

}  // namespace

std::size_t FindPhrase(std::string_view text, std::string_view phrase) {
    if (text.size() < phrase.size()) {
        return std::string_view::npos;
    }
    if (phrase.size() == 1) {
        return FindByte(text, phrase.front());
    }
    const Ends ends(phrase);
    const std::size_t places = text.size() - ends.lastOffset;
    std::size_t at = 0;
    while (at + kLanes <= places) {
        if (at + 4 * kLanes <= places && !AnyOf64FitsAt(text.data() + at, ends)) {
            at += 4 * kLanes;
            continue;
        }
        const std::size_t place = FindIn16(text.data() + at, phrase, ends);
        if (place < kLanes) {
            return at + place;
        }
        at += kLanes;
    }
    const std::size_t inRest = text.substr(at).find(phrase);
    return inRest == std::string_view::npos ? inRest : at + inRest;
}

PhraseSearch::PhraseSearch(std::string phrase)
    : phrase_(std::move(phrase)), memory_(phrase_.size() - 1 + kBlockSize) {}

Result<bool> PhraseSearch::FoundIn(ReadableFile& file) {
    const Result<std::optional<std::uint64_t>> first = FirstIn(file);
    return first.Ok() ? Result<bool>(first.Value().has_value()) : Result<bool>(first.Error());
}

Result<std::optional<std::uint64_t>> PhraseSearch::FirstIn(ReadableFile& file) {
    using First = std::optional<std::uint64_t>;
    std::size_t kept = 0;
    std::uint64_t offset = 0;
    while (true) {
        const std::span<char> block(memory_.data() + kept, kBlockSize);
        const Result<std::size_t> got = file.ReadAt(offset, std::as_writable_bytes(block));
        if (!got.Ok()) {
            return got.Error();
        }
        const std::string_view bytes(memory_.data(), kept + got.Value());
        if (const std::size_t at = FindPhrase(bytes, phrase_); at != std::string_view::npos) {
            return First(offset - kept + at);
        }
        if (got.Value() < kBlockSize) {
            return First();
        }
        offset += got.Value();
        kept = std::min(bytes.size(), phrase_.size() - 1);
        std::memmove(memory_.data(), bytes.data() + bytes.size() - kept, kept);
    }
}

}  // namespace zentar
