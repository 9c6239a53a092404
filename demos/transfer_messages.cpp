#include "demos/transfer_messages.h"

#include "core/message_kinds.h"
#include "core/text.h"

namespace zentar::messages {
Message ReallyTransferDemo(TransferVerb verb) {
    return Confirmation("Really " + VerbOf(verb) + " this demo to this folder?");
}

Message DemoExistsInRemoteFolder() {
    return Confirmation("Demo already exists in Remote Folder -- Overwrite?");
}

Message OverwriteReadOnlyDemo() {
    return FailureWithQuestion(
        Lines({"Can't overwrite existing demo due to it being read-only.",
               "Would you like me to remove this setting to force the overwrite?"}));
}

Message DemoNotTransferred(TransferVerb verb, const std::string& mod) {
    const std::string first =
        "Demo could not be " + PastOf(verb) + " to Remote Folder for some reason.";
    const std::string second = "This is most probably due to a lack of available disk space";
    if (verb == TransferVerb::Copy) {
        return CriticalFailure(Lines({first, second + "."}));
    }
    return CriticalFailure(
        Lines({first, second + ",",
               "and the original demo still remains in its " + mod + " sub-folder."}));
}

Message DemoPartlyTransferred(TransferVerb verb, const std::string& mod) {
    const std::string first = "Demo could not be completely " + PastOf(verb);
    if (verb == TransferVerb::Copy) {
        return CriticalFailure(Lines({first, "The partial copy has been deleted as a result."}));
    }
    return CriticalFailure(
        Lines({first, "The partial move has been deleted and the original demo remains in its",
               mod + " sub-folder."}));
}

Message MovedDemoNotDeleted(const std::string& mod) {
    return CriticalFailure(
        Lines({"Demo was copied to Remote Folder, but could not be deleted",
               "and so the original demo still remains in its " + mod + " sub-folder."}));
}

}  // namespace zentar::messages
