// How fast TGA and PCX files are decoded, beside yardsticks measured in the same run: stb_image
// from memory, and the whole of an ImageMagick process from file to file.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <stb/stb_image.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "benchmarks/ratio_reporter.h"
#include "benchmarks/sample_images.h"
#include "platform/nviewlib/tga_decoder.h"

namespace zentar::benchmarks {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr double kFromMemory = 1.0;
constexpr double kFromFile = 0.5;

struct Shot {
    std::string name;
    std::string path;
    Bytes bytes;
    Decoder decoder = nullptr;
};

bool Decodes(Decoder decoder, std::span<const std::uint8_t> bytes) {
    const std::optional<BottomUpPicture> picture = Decode(decoder, bytes);
    benchmark::DoNotOptimize(picture);
    return picture.has_value();
}

void Check(benchmark::State& state, bool done) {
    if (!done) {
        state.SkipWithError("not decoded");
    }
}

void FromMemory(benchmark::State& state, const Shot& shot) {
    for (auto _ : state) {
        Check(state, Decodes(shot.decoder, shot.bytes));
    }
}

void FromMemoryStb(benchmark::State& state, const Shot& shot) {
    for (auto _ : state) {
        int width = 0;
        int height = 0;
        int channels = 0;
        stbi_uc* const pixels = stbi_load_from_memory(
            shot.bytes.data(), static_cast<int>(shot.bytes.size()), &width, &height, &channels, 0);
        Check(state, pixels != nullptr);
        stbi_image_free(pixels);
    }
}

void FromFile(benchmark::State& state, const Shot& shot) {
    for (auto _ : state) {
        Bytes bytes(std::filesystem::file_size(shot.path));
        const int file = open(shot.path.c_str(), O_RDONLY | O_CLOEXEC);
        const ssize_t count = read(file, bytes.data(), bytes.size());
        close(file);
        Check(state, count == static_cast<ssize_t>(bytes.size()) && Decodes(shot.decoder, bytes));
    }
}

void FromFileConvert(benchmark::State& state, const Shot& shot) {
    const std::string target = "bmp:" + shot.path + ".bmp";
    for (auto _ : state) {
        const pid_t child = fork();
        if (child == 0) {
            // Debian's own name first: what is called "convert" may be a wrapper, which takes
            // longer.
            execlp("convert-im6.q16", "convert", shot.path.c_str(), target.c_str(), nullptr);
            execlp("convert", "convert", shot.path.c_str(), target.c_str(), nullptr);
            _exit(127);
        }
        int status = 0;
        waitpid(child, &status, 0);
        Check(state, WEXITSTATUS(status) == 0);
    }
}

std::vector<Shot> MakeShots(const std::string& folder) {
    std::filesystem::create_directories(folder);
    std::vector<Shot> shots;
    for (const auto& [width, height] : {std::pair(640, 480), {1920, 1080}, {3840, 2160}}) {
        for (const SampleImage& image : SampleImages(width, height)) {
            const std::string name =
                image.kind + " " + std::to_string(width) + "x" + std::to_string(height);
            const std::string path = folder + "/" + name + image.extension;
            std::ofstream(path, std::ios::binary) << image.file;
            shots.push_back(
                {name, path, Bytes(image.file.begin(), image.file.end()), image.decoder});
        }
    }
    return shots;
}

bool IsTga(const Shot& shot) { return shot.decoder == nviewlib::DecodeTga; }

std::string NameOf(const std::string& how, const Shot& shot) { return how + ": " + shot.name; }

void Register(const std::string& how, const Shot& shot, int repetitions,
              void (*run)(benchmark::State&, const Shot&)) {
    benchmark::RegisterBenchmark(NameOf(how, shot).c_str(),
                                 [&shot, run](benchmark::State& state) { run(state, shot); })
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(repetitions)
        ->Iterations(1);
}

}  // namespace

int Run(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const std::vector<Shot> shots =
        MakeShots(argc > 1 ? std::string(argv[1]) + "/shots" : "benchmark_data/shots");
    for (const Shot& shot : shots) {
        Register("memory", shot, 25, FromMemory);
        if (IsTga(shot)) {
            Register("stb_image", shot, 25, FromMemoryStb);
        }
        Register("file", shot, 7, FromFile);
        Register("convert", shot, 7, FromFileConvert);
    }
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\n%-45s %11s %11s\n", "best of the repetitions", "Zentar", "yardstick");
    for (const Shot& shot : shots) {
        if (IsTga(shot)) {
            reporter.PrintRatio(NameOf("stb_image", shot), NameOf("memory", shot),
                                NameOf("stb_image", shot), kFromMemory);
        }
        reporter.PrintRatio(NameOf("convert", shot), NameOf("file", shot), NameOf("convert", shot),
                            kFromFile);
    }
    return 0;
}

}  // namespace zentar::benchmarks

int main(int argc, char** argv) { return zentar::benchmarks::Run(argc, argv); }
