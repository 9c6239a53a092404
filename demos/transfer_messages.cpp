#include "demos/transfer_messages.h"

#include "core/text.h"

namespace zentar::messages {
namespace {

std::string VerbOf(TransferVerb verb) { return verb == TransferVerb::Copy ? "copy" : "move"; }

std::string PastOf(TransferVerb verb) { return verb == TransferVerb::Copy ? "copied" : "moved"; }

Message Confirmation(std::string text) {
    return {.title = "Confirm",
            .text = std::move(text),
            .icon = MessageIcon::Question,
            .buttons = MessageButtons::YesNo,
            .defaultButton = DefaultButton::Second};
}

Message Critical(std::string text) {
    return {.title = "Error", .text = std::move(text), .icon = MessageIcon::Critical};
}

}  // namespace

Message NoSpaceForDemo(TransferVerb verb, const std::string& drive, std::uint64_t length,
                       std::uint64_t space, std::string_view separator) {
    return {
        .title = "Error",
        .text = Lines({"No space on your " + drive + " drive to " + VerbOf(verb) + " this demo!",
                       "", "Demo's file size (bytes):\t" + GroupDigits(length, separator),
                       "Disk space free (bytes):\t" + GroupDigits(space, separator)}),
        .icon = MessageIcon::Exclamation};
}

Message ReallyTransferDemo(TransferVerb verb) {
    return Confirmation("Really " + VerbOf(verb) + " this demo to this folder?");
}

Message DemoExistsInRemoteFolder() {
    return Confirmation("Demo already exists in Remote Folder -- Overwrite?");
}

Message OverwriteReadOnlyDemo() {
    return {.title = "Error",
            .text = Lines({"Can't overwrite existing demo due to it being read-only.",
                           "Would you like me to remove this setting to force the overwrite?"}),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNo,
            .defaultButton = DefaultButton::Second};
}

Message DemoNotTransferred(TransferVerb verb, const std::string& mod) {
    const std::string first =
        "Demo could not be " + PastOf(verb) + " to Remote Folder for some reason.";
    const std::string second = "This is most probably due to a lack of available disk space";
    if (verb == TransferVerb::Copy) {
        return Critical(Lines({first, second + "."}));
    }
    return Critical(Lines({first, second + ",",
                           "and the original demo still remains in its " + mod + " sub-folder."}));
}

Message DemoPartlyTransferred(TransferVerb verb, const std::string& mod) {
    const std::string first = "Demo could not be completely " + PastOf(verb);
    if (verb == TransferVerb::Copy) {
        return Critical(Lines({first, "The partial copy has been deleted as a result."}));
    }
    return Critical(
        Lines({first, "The partial move has been deleted and the original demo remains in its",
               mod + " sub-folder."}));
}

Message MovedDemoNotDeleted(const std::string& mod) {
    return Critical(
        Lines({"Demo was copied to Remote Folder, but could not be deleted",
               "and so the original demo still remains in its " + mod + " sub-folder."}));
}

}  // namespace zentar::messages
