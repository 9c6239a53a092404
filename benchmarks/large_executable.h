// An executable of a game, in which a message is looked for.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zentar::benchmarks {

inline constexpr std::string_view kGameMessage = "Couldn't write %s.";

// Where the message stands, as far into the file as it can.
constexpr std::size_t PlaceOfMessage(std::size_t length) { return length - 100; }

// Code and data as they look to a search: all bytes, some of them more often, a few texts. Always
// the same.
std::string LargeExecutable(std::size_t length);

}  // namespace zentar::benchmarks
