#include <array>
#include <fstream>

#include "benchmarks/counted_loops.h"
#include "benchmarks/names_only.h"
#include "benchmarks/posix_file_system.h"
#include "benchmarks/sample_folders.h"
#include "demos/demo_header.h"
#include "demos/demo_list.h"
#include "demos/demo_mod.h"
#include "demos/phrase_search.h"
#include "samples/demo_maker.h"
#include "screenshots/shot_list.h"

namespace zentar::benchmarks {

namespace {

using samples::DemoKind;

struct Kind {
    DemoKind kind;
    std::string_view game;
    const char* name;
};

// A Quake 3 demo of 1.29f is compressed; that there is nothing to be read takes the whole block.
constexpr std::array<Kind, 4> kKinds = {{{DemoKind::Dem, kQuake1, "Quake 1"},
                                         {DemoKind::Dm2, kQuake2, "Quake 2"},
                                         {DemoKind::Dm3, kQuake3, "Quake 3 1.17"},
                                         {DemoKind::Dm66, kQuake3, "Quake 3 1.29f"}}};

std::string WriteDemo(const std::string& folder, DemoKind kind) {
    const std::string path = folder + "/one" + samples::ExtensionOf(kind);
    std::ofstream(path, std::ios::binary) << samples::MakeDemo(
        kind, {.map = "q2dm1", .levelName = "The Edge", .mod = "ctf", .size = 7000});
    return path;
}

void CountHeaders(LoopCounter& counter, const std::string& folder) {
    constexpr int kTimes = 100;
    PosixFileSystem files;
    for (const Kind& kind : kKinds) {
        const std::string path = WriteDemo(folder, kind.kind);
        int named = 0;
        const auto read = [&] {
            for (int i = 0; i < kTimes; ++i) {
                const HeaderResult header = ReadDemoHeader(files, path, kind.game);
                named += header.Ok() && header.Value() && !header.Value()->Map.empty() ? 1 : 0;
            }
        };
        counter.Count({std::string("header, ") + kind.name, "8 KB", "demo", kTimes}, read,
                      [&] { return named == kTimes; });
    }
}

void CountMods(LoopCounter& counter, const std::string& folder) {
    constexpr int kTimes = 100;
    PosixFileSystem files;
    for (const auto& [kind, read, name] :
         {std::tuple(DemoKind::Dm2, &ReadQuake2Mod, "mod, Quake 2"),
          {DemoKind::Dm3, &ReadQuake3Mod, "mod, Quake 3 1.17"}}) {
        const std::string path = WriteDemo(folder, kind);
        int named = 0;
        const auto readAll = [&, read = read] {
            for (int i = 0; i < kTimes; ++i) {
                const auto file = files.OpenForReading(path);
                named += read(*file.Value()).ValueOr("") == "ctf" ? 1 : 0;
            }
        };
        counter.Count({name, "8 KB", "demo", kTimes}, readAll, [&] { return named == kTimes; });
    }
}

void CountPhrases(LoopCounter& counter, const std::string& folder) {
    constexpr int kDemos = 16;
    PosixFileSystem files;
    const std::string demos = LargeDemos(folder, kDemos);
    std::vector<std::string> paths;
    std::uint64_t bytes = 0;
    for (int i = 0; i < kDemos; ++i) {
        paths.push_back(demos + "/" + SampleName("demo", i, kDemos) + ".dm2");
        bytes += files.Info(paths.back()).Value().length;
    }
    for (const PhraseCase& one : kPhraseCases) {
        std::size_t found = 0;
        const auto search = [&] {
            PhraseSearch phrase(one.phrase);
            for (const std::string& path : paths) {
                const auto file = files.OpenForReading(path);
                found += phrase.FoundIn(*file.Value()).ValueOr(false) ? 1 : 0;
            }
        };
        const std::size_t expected = one.phrase == std::string_view(kLastWords) ? kDemos : 0;
        counter.Count({std::string("phrase, ") + one.name, "16 demos of 500 KB", "byte", bytes},
                      search, [&] { return found == expected; });
    }
}

void CountDemoList(LoopCounter& counter) {
    constexpr int kDemos = 10'000;
    NamesOnly folder;
    for (int i = 0; i < kDemos; ++i) {
        folder.names.push_back(SampleName("demo", i, kDemos) + ".dm2");
    }
    DemoListing listing;
    counter.Count(
        {"list of demos", "10,000 names", "demo", kDemos},
        [&] { listing = ListDemos(folder, "C:\\", ".dm2", {}); },
        [&] { return listing.entries.size() == kDemos; });
}

void CountShotList(LoopCounter& counter) {
    constexpr int kShots = 20'000;
    NamesOnly folder;
    for (int i = 0; i < kShots; ++i) {
        folder.names.push_back(SampleName("shot", i, kShots) + ".tga");
        if (i % 2 == 0) {
            folder.names.push_back(SampleName("shot", i, kShots) + ".zentar");
        }
    }
    ShotListing listing;
    counter.Count(
        {"list of screenshots", "20,000 names and 10,000 of previews", "screenshot", kShots},
        [&] { listing = ListShots(folder, "C:\\"); },
        [&] { return listing.entries.size() == kShots; });
}

}  // namespace

void CountDemoLoops(LoopCounter& counter, const std::string& folder) {
    CountHeaders(counter, folder);
    CountMods(counter, folder);
    CountPhrases(counter, folder);
    CountDemoList(counter);
    CountShotList(counter);
}

}  // namespace zentar::benchmarks
