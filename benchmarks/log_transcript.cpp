#include "benchmarks/log_transcript.h"

#include <algorithm>

#include "benchmarks/large_log.h"
#include "core/console_lines.h"

namespace zentar::benchmarks {

std::vector<ChosenPlayer> PlayersOfLog() {
    std::vector<ChosenPlayer> players;
    for (const std::string_view speaker : kSpeakers) {
        const auto number = static_cast<ColourRef>(players.size() % 16);
        players.push_back({std::string(speaker), number * 0x0B1D0E});
    }
    for (const char* silent : {"Doom", "Phobos", "Gorre", "Hossman"}) {
        players.push_back({silent, {}});
    }
    return players;
}

void WriteLogTranscript(ReadableFile& log, bool html, const TranscriptWriter::Sink& sink) {
    TranscriptOptions options{.html = html,
                              .gameMessages = true,
                              .quake3 = true,
                              .players = {},
                              .background = {},
                              .messages = {},
                              .source = kLogSource,
                              .webSite = kLogSite};
    const std::vector<ChosenPlayer> players = PlayersOfLog();
    std::copy(players.begin(), players.end(), options.players.begin());
    TranscriptWriter writer(options, sink);
    ConsoleLines lines(log);
    writer.Begin();
    while (const auto line = lines.Next()) {
        writer.Add(*line);
    }
    writer.End();
}

}  // namespace zentar::benchmarks
