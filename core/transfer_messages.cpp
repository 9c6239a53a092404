#include "core/transfer_messages.h"

#include "core/message_kinds.h"
#include "core/text.h"

namespace zentar::messages {

std::string VerbOf(TransferVerb verb) { return verb == TransferVerb::Copy ? "copy" : "move"; }

std::string PastOf(TransferVerb verb) { return verb == TransferVerb::Copy ? "copied" : "moved"; }

Message NoSpaceFor(TransferVerb verb, const SpaceShortage& shortage) {
    return Failure(
        Lines({"No space on your " + shortage.drive + " drive to " + VerbOf(verb) + " this " +
                   std::string(shortage.thing) + "!",
               "",
               std::string(shortage.owner) + " file size (bytes):\t" +
                   GroupDigits(shortage.length, shortage.separator),
               "Disk space free (bytes):\t" + GroupDigits(shortage.space, shortage.separator)}));
}

}  // namespace zentar::messages
