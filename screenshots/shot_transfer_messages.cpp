#include "screenshots/shot_transfer_messages.h"

#include "core/message_kinds.h"
#include "core/text.h"

namespace zentar::messages {

Message ReallyMoveShot(const std::string& remoteFolder) {
    return Confirmation(Lines({"Really move this image to this folder?", remoteFolder}));
}

Message ShotExistsInRemoteFolder() {
    return Confirmation("Image already exists in Remote Folder -- Overwrite?");
}

Message OverwriteReadOnlyShot() {
    return FailureWithQuestion(
        Lines({"Can't overwrite existing image due to it being read-only.",
               "Would you like me to remove this setting to force the overwrite?"}));
}

Message ShotNotTransferred(TransferVerb verb, const std::string& game) {
    const std::string first =
        "Image could not be " + PastOf(verb) + " to Remote Folder for some reason.";
    const std::string second = "This is most probably due to a lack of available disk space";
    if (verb == TransferVerb::Copy) {
        return CriticalFailure(Lines({first, second + "."}));
    }
    return CriticalFailure(
        Lines({first, second + ",",
               "and the original image still remains in its " + game + " sub-folder."}));
}

Message ShotPartlyTransferred(TransferVerb verb, const std::string& game) {
    const std::string first =
        "Image could not be completely " + PastOf(verb) + " to Remote Folder for some reason.";
    if (verb == TransferVerb::Copy) {
        return CriticalFailure(Lines({first, "The partial copy has been deleted as a result."}));
    }
    return CriticalFailure(
        Lines({first, "The partial move has been deleted and the original image remains in its",
               game + " sub-folder."}));
}

Message MovedShotNotDeleted(const std::string& game) {
    return CriticalFailure(
        Lines({"Image was copied to Remote Folder, but could not be deleted",
               "and so the original image still remains in its " + game + " sub-folder."}));
}

}  // namespace zentar::messages
