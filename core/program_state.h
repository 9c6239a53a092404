// The state that the whole program shares: games, current game, settings and a few flags.
//
// There is one of these a program, handed to whoever needs it.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/game_info.h"
#include "core/settings.h"

namespace zentar {

// What the user's installation of one game is like.
struct GameState {
    std::string GameFolder;      // with a trailing backslash once the user set it
    std::string BaseModPath;     // GameFolder + base mod + backslash
    std::string CurMod;          // last selected mod
    bool GameInstalled = false;  // its executable was found; never reset
};

// Where the current game and mod keep their files. Set by the game refresh and by mod selection;
// everybody else only reads it.
struct CurrentGame {
    std::string CurrentExe;
    std::string CurrentBaseArg;
    std::string CurrentGameFolder;
    std::string CurrentBasePath;
    std::string ScreenshotFolder;
    std::string DemoFolder;     // with a trailing backslash; empty before the first refresh
    std::string DemoExtension;  // ".dem", ".dm2" or ".dm3"
    std::string SelectedMod;    // whose demos and screenshots these are
};

// The network generation that wrote a Quake 3 demo, as the number of its game version.
enum class Q3Generation : std::uint8_t { None = 0, V117 = 117, V127h = 127, V129f = 129 };

struct ProgramState {
    std::string ProgramFolder;  // lower case, trailing backslash
    std::string WindowsFolder;  // trailing backslash
    std::string Q3TextFolder;

    std::array<GameState, kGameCount> games;  // in the order of AllGames()
    std::string Q3BackupFolder;
    CurrentGame current;
    AppSettings settings;

    // Of the Quake 3 demo read last; demos of the other games leave it as it was.
    Q3Generation generation = Q3Generation::None;

    bool FirstActivationDone = false;
    bool GameFolderOK = false;
    bool RemoteFolderOK = false;
    bool ShiftHeld = false;

    // The current game's fixed data and state; null when the settings name no game.
    const GameInfo* Info() const;
    GameState* Game();
};

}  // namespace zentar
