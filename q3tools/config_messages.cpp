#include "q3tools/config_messages.h"

#include "core/message_kinds.h"
#include "core/text.h"

namespace zentar::messages {
namespace {

FileKind Backups() { return {"Quake 3 single-player backups (*.cfg)", "*.cfg"}; }

}  // namespace

Message NoQ3Config(std::string_view purpose) {
    return Failure(Lines({"There is no \"q3config.cfg\" file to " + std::string(purpose) + "!", "",
                          "For some strange reason, this file doesn't currently exist.",
                          "You should start Quake 3 so that it can create this file,",
                          "and then come back and select this option again."}));
}

FileQuestion ProgressToBackUp(const std::string& folder) {
    return {.title = "Backup a Quake 3 single-player game",
            .folder = folder,
            .name = "",
            .kinds = {Backups()}};
}

FileQuestion ProgressToRestore(const std::string& folder) {
    return {.title = "Restore a backed-up Quake 3 single-player game",
            .folder = folder,
            .name = "",
            .kinds = {Backups()}};
}

Message ReallyOverwriteBackup(std::string_view name) {
    return Confirmation("Really overwrite the existing \"" + std::string(name) + "\" backup file?");
}

Message OverwriteReadOnlyBackup() {
    return FailureWithQuestion(
        Lines({"Couldn't overwrite the backup due to it being read-only.",
               "Would you like me to remove this setting to force the overwrite?"}));
}

Message BackupIsTheConfig() {
    return Failure(Lines({"You cannot backup \"q3config.cfg\" over itself!", "",
                          "Please choose another name and try again."}));
}

Message ProgressNotBackedUp() {
    return Failure(Lines({"The single-player game couldn't be backed-up.", "",
                          "A file may be in use, or the drive may be full."}));
}

Message ReallyRestoreProgress() {
    return Confirmation(Lines({"Really restore a single-player game to Quake 3?",
                               "The current single-player game will be destroyed!"}));
}

Message RestoreToReadOnlyConfig() {
    return FailureWithQuestion(
        Lines({"Can't restore to \"q3config.cfg\" due to it being read-only.",
               "Would you like me to remove this setting to force the restoration?"}));
}

Message ProgressNotRestored() {
    return Failure(Lines({"The single-player game couldn't be restored.", "",
                          "A file may be in use or be no backup, or the drive may be full."}));
}

Message ConfigNotConverted() {
    return Failure(Lines({"\"q3config.cfg\" couldn't be prepared for editing.", "",
                          "The file may be in use, or its drive may be full."}));
}

}  // namespace zentar::messages
