// Where the games are installed.
#pragma once

#include <string_view>

#include "core/program_state.h"
#include "platform/file_system.h"
#include "platform/platform.h"

namespace zentar {

// Looks for each game's executable in its folder. A game that is not there gets its program
// drive, such as "C:", for a folder: the folder check then refuses it.
void DetectInstalledGames(ProgramState& state, FileSystem& files);

// Whether a folder beside the mods, named in lower case, is none of them.
bool HoldsNoMod(std::string_view folder);

// Lets the user pick the current game's folder; true when one with the game in it was chosen, and
// the games must be refreshed. Tells the user of a folder without the game.
[[nodiscard]] bool ChooseGameFolder(ProgramState& state, const Platform& platform);

// To be run before any command that needs the current game, or a certain one: sets
// state.GameFolderOK, and tells the user when the game's executable is not in its folder.
void CheckGameFolder(ProgramState& state, const Platform& platform);
void CheckGameFolder(ProgramState& state, const Platform& platform, const GameId& game);

}  // namespace zentar
