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

// `thing` is what does not fit ("demo"), `drive` a letter. Sizes are in bytes, their digits grouped
// by `separator`.
struct SpaceShortage {
    std::string_view thing;
    std::string drive;
    std::uint64_t length = 0;
    std::uint64_t space = 0;
    std::string separator;
};
Message NoSpaceFor(TransferVerb verb, const SpaceShortage& shortage);

// `thing` is what is copied or moved ("demo"), `place` where the original still is ("baseq2").
Message ExistsInRemoteFolder(std::string_view thing);
Message OverwriteReadOnly(std::string_view thing);
Message NotTransferred(TransferVerb verb, std::string_view thing, const std::string& place);
// `sentence` says that it was not transferred completely.
Message PartlyTransferred(TransferVerb verb, const std::string& sentence, std::string_view thing,
                          const std::string& place);
// The copy is there, and so is the original, which could not be deleted.
Message MovedNotDeleted(std::string_view thing, const std::string& place);

}  // namespace messages
}  // namespace zentar
