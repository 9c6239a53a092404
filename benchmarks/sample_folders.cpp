#include "benchmarks/sample_folders.h"

#include <filesystem>
#include <fstream>

#include "samples/demo_maker.h"

namespace zentar::benchmarks {

namespace {

namespace fs = std::filesystem;

std::string MakeFolder(const fs::path& folder, int count, const std::string& demo) {
    if (!fs::exists(folder / "complete")) {
        fs::create_directories(folder);
        for (int i = 0; i < count; ++i) {
            // So that no order of the names is the order of the folder.
            const std::string name = "demo" + std::to_string((i * 7919) % count) + ".dm2";
            std::ofstream(folder / name, std::ios::binary) << demo << i << kLastWords;
        }
        std::ofstream(folder / "complete") << count;
    }
    return folder.string();
}

}  // namespace

std::string LargeDemos(const std::string& base) {
    return MakeFolder(
        fs::path(base) / "large_demos", 1000,
        samples::MakeDemo(
            samples::DemoKind::Dm2,
            {.map = "q2dm1", .levelName = "The Edge", .chat = {"Bob: hello"}, .size = 499'000}));
}

std::string ManyDemos(const std::string& base) {
    return MakeFolder(fs::path(base) / "many_demos", 10'000,
                      samples::MakeDemo(samples::DemoKind::Dm2,
                                        {.map = "q2dm1", .levelName = "The Edge", .size = 7000}));
}

}  // namespace zentar::benchmarks
