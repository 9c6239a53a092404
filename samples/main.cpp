// make_samples <folder> [--demos <number>]: writes the sample games into a folder. <number> more
// demos go into the base mod of Quake 2.

#include <charconv>
#include <cstring>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string_view>

#include "samples/sample_games.h"

namespace {

std::optional<int> ParseCount(std::string_view text) {
    int count = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    const bool whole = end == text.data() + text.size();
    return error == std::errc() && whole && count >= 0 ? std::optional(count) : std::nullopt;
}

int Usage() {
    std::cerr << "usage: make_samples <folder> [--demos <number>]\n";
    return 2;
}

int MakeSamples(int argc, char** argv) {
    zentar::samples::SampleOptions options;
    if (argc == 4 && std::strcmp(argv[2], "--demos") == 0) {
        const std::optional<int> count = ParseCount(argv[3]);
        if (!count) {
            return Usage();
        }
        options.extraDemos = *count;
    } else if (argc != 2) {
        return Usage();
    }
    const std::filesystem::path standin =
        std::filesystem::path(argv[0]).replace_filename("standin_game.exe");
    if (std::filesystem::exists(standin)) {
        options.standin = standin;
    }
    zentar::samples::WriteSampleGames(argv[1], options);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return MakeSamples(argc, argv);
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
}
