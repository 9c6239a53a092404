// Which edges a control keeps its distance to: the combinations that several tabs and windows need.
#pragma once

#include <cstdint>

#include "platform/form_table.h"

namespace zentar {

inline constexpr std::uint8_t kGrowRight = AnchorTopLeft | AnchorRight;
inline constexpr std::uint8_t kGrowDown = AnchorTopLeft | AnchorBottom;
inline constexpr std::uint8_t kBottomLeft = AnchorBottom | AnchorLeft;
inline constexpr std::uint8_t kBottomRight = AnchorBottom | AnchorRight;
inline constexpr std::uint8_t kBottomGrowRight = AnchorBottom | AnchorLeft | AnchorRight;

}  // namespace zentar
