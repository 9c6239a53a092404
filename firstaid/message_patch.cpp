#include "firstaid/message_patch.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace zentar {
namespace {

constexpr std::size_t kBlock = std::size_t{256} * 1024;

// Where a text stands first in a file that comes block by block.
class FirstPlace {
  public:
    explicit FirstPlace(std::string_view text) : text_(text), search_(text.begin(), text.end()) {}

    // `bytes` begin at `offset` of the file and overlap with those before by as much as the text
    // needs.
    void Look(std::string_view bytes, std::uint64_t offset) {
        if (place_) {
            return;
        }
        const auto* const at = std::search(bytes.begin(), bytes.end(), search_);
        if (at != bytes.end()) {
            place_ = offset + static_cast<std::uint64_t>(at - bytes.begin());
        }
    }
    std::size_t Length() const { return text_.size(); }
    std::optional<std::uint64_t> Place() const { return place_; }

  private:
    std::string_view text_;
    std::boyer_moore_horspool_searcher<std::string_view::const_iterator> search_;
    std::optional<std::uint64_t> place_;
};

Status LookThrough(ReadableFile& file, std::vector<FirstPlace>& places) {
    std::size_t overlap = 0;
    for (const FirstPlace& place : places) {
        overlap = std::max(overlap, place.Length() - 1);
    }
    std::vector<char> buffer(overlap + kBlock);
    std::size_t kept = 0;
    for (std::uint64_t offset = 0;;) {
        const auto room = std::span(buffer).subspan(kept, kBlock);
        const Result<std::size_t> got = file.ReadAt(offset, std::as_writable_bytes(room));
        if (!got.Ok()) {
            return got.Error();
        }
        if (got.Value() == 0) {
            return {};
        }
        const std::string_view bytes(buffer.data(), kept + got.Value());
        for (FirstPlace& place : places) {
            place.Look(bytes, offset - kept);
        }
        offset += got.Value();
        kept = std::min(overlap, bytes.size());
        std::copy(bytes.end() - static_cast<std::ptrdiff_t>(kept), bytes.end(), buffer.begin());
    }
}

}  // namespace

Status PatchGameMessages(FileSystem& files, const std::string& executable,
                         std::span<const std::string_view> texts) {
    std::vector<FirstPlace> places(texts.begin(), texts.end());
    {
        const Result<std::unique_ptr<ReadableFile>> file = files.OpenForReading(executable);
        if (!file.Ok()) {
            return file.Error();
        }
        if (Status looked = LookThrough(*file.Value(), places); !looked.Ok()) {
            return looked;
        }
    }
    for (const FirstPlace& found : places) {
        const std::uint64_t place = found.Place().value_or(0);
        if (place == 0) {
            continue;
        }
        const std::string zeros(found.Length() + 2, '\0');
        if (Status written = files.Overwrite(executable, place - 1, zeros); !written.Ok()) {
            return written;
        }
    }
    return {};
}

}  // namespace zentar
