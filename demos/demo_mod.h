// The mod that a demo was recorded in, as the demo's first bytes tell it.
//
// A Quake 2 demo begins with the server-data message, which names the game's folder; it is empty
// for the unmodified game. An old Quake 3 demo holds the server's settings as one text of keys and
// values, "gamename" among them; from 1.29f on it is compressed, and tells nothing.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace zentar {

// The mod's folder name, in game text; empty for a demo that names none, which is one of the
// unmodified game.
Result<std::string> ReadQuake2Mod(ReadableFile& file);
Result<std::string> ReadQuake3Mod(ReadableFile& file);

// Whether a text (UTF-8) names one folder inside another, and cannot lead anywhere else.
bool IsFolderName(std::string_view name);

}  // namespace zentar
