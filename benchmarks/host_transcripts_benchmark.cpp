// How fast a large log is scanned for names and made a transcript, beside yardsticks measured in
// the same run: grep, which only counts the lines that may be speech, and the same transcript in
// Perl.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iomanip>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "benchmarks/large_log.h"
#include "benchmarks/log_transcript.h"
#include "benchmarks/other_program.h"
#include "benchmarks/posix_file_system.h"
#include "benchmarks/ratio_reporter.h"
#include "benchmarks/repeated_file.h"
#include "core/console_lines.h"
#include "transcripts/name_scan.h"

namespace zentar::benchmarks {

namespace {

constexpr std::uint64_t kMegabyte = 1024 * 1024;
constexpr std::uint64_t kLogLength = 256 * kMegabyte;
constexpr double kMostMemory = 64;  // megabytes

std::string g_log;
std::string g_ours;
std::string g_perls;

void Grep(benchmark::State& state) {
    for (auto _ : state) {
        RunProgram(state, {"grep", "-c", ": ", g_log}, g_log + ".count");
    }
}

std::string Hex(ColourRef colour) {
    std::ostringstream hex;
    hex << std::hex << std::setfill('0');
    for (const unsigned shift : {0U, 8U, 16U}) {
        hex << std::setw(2) << (colour >> shift & 0xFFU);
    }
    return hex.str();
}

void Perl(benchmark::State& state) {
    std::vector<std::string> command = {
        "perl", ZENTAR_BENCHMARKS "/transcript.pl", g_log, g_perls, kLogSource, kLogSite};
    for (const ChosenPlayer& player : PlayersOfLog()) {
        command.push_back(player.name + "=" + (player.colour ? Hex(*player.colour) : ""));
    }
    for (auto _ : state) {
        RunProgram(state, command, g_log + ".perl");
    }
}

void Scan(benchmark::State& state) {
    PosixFileSystem files;
    for (auto _ : state) {
        const auto file = files.OpenForReading(g_log);
        ConsoleLines lines(*file.Value());
        if (ScanForNames(lines, true).size() != kSpeakers.size()) {
            state.SkipWithError("not the names");
        }
    }
}

void Transcript(benchmark::State& state) {
    PosixFileSystem files;
    for (auto _ : state) {
        const auto file = files.OpenForReading(g_log);
        std::ofstream out(g_ours, std::ios::binary);
        WriteLogTranscript(*file.Value(), true, [&out](std::string_view text) { out << text; });
    }
}

// A log that nobody could hold in memory.
void ScanRepeated(benchmark::State& state, const std::string& piece, std::uint64_t length) {
    for (auto _ : state) {
        RepeatedFile file(piece, length, "\nBob: hi\n");
        ConsoleLines lines(file);
        const auto names = ScanForNames(lines, false);
        if (names.empty() || names.back() != "Bob") {
            state.SkipWithError("not the names");
        }
    }
}

bool IsSame(const std::string& one, const std::string& other) {
    std::ifstream first(one, std::ios::binary);
    std::ifstream second(other, std::ios::binary);
    return std::filesystem::file_size(one) == std::filesystem::file_size(other) &&
           std::equal(std::istreambuf_iterator<char>(first), std::istreambuf_iterator<char>(),
                      std::istreambuf_iterator<char>(second));
}

void Register(const std::string& name, const std::function<void(benchmark::State&)>& run,
              int repetitions) {
    benchmark::RegisterBenchmark(name.c_str(), run)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(repetitions)
        ->Iterations(1);
}

double PeakMegabytes() {
    struct rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

}  // namespace

int Run(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const std::string base = argc > 1 ? argv[1] : "benchmark_data";
    g_log = LargeLog(base, kLogLength);
    g_ours = g_log + ".htm";
    g_perls = g_log + ".perl.htm";
    Register("grep", Grep, 7);
    Register("scan", Scan, 7);
    Register("transcript", Transcript, 7);
    Register("perl", Perl, 3);
    Register(
        "scan of a line of 1 GB",
        [](benchmark::State& state) { ScanRepeated(state, "x", 1024 * kMegabyte); }, 1);
    Register(
        "scan of 4 GB of lines that end in CR alone",
        [](benchmark::State& state) { ScanRepeated(state, "a line: \r", 4096 * kMegabyte); }, 1);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\n%-45s %11s %11s\n", "best of the repetitions", "Zentar", "yardstick");
    reporter.PrintRatio("names of a log of 256 MB, against grep", "scan", "grep", 2.0);
    reporter.PrintRatio("transcript of it, against Perl", "transcript", "perl", 0.2);
    reporter.PrintRatio("transcript of it, against grep", "transcript", "grep", 6.0);
    std::printf("%-45s %8.1f MB (target %.0f)\n", "most memory at any time", PeakMegabytes(),
                kMostMemory);
    if (!IsSame(g_ours, g_perls)) {
        std::printf("The transcripts differ: %s and %s\n", g_ours.c_str(), g_perls.c_str());
        return 1;
    }
    std::printf("The transcripts are the same, byte for byte.\n");
    return 0;
}

}  // namespace zentar::benchmarks

int main(int argc, char** argv) { return zentar::benchmarks::Run(argc, argv); }
