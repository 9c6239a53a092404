// Telling speech from console messages, line by line. Texts are game text.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zentar {

// Where ": " is in a line, which stands between a speaker and the speech; npos for none.
std::size_t FindSpeechMark(std::string_view line, std::size_t from = 0);

// A line of a Quake 3 log without what stands before the speech: " say: " and its like.
std::string_view WithoutSpeechMarkers(std::string_view line);

// The name of whoever speaks in the line; nothing when the line looks like a console message. The
// beginnings of known messages decide, so a player whose name begins with one is not found. The
// name may be empty, and holds no NUL: the games never write one.
std::optional<std::string> SpeakerOf(std::string_view line, bool quake3);

}  // namespace zentar
