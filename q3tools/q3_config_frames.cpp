#include "q3tools/q3_config_frames.h"

#include "core/file_name.h"
#include "core/hourglass.h"
#include "core/notepad.h"
#include "core/questions.h"
#include "platform/file_system.h"
#include "platform/window_services.h"
#include "q3tools/config_messages.h"
#include "q3tools/progress_backup.h"
#include "q3tools/q3_config_conversion.h"
#include "q3tools/q3_config_search.h"

namespace zentar {

Q3ConfigFrames::Q3ConfigFrames(ProgramState& state, const Platform& platform,
                               const Q3ConfigControls& controls)
    : state_(state), platform_(platform), controls_(controls) {
    controls_.cmdQ3Backup.SetEvents(GuardedClick(guard_, [this] { cmdQ3Backup_Click(); }));
    controls_.cmdQ3Restore.SetEvents(GuardedClick(guard_, [this] { cmdQ3Restore_Click(); }));
    controls_.cmdQ3ConfigEdit.SetEvents(GuardedClick(guard_, [this] { cmdQ3ConfigEdit_Click(); }));
}

Status Q3ConfigFrames::AtWork(const std::function<Status()>& work) {
    const Hourglass hourglass(platform_.windows);
    return work();
}

void Q3ConfigFrames::Report(const Status& done, const Message& failure) {
    if (done.Ok()) {
        platform_.windows.Sound(Beep::Information);
    } else {
        platform_.windows.Ask(failure);
    }
}

void Q3ConfigFrames::cmdQ3Backup_Click() {
    const std::optional<std::string> config = FindQ3Config(state_, platform_, "backup from");
    if (!config) {
        return;
    }
    const std::optional<std::string> backup = ChooseBackup(*config);
    if (!backup) {
        return;
    }
    Report(AtWork([&] {
               return BackUpProgress(platform_.files, *config, *backup,
                                     controls_.chkBackupAll.Checked());
           }),
           messages::ProgressNotBackedUp());
}

std::optional<std::string> Q3ConfigFrames::ChooseBackup(const std::string& config) {
    // Usually it is there; but not when Quake 3 was never the current game. Without it the dialog
    // opens elsewhere.
    IgnoreFailure(platform_.files.CreateFolder(state_.Q3BackupFolder));
    std::optional<std::string> path =
        platform_.windows.ChooseFileToSave(messages::ProgressToBackUp(state_.Q3BackupFolder));
    if (!path || path->empty()) {
        return std::nullopt;
    }
    if (platform_.files.IsSameFile(config, *path).ValueOr(false)) {
        platform_.windows.Ask(messages::BackupIsTheConfig());
        return std::nullopt;
    }
    if (!MayReplaceFile(state_, platform_, *path, messages::ReallyOverwriteBackup(StemOf(*path)),
                        messages::OverwriteReadOnlyBackup())) {
        return std::nullopt;
    }
    return path;
}

void Q3ConfigFrames::cmdQ3Restore_Click() {
    const std::optional<std::string> config = FindQ3Config(state_, platform_, "restore to");
    if (!config || !Confirmed(state_, platform_.windows, messages::ReallyRestoreProgress()) ||
        !MayChangeFile(platform_, *config, messages::RestoreToReadOnlyConfig())) {
        return;
    }
    const std::optional<std::string> backup =
        platform_.windows.ChooseFileToOpen(messages::ProgressToRestore(state_.Q3BackupFolder));
    if (!backup || backup->empty()) {
        return;
    }
    // Where that is refused, so are the lines, and their message says why.
    IgnoreFailure(platform_.files.ClearAttributes(*config));
    Report(AtWork([&] {
               return RestoreProgress(platform_.files, *backup, *config,
                                      controls_.chkBackupAll.Checked());
           }),
           messages::ProgressNotRestored());
}

void Q3ConfigFrames::cmdQ3ConfigEdit_Click() {
    const std::optional<std::string> config = FindQ3Config(state_, platform_, "edit");
    if (!config) {
        return;
    }
    const Result<bool> converted = IsConfigConverted(platform_.files, *config);
    if (!converted.Ok() ||
        (!converted.Value() &&
         !AtWork([&] { return ConvertConfig(platform_.files, *config); }).Ok())) {
        platform_.windows.Ask(messages::ConfigNotConverted());
        return;
    }
    const Status started = OpenInNotepad(state_, platform_.shell, *config);
    platform_.windows.Sound(started.Ok() ? Beep::Information : Beep::Exclamation);
}

}  // namespace zentar
