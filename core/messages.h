// The messages of the application core, whole.
#pragma once

#include <string>
#include <string_view>

#include "core/program_state.h"
#include "platform/result.h"
#include "platform/window_services.h"

namespace zentar::messages {

// "Specify Folder...": the title of the folder picker, and the answer to a folder without the game.
std::string LocateGameFolder(const GameId& game);
Message NotTheGameFolder(const GameId& game);

// A command needs the game, and its folder is wrong.
Message GameFolderUnknown(const GameId& game);

Message CurrentFolders(const ProgramState& state);
Message FirstRunWelcome();
Message AboutZentar();
Message CannotExitYet();

// A new file name holds one of the nine characters that none may hold.
Message IllegalCharacters();
// `thing` is what was to be renamed, or to be found: "demo", "screenshot".
Message NotRenamed(std::string_view thing, FileError why);
Message IsGone(std::string_view thing);

// Preferences.
std::string LocateRemoteFolder();
Message SwitchingToExpertMode();
Message RemoteFolderInvalid();

}  // namespace zentar::messages
