// What the stand-in games noted of how they were started.
#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

namespace zentar::window_tests {

struct GameStart {
    std::string commandLine;
    std::string folder;  // the working folder, without a backslash at its end
    std::string state;   // of its window, as asked for: "2" for minimised and active

    bool operator==(const GameStart&) const = default;
};

void PrintTo(const GameStart& start, std::ostream* out);

// The starts of all games of a folder, in their order.
std::vector<GameStart> StartsIn(const std::filesystem::path& gameFolder);

// For how long the games of that folder show their window from now on; not at all for 0.
void SetGameSeconds(const std::filesystem::path& gameFolder, int seconds);

}  // namespace zentar::window_tests
