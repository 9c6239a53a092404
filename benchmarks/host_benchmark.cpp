// How fast demos are searched and their headers read, each beside a yardstick measured in the same
// run: ripgrep for the search, opening and reading one block for the headers.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <functional>

#include "benchmarks/posix_file_system.h"
#include "benchmarks/ratio_reporter.h"
#include "benchmarks/sample_folders.h"
#include "demos/demo_bytes.h"
#include "demos/demo_header.h"
#include "demos/demo_list.h"

namespace zentar::benchmarks {

namespace {

std::string g_large;
std::string g_many;

void Search(benchmark::State& state, const char* phrase) {
    PosixFileSystem files;
    for (auto _ : state) {
        const DemoListing listing = ListDemos(
            files, g_large + "\\", ".dm2", {.showAll = false, .phrase = phrase, .contain = true});
        benchmark::DoNotOptimize(listing.entries.size());
    }
}

// As a person would call it on demos ("binary"), and as it is fastest ("text").
void Ripgrep(benchmark::State& state, const char* binaryOrText, const char* phrase) {
    for (auto _ : state) {
        const pid_t child = fork();
        if (child == 0) {
            const int nowhere = open("/dev/null", O_WRONLY);
            dup2(nowhere, STDOUT_FILENO);
            execlp("rg", "rg", "--no-config", "-j1", "-uu", binaryOrText, "-Fl", phrase,
                   g_large.c_str(), nullptr);
            _exit(127);
        }
        int status = 0;
        waitpid(child, &status, 0);
        if (WEXITSTATUS(status) == 127) {
            state.SkipWithError("rg is not installed");
        }
    }
}

std::vector<std::string> PathsIn(const std::string& folder) {
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".dm2") {
            paths.push_back(entry.path().string());
        }
    }
    return paths;
}

void Headers(benchmark::State& state) {
    PosixFileSystem files;
    const std::vector<std::string> paths = PathsIn(g_many);
    for (auto _ : state) {
        for (const std::string& path : paths) {
            benchmark::DoNotOptimize(ReadDemoHeader(files, path, kQuake2).Value()->Map.size());
        }
    }
}

void BareBlocks(benchmark::State& state) {
    const std::vector<std::string> paths = PathsIn(g_many);
    std::array<char, DemoBytes::kBlockSize> block{};
    for (auto _ : state) {
        for (const std::string& path : paths) {
            const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
            benchmark::DoNotOptimize(read(file, block.data(), block.size()));
            close(file);
        }
    }
}

std::string RipgrepName(const std::string& how, const PhraseCase& one) {
    return "rg " + how + ": " + one.name;
}

void Register(const std::string& name, const std::function<void(benchmark::State&)>& run) {
    benchmark::RegisterBenchmark(name.c_str(), run)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(7)
        ->Iterations(1);
}

}  // namespace

int Run(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const std::string base = argc > 1 ? argv[1] : "benchmark_data";
    g_large = LargeDemos(base);
    g_many = ManyDemos(base);
    for (const PhraseCase& one : kPhraseCases) {
        Register(std::string("search: ") + one.name,
                 [&one](benchmark::State& state) { Search(state, one.phrase); });
        for (const char* how : {"--binary", "--text"}) {
            Register(RipgrepName(how, one),
                     [&one, how](benchmark::State& state) { Ripgrep(state, how, one.phrase); });
        }
    }
    Register("headers", Headers);
    Register("bare blocks", BareBlocks);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\n%-45s %11s %11s\n", "best of the repetitions", "Zentar", "yardstick");
    for (const PhraseCase& one : kPhraseCases) {
        for (const char* how : {"--binary", "--text"}) {
            reporter.PrintRatio(RipgrepName(how, one), std::string("search: ") + one.name,
                                RipgrepName(how, one), 1.0);
        }
    }
    reporter.PrintRatio("headers of 10,000 demos", "headers", "bare blocks", 1.5);
    return 0;
}

}  // namespace zentar::benchmarks

int main(int argc, char** argv) { return zentar::benchmarks::Run(argc, argv); }
