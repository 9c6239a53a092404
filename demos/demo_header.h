// What the beginning of a demo file tells: its map, the level's name, and for Quake 3 the
// generation of the game that wrote it.
//
// Quake 1 and Quake 2 demos begin with the server's first message, which names the level and lists
// the models; old Quake 3 demos hold the configuration strings in plain text. From 1.29f on Quake 3
// compresses its demos, and nothing can be read from them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/program_state.h"
#include "platform/file_system.h"

namespace zentar {

// Map and level name of a compressed demo.
inline constexpr std::string_view kNotAvailable = "(n/a for v1.29f and higher)";

struct DemoHeader {
    std::string Map;   // bytes; lower case, without folder and extension
    std::string Name;  // bytes; may be empty
    Q3Generation Generation = Q3Generation::None;  // Quake 3 only
};

// A header; no value for a file that is not a demo of the game; or why the file cannot be read.
using HeaderResult = Result<std::optional<DemoHeader>>;

// Reads at most 5,120 bytes, and behind them only what the texts found there need.
HeaderResult ReadDemoHeader(FileSystem& files, const std::string& path, std::string_view game);

HeaderResult ReadQuake1Header(ReadableFile& file);
HeaderResult ReadQuake2Header(ReadableFile& file);
// `neverRejected` for a .dm_66 file, which is taken for a demo whatever it holds.
HeaderResult ReadQuake3Header(ReadableFile& file, bool neverRejected);

}  // namespace zentar
