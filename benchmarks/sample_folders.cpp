#include "benchmarks/sample_folders.h"

#include <filesystem>
#include <fstream>
#include <functional>

#include "samples/demo_maker.h"
#include "samples/shot_maker.h"

namespace zentar::benchmarks {

namespace {

namespace fs = std::filesystem;

void MakeOnce(const fs::path& folder, const std::function<void()>& make) {
    if (!fs::exists(folder / "complete")) {
        fs::create_directories(folder);
        make();
        std::ofstream(folder / "complete") << "made";
    }
}

std::string MakeFolder(const fs::path& folder, int count, const std::string& demo) {
    MakeOnce(folder, [&] {
        for (int i = 0; i < count; ++i) {
            const std::string name = SampleName("demo", i, count) + ".dm2";
            std::ofstream(folder / name, std::ios::binary) << demo << i << kLastWords;
        }
    });
    return folder.string();
}

void WriteShot(const fs::path& file, const samples::ShotView& view) {
    std::ofstream(file, std::ios::binary) << samples::MakeTgaShot(view);
}

}  // namespace

std::string SampleName(const std::string& stem, int number, int count) {
    return stem + std::to_string((number * 7919) % count);
}

std::string LargeDemos(const std::string& base, int count) {
    return MakeFolder(
        fs::path(base) / "large_demos", count,
        samples::MakeDemo(
            samples::DemoKind::Dm2,
            {.map = "q2dm1", .levelName = "The Edge", .chat = {"Bob: hello"}, .size = 499'000}));
}

std::string ManyDemos(const std::string& base) {
    return MakeFolder(fs::path(base) / "many_demos", 10'000,
                      samples::MakeDemo(samples::DemoKind::Dm2,
                                        {.map = "q2dm1", .levelName = "The Edge", .size = 7000}));
}

std::string ManyShots(const std::string& base) {
    constexpr int kShots = 20'000;
    const fs::path folder = fs::path(base) / "many_shots";
    MakeOnce(folder, [&folder] {
        for (int i = 0; i < kShots; ++i) {
            const std::string name = SampleName("shot", i, kShots);
            std::ofstream(folder / (name + ".tga")) << "x";
            if (i % 2 == 0) {
                std::ofstream(folder / (name + ".zentar")) << "x";
            }
        }
    });
    return folder.string();
}

std::string LargeShots(const std::string& base) {
    const fs::path folder = fs::path(base) / "large_shots";
    MakeOnce(folder, [&folder] {
        WriteShot(folder / "one.tga", {.width = 1920, .height = 1080, .number = 1});
        WriteShot(folder / "two.tga", {.width = 1920, .height = 1080, .number = 2});
        WriteShot(folder / "huge.tga", {.width = 3840, .height = 2160, .number = 3});
    });
    return folder.string();
}

}  // namespace zentar::benchmarks
