// What the messages about copying and moving files have in common.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/window_services.h"

namespace zentar {

enum class TransferVerb : std::uint8_t { Copy, Move };

namespace messages {

std::string VerbOf(TransferVerb verb);  // "copy", "move"
std::string PastOf(TransferVerb verb);  // "copied", "moved"

// `thing` is what does not fit ("demo"), `owner` the same as an owner ("Demo's"), `drive` a letter.
// Sizes are in bytes, their digits grouped by `separator`.
struct SpaceShortage {
    std::string_view thing;
    std::string_view owner;
    std::string drive;
    std::uint64_t length = 0;
    std::uint64_t space = 0;
    std::string separator;
};
Message NoSpaceFor(TransferVerb verb, const SpaceShortage& shortage);

}  // namespace messages
}  // namespace zentar
