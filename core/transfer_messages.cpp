#include "core/transfer_messages.h"

#include "core/message_kinds.h"
#include "core/text.h"

namespace zentar::messages {
namespace {

// At the beginning of a sentence.
std::string Capitalised(std::string_view thing) {
    std::string text(thing);
    text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

}  // namespace

std::string VerbOf(TransferVerb verb) { return verb == TransferVerb::Copy ? "copy" : "move"; }

std::string PastOf(TransferVerb verb) { return verb == TransferVerb::Copy ? "copied" : "moved"; }

Message NoSpaceFor(TransferVerb verb, const SpaceShortage& shortage) {
    return Failure(
        Lines({"No space on your " + shortage.drive + " drive to " + VerbOf(verb) + " this " +
                   std::string(shortage.thing) + "!",
               "",
               Capitalised(shortage.thing) + "'s file size (bytes):\t" +
                   GroupDigits(shortage.length, shortage.separator),
               "Disk space free (bytes):\t" + GroupDigits(shortage.space, shortage.separator)}));
}

Message ExistsInRemoteFolder(std::string_view thing) {
    return Confirmation(Capitalised(thing) + " already exists in Remote Folder -- Overwrite?");
}

Message OverwriteReadOnly(std::string_view thing) {
    return FailureWithQuestion(
        Lines({"Can't overwrite existing " + std::string(thing) + " due to it being read-only.",
               "Would you like me to remove this setting to force the overwrite?"}));
}

Message NotTransferred(TransferVerb verb, std::string_view thing, const std::string& place) {
    const std::string first =
        Capitalised(thing) + " could not be " + PastOf(verb) + " to Remote Folder for some reason.";
    const std::string second = "This is most probably due to a lack of available disk space";
    if (verb == TransferVerb::Copy) {
        return CriticalFailure(Lines({first, second + "."}));
    }
    return CriticalFailure(Lines({first, second + ",",
                                  "and the original " + std::string(thing) +
                                      " still remains in its " + place + " sub-folder."}));
}

Message PartlyTransferred(TransferVerb verb, const std::string& sentence, std::string_view thing,
                          const std::string& place) {
    if (verb == TransferVerb::Copy) {
        return CriticalFailure(Lines({sentence, "The partial copy has been deleted as a result."}));
    }
    return CriticalFailure(Lines({sentence,
                                  "The partial move has been deleted and the original " +
                                      std::string(thing) + " remains in its",
                                  place + " sub-folder."}));
}

Message MovedNotDeleted(std::string_view thing, const std::string& place) {
    return CriticalFailure(
        Lines({Capitalised(thing) + " was copied to Remote Folder, but could not be deleted",
               "and so the original " + std::string(thing) + " still remains in its " + place +
                   " sub-folder."}));
}

}  // namespace zentar::messages
