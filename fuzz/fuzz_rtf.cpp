// Rich text as any program may have written it: what the editor shows, and that it is saved as it
// is.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "fuzz/require.h"
#include "platform/rtf/rtf_reader.h"
#include "platform/rtf/rtf_writer.h"
#include "platform/rtf/unicode.h"
#include "platform/utf8.h"
#include "tests/unit/rtf/plain_rtf_reader.h"

namespace {

using zentar::fuzz::Require;
using Runs = std::vector<zentar::ColouredRun>;

// How many characters a text has, each of which the editor can show.
std::size_t CheckedCount(std::string_view text) {
    std::size_t count = 0;
    while (!text.empty()) {
        const std::size_t before = text.size();
        const char32_t point = zentar::TakeUtf8(text);
        // Else the byte was no character.
        Require(point != zentar::kReplacementCharacter || before - text.size() == 3);
        Require(point >= ' ' && point != 0x7F && point != 0x2028 && point != 0x2029);
        ++count;
    }
    return count;
}

// Whether each run has text and another colour than the one before it.
std::size_t CheckedCount(const Runs& runs) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        Require(!runs[i].text.empty() && runs[i].colour <= 0xFFFFFF);
        Require(i == 0 || runs[i].colour != runs[i - 1].colour);
        count += CheckedCount(runs[i].text);
    }
    return count;
}

void CheckSaved(const Runs& runs, std::size_t count) {
    constexpr std::size_t kFrame = 200;
    constexpr std::size_t kLongestRun = 50;        // "\red255\green255\blue255;" and "\cf65536 "
    constexpr std::size_t kLongestCharacter = 16;  // "\u-10179?\u-8704?"
    const std::string saved = zentar::WriteRtf(runs);
    Require(saved.size() <= kFrame + runs.size() * kLongestRun + count * kLongestCharacter);
    Require(zentar::ReadRtf(saved) == runs);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The plain reader takes its time.
    constexpr std::size_t kLongForPlain = 128;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto runs = zentar::ReadRtf(bytes);
    Require(runs.has_value() == bytes.starts_with("{\\rtf"));
    if (!runs) {
        return 0;
    }
    const std::size_t count = CheckedCount(*runs);
    Require(count <= zentar::kMostRtfCharacters && count <= size);
    CheckSaved(*runs, count);
    Require(size > kLongForPlain || *runs == zentar::testing::PlainReadRtf(bytes));
    return 0;
}
