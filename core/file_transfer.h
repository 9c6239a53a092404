// Carrying a user's file to another folder: whatever fails, the file exists whole in one of the
// two, and one that stands under its name in the other folder is replaced only by a whole copy.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/file_copy.h"
#include "core/transfer_messages.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/window_services.h"

namespace zentar {

struct FileTransfer {
    std::string source;
    std::string target;
    bool overwrites = false;      // the user agreed that the target is replaced
    bool leavesOriginal = false;  // of a moved file that had to be copied
    FileInfo copied{};            // what the original was when it was copied
};

bool IsOnOneDrive(const FileTransfer& transfer);

// Whether `length` more bytes fit where the target is to be; tells the user when they do not. A
// drive that does not say takes the copy, or refuses it. `thing` is what is carried, as the message
// calls it: "demo".
[[nodiscard]] bool HasRoom(const Platform& platform, TransferVerb verb,
                           const FileTransfer& transfer, std::uint64_t length,
                           std::string_view thing);

CopyOutcome CopyToTarget(FileSystem& files, FileTransfer& transfer);
// Renames where that suffices, and else copies; the original is then still there.
CopyOutcome MoveToTarget(FileSystem& files, FileTransfer& transfer);

enum class OriginalOutcome : std::uint8_t {
    Gone,         // or where it was to go
    KeptByUser,   // who was asked since it is read-only
    NotDeletable  // or no longer what was copied
};

// Deletes the original of a file that was moved by copying it.
OriginalOutcome DeleteTransferred(const Platform& platform, const FileTransfer& transfer,
                                  const Message& readOnlyQuestion);
// The same; tells the user when it is not deletable. True when it is gone.
bool DeleteTransferredOrTell(const Platform& platform, const FileTransfer& transfer,
                             const Message& readOnlyQuestion, const Message& notDeletable);

}  // namespace zentar
