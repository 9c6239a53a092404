// Moving a folder of demos into the mods that they were recorded in.
//
// No file is replaced, a demo leaves its place only for a checked copy, and nothing is ever written
// outside the game's own folder, whatever a demo says.
#pragma once

#include <cstdint>
#include <string>

#include "core/game_info.h"
#include "platform/file_system.h"

namespace zentar {

struct InstallCount {
    std::uint64_t found = 0;      // files with an extension of the game's demos
    std::uint64_t installed = 0;  // those that are in their mod's folder now
};

// For Quake 2 and Quake 3. Both folders end in a backslash; `from` may not be readable, and then
// holds nothing.
InstallCount InstallDemos(FileSystem& files, const GameInfo& game, const std::string& gameFolder,
                          const std::string& from);

}  // namespace zentar
