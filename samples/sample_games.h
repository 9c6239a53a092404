// A tree of the three games to try the program on: stand-in executables, mods, demos and
// screenshots of every kind, and the odd files that a real installation collects.
#pragma once

#include <filesystem>

namespace zentar::samples {

struct SampleOptions {
    // The program that stands in for every game executable. Without one they are files of a few
    // bytes: the games count as installed, but cannot be started.
    std::filesystem::path standin;
    // How many demos lie in the base mod of Quake 2 besides the named ones.
    int extraDemos = 0;
};

// Writes the folders Quake, Quake2 and Quake3 into `games`, which need not exist. Files that are
// there already are written anew; others stay. Throws std::filesystem::filesystem_error or
// std::runtime_error when something cannot be written.
void WriteSampleGames(const std::filesystem::path& games, const SampleOptions& options);

}  // namespace zentar::samples
