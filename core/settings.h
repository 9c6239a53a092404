// The user's settings and their place in zentar.ini.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/game_info.h"

namespace zentar {

inline constexpr std::size_t kPlayerBoxes = 24;  // of the chat frame

inline constexpr std::size_t kQ3TextTypes = 6;  // what a coloured text may be used for

// Settings that no control holds, and those of controls that keep their value here. Settings that
// live in a control (the demo filter's, the names of players) are read from and written to it; see
// SettingsControls.
//
// Names and phrases are game text (bytes), paths are UTF-8.
struct AppSettings {
    std::uint8_t Virgin = 1;  // 1 until the first-run welcome was shown
    GameId Game{kQuake2};
    std::string Remote;  // Remote Folder
    std::uint8_t Expert = 0;
    std::uint8_t AutoShowAll = 1;
    std::uint8_t AutoNextShot = 0;
    std::uint8_t AutoNextDemo = 0;
    std::uint8_t ScanWarn = 0;
    std::int32_t TranscriptMessages = -1;                // a colour, or -1 for none
    std::int32_t TranscriptBackground = -1;              // likewise
    std::array<std::string, kPlayerBoxes> PlayerColour;  // decimal number, or empty
    std::uint8_t Q3TextType = 0;
    std::string Q3TextText;  // the coloured text saved or opened last
};

}  // namespace zentar
