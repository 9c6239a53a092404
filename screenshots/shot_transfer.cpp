#include "screenshots/shot_transfer.h"

#include "core/file_name.h"
#include "core/hourglass.h"
#include "core/messages.h"
#include "core/questions.h"
#include "core/remote_folder.h"
#include "screenshots/shot_messages.h"
#include "screenshots/shot_transfer_messages.h"

namespace zentar {

void ShotTransfer::TransferShotToRemote(TransferVerb verb) {
    const Shot shot = list_.CurrentShot();
    if (shot.Name.empty()) {
        return;
    }
    CheckRemoteFolder(state_, platform_);
    if (!state_.RemoteFolderOK) {
        return;
    }
    FileTransfer file{.source = shot.Path, .target = state_.settings.Remote + shot.Name};
    if (!MayBegin(verb, file)) {
        return;
    }
    const std::string game = state_.settings.Game;
    const CopyOutcome outcome = Carry(verb, file);
    if (outcome == CopyOutcome::Partial) {
        platform_.windows.Ask(messages::ShotPartlyTransferred(verb, game));
        return;
    }
    if (outcome != CopyOutcome::Whole) {
        platform_.windows.Ask(messages::ShotNotTransferred(verb, game));
        return;
    }
    // On another drive the move is a copy, which leaves the original.
    const bool deletes = file.leavesOriginal && IsOnOneDrive(file);
    const bool done =
        !deletes || DeleteTransferredOrTell(platform_, file, messages::DeleteReadOnlyShot(),
                                            messages::MovedShotNotDeleted(game));
    if (verb == TransferVerb::Move) {
        list_.RefreshScreenshotList();
    }
    if (done) {
        platform_.windows.Sound(Beep::Information);
    }
}

// Asks what there is to ask.
bool ShotTransfer::MayBegin(TransferVerb verb, FileTransfer& file) {
    const Result<FileInfo> source = platform_.files.Info(file.source);
    if (!source.Ok()) {
        platform_.windows.Ask(messages::IsGone("screenshot"));
        list_.RefreshScreenshotList();
        return false;
    }
    if (!HasRoom(platform_, verb, file, source.Value().length, "shot")) {
        return false;
    }
    if (verb == TransferVerb::Move &&
        !Confirmed(state_, platform_.windows, messages::ReallyMoveShot(state_.settings.Remote))) {
        return false;
    }
    file.overwrites = platform_.files.Info(file.target).Ok();
    return !file.overwrites ||
           (platform_.windows.Ask(messages::ShotExistsInRemoteFolder()) == Answer::Yes &&
            MayChangeFile(platform_, file.target, messages::OverwriteReadOnlyShot()));
}

CopyOutcome ShotTransfer::Carry(TransferVerb verb, FileTransfer& file) {
    const Hourglass hourglass(platform_.windows);
    platform_.windows.PumpPending();
    return verb == TransferVerb::Move ? MoveToTarget(platform_.files, file)
                                      : CopyToTarget(platform_.files, file);
}

}  // namespace zentar
