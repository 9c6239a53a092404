#include "benchmarks/counted_loops.h"
#include "benchmarks/motley_text.h"
#include "core/game_text.h"
#include "platform/rtf/rtf_reader.h"
#include "platform/rtf/rtf_writer.h"
#include "q3tools/colour_codes.h"

namespace zentar::benchmarks {

void CountTextLoops(LoopCounter& counter) {
    constexpr int kCharacters = 10'000;
    const std::string input = "10,000 characters, each in another colour";
    const RichText text{.runs = MotleyText(kCharacters)};
    std::string code;
    counter.Count(
        {"code of a coloured text", input, "character", kCharacters},
        [&] { code = BuildQ3TextCode(text, {}); },
        [&] { return code.size() > 2 * std::size_t{kCharacters}; });
    std::string rtf;
    counter.Count(
        {"RTF written", input, "character", kCharacters}, [&] { rtf = WriteRtf(text.runs); },
        [&] { return !rtf.empty(); });
    std::optional<std::vector<ColouredRun>> read;
    counter.Count(
        {"RTF read", input, "character", kCharacters}, [&] { read = ReadRtf(rtf); },
        [&] { return read == text.runs; });
    std::string bytes;
    for (int i = 0; i < kCharacters; ++i) {
        bytes += static_cast<char>(i % 256);
    }
    std::string shown;
    counter.Count(
        {"game text to UTF-8", "10,000 of all bytes", "byte", kCharacters},
        [&] { shown = GameTextToUtf8(bytes); }, [&] { return shown.size() > bytes.size(); });
    std::string back;
    counter.Count(
        {"UTF-8 to game text", "10,000 of all bytes", "byte", kCharacters},
        [&] { back = Utf8ToGameText(shown); }, [&] { return back == bytes; });
}

}  // namespace zentar::benchmarks
