// What the commands on Quake 3's configuration say to the user.
#pragma once

#include <string>
#include <string_view>

#include "platform/window_services.h"

namespace zentar::messages {

// What was to be done with the configuration that is not there: "backup from", "edit".
Message NoQ3Config(std::string_view purpose);

// `folder` is shown at first.
FileQuestion ProgressToBackUp(const std::string& folder);
FileQuestion ProgressToRestore(const std::string& folder);

// `name` is that of the file, without folder and extension.
Message ReallyOverwriteBackup(std::string_view name);
Message OverwriteReadOnlyBackup();
Message BackupIsTheConfig();
Message ProgressNotBackedUp();

Message ReallyRestoreProgress();
Message RestoreToReadOnlyConfig();
Message ProgressNotRestored();

Message ConfigNotConverted();

}  // namespace zentar::messages
