#include "screenshots/wallpaper.h"

#include <vector>

#include "core/atomic_file.h"
#include "core/file_deletion.h"
#include "core/hourglass.h"
#include "core/questions.h"
#include "core/text.h"
#include "platform/file_system.h"
#include "platform/pictures.h"
#include "platform/shell.h"
#include "screenshots/shot_messages.h"
#include "screenshots/shot_name.h"

namespace zentar {

void Wallpaper::mnuScreenshotSetWallpaper_Click() {
    const BitmapPtr picture = list_.picShotActual().picture;
    const std::string name = WallpaperNameOf(list_.CurrentShot().Name);
    const std::string path = state_.WindowsFolder + name;
    if (list_.CurrentShot().Name.empty() ||
        (platform_.files.Info(path).Ok() &&
         !Confirmed(state_, platform_.windows, messages::ReallyOverwriteWallpaper()))) {
        return;
    }
    bool set = false;
    {
        const Hourglass hourglass(platform_.windows);
        platform_.windows.PumpPending();
        const Result<std::string> bytes =
            picture ? platform_.pictures.EncodeBmp(*picture) : FileError::Other;
        set = bytes.Ok() && Save(bytes.Value(), path) && platform_.shell.SetWallpaper(path).Ok();
    }
    list_.DecideDeleteAllWallpaper();
    if (set) {
        platform_.windows.Sound(Beep::Information);
    } else {
        platform_.windows.Ask(messages::WallpaperNotSet());
    }
}

bool Wallpaper::Save(const std::string& bytes, const std::string& path) {
    // Usually there is none.
    IgnoreFailure(platform_.files.ClearAttributes(path));
    const Status saved = ReplaceFileContents(platform_.files, path, bytes);
    return saved.Ok() || (saved.Error() == FileError::AccessDenied && SaveElevated(bytes, path));
}

// The user may not write to the Windows folder, but an administrator may.
bool Wallpaper::SaveElevated(const std::string& bytes, const std::string& path) {
    const std::string temporary =
        WithBackslash(platform_.shell.TemporaryFolder()) + "zentar-wallpaper.bmp";
    const bool saved = ReplaceFileContents(platform_.files, temporary, bytes).Ok() &&
                       platform_.shell.CopyElevated(temporary, path).Ok();
    // What cannot go lies where nothing is kept.
    IgnoreFailure(platform_.files.Delete(temporary));
    return saved;
}

void Wallpaper::mnuScreenshotDeleteAllWallpaper_Click() {
    if (!Confirmed(state_, platform_.windows, messages::ReallyDeleteAllWallpaper())) {
        return;
    }
    std::vector<std::string> refused;
    for (const std::string& name : FindWallpapers(platform_.files, state_.WindowsFolder)) {
        const std::string path = state_.WindowsFolder + name;
        const Status deleted = ForceDelete(platform_.files, path);
        if (!deleted.Ok() && deleted.Error() == FileError::AccessDenied) {
            refused.push_back(path);
        }
    }
    if (!refused.empty()) {
        // A user who declines keeps them, and the menu entry.
        IgnoreFailure(platform_.shell.DeleteElevated(refused));
    }
    list_.DecideDeleteAllWallpaper();
}

std::vector<std::string> FindWallpapers(FileSystem& files, const std::string& windowsFolder) {
    std::vector<std::string> found;
    const auto collect = [&found](const FolderEntry& entry) {
        if (!entry.info.isFolder && IsWallpaper(entry.name)) {
            found.push_back(entry.name);
        }
    };
    // Those that a folder does not name are out of reach in any case.
    IgnoreFailure(files.Enumerate(windowsFolder, collect));
    return found;
}

}  // namespace zentar
