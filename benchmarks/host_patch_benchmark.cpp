// How fast a message is wiped out of a large executable, beside grep, which only counts the lines
// that have it: host_patch_benchmark [folder for the executable]
#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "benchmarks/large_executable.h"
#include "benchmarks/other_program.h"
#include "benchmarks/posix_file_system.h"
#include "benchmarks/ratio_reporter.h"
#include "firstaid/message_patch.h"

namespace zentar::benchmarks {

namespace {

constexpr std::size_t kLength = std::size_t{100} * 1024 * 1024;

std::string g_game;

void PutTextBack() {
    std::fstream file(g_game, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(static_cast<std::streamoff>(PlaceOfMessage(kLength) - 1));
    file << '.' << kGameMessage << '\n';
}

void Patch(benchmark::State& state) {
    PosixFileSystem files;
    const std::vector<std::string_view> texts = {kGameMessage};
    for (auto _ : state) {
        if (!PatchGameMessages(files, g_game, texts).Ok()) {
            state.SkipWithError("it failed");
        }
        state.PauseTiming();
        PutTextBack();
        state.ResumeTiming();
    }
}

void Grep(benchmark::State& state) {
    for (auto _ : state) {
        RunProgram(state, {"grep", "-c", std::string(kGameMessage), g_game}, g_game + ".count");
    }
}

int Run(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const std::filesystem::path folder = argc > 1 ? argv[1] : ".";
    g_game = (folder / "quake3.exe").string();
    std::ofstream(g_game, std::ios::binary) << LargeExecutable(kLength);
    for (const auto& [name, run] : {std::pair("grep", &Grep), {"patch", &Patch}}) {
        benchmark::RegisterBenchmark(name, run)
            ->Unit(benchmark::kMillisecond)
            ->Iterations(3)
            ->Repetitions(5)
            ->UseRealTime();
    }
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\n%-45s %11s %11s\n", "best of the repetitions", "Zentar", "yardstick");
    reporter.PrintRatio("message wiped out of 100 MB, against grep", "patch", "grep", 1.2);
    std::filesystem::remove(g_game);
    std::filesystem::remove(g_game + ".count");
    return 0;
}

}  // namespace

}  // namespace zentar::benchmarks

int main(int argc, char** argv) { return zentar::benchmarks::Run(argc, argv); }
