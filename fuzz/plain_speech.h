// Consoles read in as plain a way as can be, for comparison.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zentar::fuzz {

// Splits at each CR and LF; what stands behind the last is left out.
std::vector<std::string> PlainLines(std::string_view bytes);

std::string PlainWithoutMarkers(std::string line);

// Whoever speaks in a line, or nothing; the beginnings of known messages are not looked at.
std::optional<std::string> PlainSpeaker(std::string line, bool quake3);

}  // namespace zentar::fuzz
