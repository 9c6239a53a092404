// The colour codes that Quake 3 understands in names and speech: a caret and a digit.
//
// Texts to be coloured are UTF-8; those to be stripped are game text, bytes of which the games use
// all 256 values.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/rich_text.h"

namespace zentar {

// The eight colours of the game.
inline constexpr ColourRef kQ3Black = 0x000000;
inline constexpr ColourRef kQ3Red = 0x0000FF;
inline constexpr ColourRef kQ3Green = 0x00FF00;
inline constexpr ColourRef kQ3Yellow = 0x00FFFF;
inline constexpr ColourRef kQ3Blue = 0xFF0000;
inline constexpr ColourRef kQ3Cyan = 0xFFFF00;
inline constexpr ColourRef kQ3Magenta = 0xFF00FF;
inline constexpr ColourRef kQ3White = 0xFFFFFF;

// What a coloured text is used for; the numbers stand in the settings file.
enum class Q3TextType : std::uint8_t {
    PlayerName = 0,
    ServerName = 1,
    PublicSpeech = 2,
    TeamSpeech = 3,
    AttackerSpeech = 4,
    TargetSpeech = 5,
};

struct Q3TextOptions {
    Q3TextType type = Q3TextType::PlayerName;
    bool keyfox = false;  // without the wrapper that the console needs
    bool osp = false;     // black as the OSP mods want it
};

// The console command that shows the text in its colours. The first character of a run in a colour
// that the game does not have is left out. A number that is no type counts as a player name.
std::string BuildQ3TextCode(const RichText& text, const Q3TextOptions& options);

// The text without its colour codes. ^8 and ^9 are none.
std::string StripColourCodes(std::string_view text);

}  // namespace zentar
