#include "benchmarks/counted_loops.h"
#include "benchmarks/large_log.h"
#include "benchmarks/log_transcript.h"
#include "benchmarks/posix_file_system.h"
#include "core/console_lines.h"
#include "q3tools/colour_codes.h"
#include "transcripts/name_scan.h"

namespace zentar::benchmarks {

void CountLogLoops(LoopCounter& counter, const std::string& folder) {
    constexpr std::uint64_t kMegabytes = 4;
    const std::string input = std::to_string(kMegabytes) + " MB of a Quake 3 log";
    PosixFileSystem files;
    const std::string path = LargeLog(folder, kMegabytes * 1024 * 1024);
    const std::uint64_t length = files.Info(path).Value().length;
    const auto log = files.OpenForReading(path);
    std::size_t ends = 0;
    counter.Count(
        {"lines of a log", input, "byte", length},
        [&] {
            ConsoleLines lines(*log.Value());
            while (lines.Next()) {
                ++ends;
            }
        },
        [&] { return ends > 0; });
    std::size_t plain = 0;
    counter.Count(
        {"colours stripped from a log's lines", input, "byte", length},
        [&] {
            ConsoleLines lines(*log.Value());
            while (const auto line = lines.Next()) {
                plain += StripColourCodes(*line).size();
            }
        },
        [&] { return plain > 0 && plain < length; });
    std::vector<std::string> names;
    counter.Count(
        {"names of a log", input, "byte", length},
        [&] {
            ConsoleLines lines(*log.Value());
            names = ScanForNames(lines, true);
        },
        [&] { return names.size() == kSpeakers.size(); });
    for (const bool html : {true, false}) {
        std::size_t written = 0;
        const TranscriptWriter::Sink sink = [&](std::string_view line) { written += line.size(); };
        counter.Count(
            {html ? "transcript, HTML" : "transcript, plain", input, "byte", length},
            [&] { WriteLogTranscript(*log.Value(), html, sink); },
            [&] { return written > length / 4; });
    }
}

}  // namespace zentar::benchmarks
