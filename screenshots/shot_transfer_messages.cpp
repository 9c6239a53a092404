#include "screenshots/shot_transfer_messages.h"

#include "core/message_kinds.h"
#include "core/text.h"

namespace zentar::messages {
namespace {

constexpr std::string_view kImage = "image";

}  // namespace

Message ReallyMoveShot(const std::string& remoteFolder) {
    return Confirmation(Lines({"Really move this image to this folder?", remoteFolder}));
}

Message ShotExistsInRemoteFolder() { return ExistsInRemoteFolder(kImage); }

Message OverwriteReadOnlyShot() { return OverwriteReadOnly(kImage); }

Message ShotNotTransferred(TransferVerb verb, const std::string& game) {
    return NotTransferred(verb, kImage, game);
}

Message ShotPartlyTransferred(TransferVerb verb, const std::string& game) {
    return PartlyTransferred(
        verb,
        "Image could not be completely " + PastOf(verb) + " to Remote Folder for some reason.",
        kImage, game);
}

Message MovedShotNotDeleted(const std::string& game) { return MovedNotDeleted(kImage, game); }

}  // namespace zentar::messages
