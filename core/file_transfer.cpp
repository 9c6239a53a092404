#include "core/file_transfer.h"

#include "core/file_name.h"
#include "core/questions.h"
#include "platform/locale.h"

namespace zentar {
namespace {

// What the free space is asked for: the drive, or a folder of the network, which has none.
std::string SpaceRoot(std::string_view folder) {
    return folder.starts_with(R"(\\)") ? std::string(folder) : DriveOf(folder) + "\\";
}

// A game may have written another file of that name since.
bool IsStillTheCopied(FileSystem& files, const FileTransfer& transfer) {
    const Result<FileInfo> now = files.Info(transfer.source);
    return now.Ok() && now.Value().length == transfer.copied.length &&
           now.Value().lastWrite == transfer.copied.lastWrite;
}

}  // namespace

bool IsOnOneDrive(const FileTransfer& transfer) {
    return DriveOf(transfer.source) == DriveOf(transfer.target);
}

bool HasRoom(const Platform& platform, TransferVerb verb, const FileTransfer& transfer,
             std::uint64_t length, std::string_view thing) {
    if (verb == TransferVerb::Move && IsOnOneDrive(transfer)) {
        return true;
    }
    const Result<std::uint64_t> space =
        platform.files.FreeSpace(SpaceRoot(FolderOf(transfer.target)));
    if (!space.Ok() || space.Value() >= length) {
        return true;
    }
    platform.windows.Ask(
        messages::NoSpaceFor(verb, {.thing = thing,
                                    .drive = transfer.target.substr(0, 1),
                                    .length = length,
                                    .space = space.Value(),
                                    .separator = platform.locale.ThousandsSeparator()}));
    return false;
}

CopyOutcome CopyToTarget(FileSystem& files, FileTransfer& transfer) {
    const Result<FileInfo> source = files.Info(transfer.source);
    if (!source.Ok()) {
        return CopyOutcome::Missing;
    }
    transfer.copied = source.Value();
    return CopyFileWhole(files, transfer.source, transfer.target, transfer.copied.length,
                         transfer.overwrites ? Existing::Replace : Existing::Keep);
}

// On the way to the same drive a file only gets another path; but nothing is renamed over a file,
// and a drive may have folders of other drives in it.
CopyOutcome MoveToTarget(FileSystem& files, FileTransfer& transfer) {
    if (IsOnOneDrive(transfer) && !transfer.overwrites &&
        files.Rename(transfer.source, transfer.target).Ok()) {
        return CopyOutcome::Whole;
    }
    transfer.leavesOriginal = true;
    return CopyToTarget(files, transfer);
}

OriginalOutcome DeleteTransferred(const Platform& platform, const FileTransfer& transfer,
                                  const Message& readOnlyQuestion) {
    FileSystem& files = platform.files;
    // The target's folder may be the file's own under another name.
    const Result<bool> same = files.IsSameFile(transfer.source, transfer.target);
    if ((same.Ok() && same.Value()) || !files.Info(transfer.source).Ok()) {
        return OriginalOutcome::Gone;
    }
    if (same.Ok() && !MayChangeFile(platform, transfer.source, readOnlyQuestion)) {
        return OriginalOutcome::KeptByUser;
    }
    if (!same.Ok() || !IsStillTheCopied(files, transfer) ||
        !files.DeleteOriginal(transfer.source, transfer.target).Ok()) {
        return OriginalOutcome::NotDeletable;
    }
    return OriginalOutcome::Gone;
}

bool DeleteTransferredOrTell(const Platform& platform, const FileTransfer& transfer,
                             const Message& readOnlyQuestion, const Message& notDeletable) {
    const OriginalOutcome outcome = DeleteTransferred(platform, transfer, readOnlyQuestion);
    if (outcome == OriginalOutcome::NotDeletable) {
        platform.windows.Ask(notDeletable);
    }
    return outcome == OriginalOutcome::Gone;
}

}  // namespace zentar
