// The transcript that the benchmarks make of the logs.
#pragma once

#include <vector>

#include "platform/file_system.h"
#include "transcripts/transcript_writer.h"

namespace zentar::benchmarks {

// What its head says.
inline constexpr const char* kLogSource = "C:\\Quake III Arena\\baseq3\\games.log";
inline constexpr const char* kLogSite = "https://zentar.example/";

// The 24 names: the speakers, a few of them in the same colour as another, and four who say
// nothing.
std::vector<ChosenPlayer> PlayersOfLog();

// With the messages of the game.
void WriteLogTranscript(ReadableFile& log, bool html, const TranscriptWriter::Sink& sink);

}  // namespace zentar::benchmarks
