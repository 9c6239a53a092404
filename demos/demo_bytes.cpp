#include "demos/demo_bytes.h"

#include <algorithm>
#include <array>
#include <span>

#include "demos/phrase_search.h"

namespace zentar {

Result<DemoBytes> DemoBytes::Load(ReadableFile& file) {
    DemoBytes bytes(file);
    bytes.block_.resize(kBlockSize);
    const Result<std::size_t> got = file.ReadAt(0, std::as_writable_bytes(std::span(bytes.block_)));
    if (!got.Ok()) {
        return got.Error();
    }
    bytes.block_.resize(got.Value());
    return bytes;
}

bool DemoBytes::Contains(std::string_view marker) const { return Find(marker) >= 0; }

std::int64_t DemoBytes::Find(std::string_view marker) const {
    const std::size_t at = FindPhrase(block_, marker);
    return at == std::string_view::npos ? -1 : static_cast<std::int64_t>(at);
}

Result<std::string> DemoBytes::TextAt(std::int64_t offset, char terminator) const {
    std::string text;
    auto position = static_cast<std::size_t>(offset);
    if (position < block_.size()) {
        const std::size_t end = block_.find(terminator, position);
        if (end != std::string::npos) {
            return block_.substr(position, end - position);
        }
        text = block_.substr(position);
        position = block_.size();
    }
    std::array<char, kChunkSize> chunk{};
    while (block_.size() == kBlockSize && text.size() < kLongestText) {
        const Result<std::size_t> got =
            file_->ReadAt(position, std::as_writable_bytes(std::span(chunk)));
        if (!got.Ok()) {
            return got.Error();
        }
        const std::string_view bytes(chunk.data(), got.Value());
        const std::size_t end = bytes.find(terminator);
        text.append(bytes.substr(0, end));
        if (end != std::string_view::npos || bytes.size() < chunk.size()) {
            break;
        }
        position += bytes.size();
    }
    text.resize(std::min(text.size(), kLongestText));
    return text;
}

std::string DemoBytes::TextEndingAt(std::int64_t last) const {
    if (last < 0) {
        return {};
    }
    const std::size_t end = std::min(static_cast<std::size_t>(last) + 1, block_.size());
    std::size_t begin = end;
    while (begin > 0 && block_[begin - 1] != '\0' && block_[begin - 1] != '\1') {
        --begin;
    }
    return block_.substr(begin, end - begin);
}

}  // namespace zentar
