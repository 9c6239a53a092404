#include "demos/demo_mod.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "core/file_name.h"
#include "demos/demo_bytes.h"
#include "demos/phrase_search.h"

namespace zentar {
namespace {

constexpr std::string_view kQuake3Key = "\\gamename\\";
constexpr std::size_t kLongestFolderName = 255;

// Offset of the key, usually in the first block; -1 when there is none.
Result<std::int64_t> FindKey(const DemoBytes& bytes, ReadableFile& file) {
    const std::int64_t inBlock = bytes.Find(kQuake3Key);
    const Result<std::uint64_t> length = file.Length();
    if (inBlock >= 0 || (length.Ok() && length.Value() <= DemoBytes::kBlockSize)) {
        return inBlock;
    }
    const Result<std::optional<std::uint64_t>> first =
        PhraseSearch(std::string(kQuake3Key)).FirstIn(file);
    if (!first.Ok()) {
        return first.Error();
    }
    return first.Value() ? static_cast<std::int64_t>(*first.Value()) : std::int64_t{-1};
}

}  // namespace

Result<std::string> ReadQuake2Mod(ReadableFile& file) {
    const Result<DemoBytes> bytes = DemoBytes::Load(file);
    if (!bytes.Ok()) {
        return bytes.Error();
    }
    Result<std::string> mod = bytes.Value().TextAt(kQuake2GameFolder, '\0');
    if (mod.Ok() && mod.Value().ends_with('\\')) {
        mod.Value().pop_back();
    }
    return mod;
}

Result<std::string> ReadQuake3Mod(ReadableFile& file) {
    const Result<DemoBytes> bytes = DemoBytes::Load(file);
    const Result<std::int64_t> key = bytes.Ok() ? FindKey(bytes.Value(), file) : bytes.Error();
    if (!key.Ok() || key.Value() < 0) {
        return key.Ok() ? Result<std::string>(std::string()) : key.Error();
    }
    Result<std::string> mod =
        bytes.Value().TextAt(key.Value() + static_cast<std::int64_t>(kQuake3Key.size()), '\\');
    if (mod.Ok()) {
        // The settings may end with this one.
        mod.Value().resize(std::min(mod.Value().size(), mod.Value().find('\0')));
    }
    return mod;
}

bool IsFolderName(std::string_view name) {
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' '; };
    return !name.empty() && name.size() <= kLongestFolderName && !name.ends_with('.') &&
           !name.ends_with(' ') && !HoldsIllegalCharacter(name) &&
           std::none_of(name.begin(), name.end(), isControl);
}

}  // namespace zentar
