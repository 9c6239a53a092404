// What is fixed about each of the three games.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace zentar {

// "Quake1", "Quake2" or "Quake3"; spliced into messages as it stands. Any other text is no game.
using GameId = std::string;

inline constexpr std::string_view kQuake1 = "Quake1";
inline constexpr std::string_view kQuake2 = "Quake2";
inline constexpr std::string_view kQuake3 = "Quake3";
inline constexpr std::size_t kGameCount = 3;
inline constexpr std::size_t kQuake2Row = 1;  // in AllGames()
inline constexpr std::size_t kQuake3Row = 2;

struct GameInfo {
    std::string_view id;
    std::string_view executable;
    std::string_view baseMod;           // folder name of the unmodified game
    std::string_view demoExtension;     // with its dot
    std::string_view demoFolder;        // inside a mod; empty for the mod folder itself
    std::string_view screenshotFolder;  // likewise
    std::string_view label;             // in "Current Folders"

    // One blank and the base mod in double quotes, as the game's command line takes it.
    std::string BaseArgument() const;
    // The standard map names, offered as phrases for the demo filter.
    std::vector<std::string> MapNames() const;
};

// Quake 1, 2, 3 in this order.
const std::array<GameInfo, kGameCount>& AllGames();

// Its position in AllGames(), or -1 when the text names no game.
int GameIndex(std::string_view id);

}  // namespace zentar
