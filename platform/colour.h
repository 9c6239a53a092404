// Colours of texts and backgrounds.
#pragma once

#include <cstdint>
#include <variant>

namespace zentar {

// A colour as 0x00BBGGRR.
using ColourRef = std::uint32_t;

inline constexpr ColourRef kBlack = 0;
inline constexpr ColourRef kWhite = 0xFFFFFF;

// Colours that the user chose for the whole system; they may change while the program runs.
enum class SystemColour : std::uint8_t { Window, WindowText, ButtonFace };

using Colour = std::variant<SystemColour, ColourRef>;

}  // namespace zentar
