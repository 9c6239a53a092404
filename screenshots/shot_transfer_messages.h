// The messages about copying and moving screenshots, whole.
#pragma once

#include <string>

#include "core/transfer_messages.h"

namespace zentar::messages {

Message ReallyMoveShot(const std::string& remoteFolder);
Message ShotExistsInRemoteFolder();
Message OverwriteReadOnlyShot();
// `game` names the game in whose folders the original still is.
Message ShotNotTransferred(TransferVerb verb, const std::string& game);
Message ShotPartlyTransferred(TransferVerb verb, const std::string& game);
// The copy is there, and so is the original, which could not be deleted.
Message MovedShotNotDeleted(const std::string& game);

}  // namespace zentar::messages
