// Makes demos as the games record them: the server's first message with its map, level name and
// model list or configuration strings, then play with chat, then the recording's end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace zentar::samples {

enum class DemoKind : std::uint8_t {
    Dem,   // Quake 1
    Dm2,   // Quake 2
    Dm3,   // Quake 3 1.17
    Dm48,  // Quake 3 1.27h
    Dm66,  // Quake 3 1.29f: compressed, so that no text can be read from it
};

// Texts are bytes as they go into the file.
struct DemoContents {
    std::string map = "dm1";
    std::string levelName = "Arena";
    std::string mod = {};  // Quake 2's game folder (empty: the base game), Quake 3's game name
    std::vector<std::string> chat = {};
    std::size_t size = 0;        // the file is made at least this long
    std::string earlyText = {};  // stands somewhere before the map
    // Offset of the map's marker, and for Quake 3 of the level name's; each comes later where there
    // is no room for it so early.
    std::size_t mapAt = 0;
    std::size_t levelNameAt = 0;
};

std::string MakeDemo(DemoKind kind, const DemoContents& contents);

// With the dot.
std::string ExtensionOf(DemoKind kind);

// A file that is no demo of any game, whatever its name says.
std::string MakeTextFile(std::size_t size);

}  // namespace zentar::samples
