// The user's settings and their place in zentar.ini.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/game_info.h"

namespace zentar {

inline constexpr int kPlayerBoxes = 24;

// Settings that no control holds, and those of controls that keep their value here. Settings that
// live in a control (the demo filter's, the view mode) are read from and written to it; see
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
    std::uint8_t BackupAll = 0;
    std::uint8_t ScanWarn = 0;
    std::uint8_t TranscriptHTML = 1;
    std::uint8_t TranscriptGameplay = 0;
    std::int32_t TranscriptMessages = -1;
    std::int32_t TranscriptBackground = -1;
    std::array<std::string, kPlayerBoxes> PlayerName;
    std::array<std::string, kPlayerBoxes> PlayerColour;  // decimal number, or empty
    std::uint8_t Q3TextType = 0;
    std::uint8_t Q3TextKeyfox = 0;
    std::uint8_t Q3TextOSP = 0;
    std::string Q3TextText;
};

}  // namespace zentar
