// Reading the characters and colours out of rich text in the Rich Text Format (RTF 1.9.1, and what
// older programs wrote); everything else in it is passed over. In particular no object is ever made
// of what the bytes say.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/rich_text.h"

namespace zentar {

// The text as the editor holds it: line and paragraph ends, tabs and other control characters stand
// as blanks, those at the very end are left out, and so is hidden text; neighbours of one colour
// are one run. Text without a colour of its own is black. Bytes are taken as Windows-1252 with the
// five bytes that it leaves unassigned as the code points of the same value. Nothing when the bytes
// are no RTF at all; what is broken further on is read as far as it makes sense. At most
// kMostRtfCharacters characters are taken.
std::optional<std::vector<ColouredRun>> ReadRtf(std::string_view bytes);

inline constexpr std::size_t kMostRtfCharacters = 65'536;

}  // namespace zentar
