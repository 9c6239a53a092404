#include "screenshots/shot_file_operations.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "core/file_deletion.h"
#include "core/file_name.h"
#include "core/hourglass.h"
#include "core/messages.h"
#include "core/neighbour.h"
#include "core/questions.h"
#include "core/text.h"
#include "platform/file_system.h"
#include "screenshots/shot_messages.h"
#include "screenshots/shot_name.h"

namespace zentar {
void ShotFileOperations::mnuScreenshotDelete_Click() {
    const Shot shot = list_.CurrentShot();
    if (shot.Name.empty() || !Confirmed(state_, platform_.windows, messages::ReallyDeleteShot())) {
        return;
    }
    const std::string neighbour = NeighbourOf(shot.Name, list_.ListedShots());
    if (!MayChangeFile(platform_, shot.Path, messages::DeleteReadOnlyShot())) {
        return;
    }
    // A shot that stays, since a program holds it, is seen in the list.
    const Status deleted = ForceDelete(platform_.files, shot.Path);
    if (deleted.Ok() || deleted.Error() == FileError::NotFound) {
        DeletePreviewOf(shot.Path);
    }
    if (state_.settings.AutoNextShot == 1 && !neighbour.empty()) {
        list_.RefreshAndSelect(neighbour);
    } else {
        list_.RefreshScreenshotList();
    }
}

// One that cannot go is of no harm: it shows what the shot was.
void ShotFileOperations::DeletePreviewOf(const std::string& shotPath) {
    IgnoreFailure(platform_.files.Delete(PreviewNameOf(shotPath)));
}

void ShotFileOperations::mnuScreenshotDeletePreview_Click() {
    const Shot shot = list_.CurrentShot();
    if (shot.Name.empty() || !shot.HasPreview ||
        !Confirmed(state_, platform_.windows, messages::ReallyDeletePreview())) {
        return;
    }
    const std::string preview = PreviewNameOf(shot.Path);
    if (!MayChangeFile(platform_, preview, messages::DeleteReadOnlyPreview())) {
        return;
    }
    // One that stays is seen by its marker.
    IgnoreFailure(ForceDelete(platform_.files, preview));
    list_.RefreshAndReselect(shot.Name);
}

void ShotFileOperations::DeleteAll(const Sweep& sweep) {
    if (!Confirmed(state_, platform_.windows, sweep.question)) {
        return;
    }
    const std::string folder = list_.ListedFolder();
    std::vector<FolderEntry> found;
    const auto collect = [&](const FolderEntry& entry) {
        if (!entry.info.isFolder && sweep.isMeant(entry.name)) {
            found.push_back(entry);
        }
    };
    // Without the folder there is nothing to delete.
    IgnoreFailure(platform_.files.Enumerate(folder, collect));
    const auto isReadOnly = [](const FolderEntry& entry) { return entry.info.readOnly; };
    // Of those that are read-only it asks once: nobody wants to answer a thousand times.
    if (std::any_of(found.begin(), found.end(), isReadOnly) &&
        platform_.windows.Ask(sweep.readOnlyQuestion) != Answer::Yes) {
        std::erase_if(found, isReadOnly);
    }
    {
        const Hourglass hourglass(platform_.windows);
        for (const FolderEntry& entry : found) {
            const std::string path = folder + entry.name;
            // What stays, since a program holds it, is seen in the list.
            if (ForceDelete(platform_.files, path).Ok() && sweep.afterwards) {
                sweep.afterwards(path);
            }
        }
    }
    list_.RefreshScreenshotList();
}

void ShotFileOperations::mnuScreenshotDeleteAll_Click() {
    DeleteAll({.question = messages::ReallyDeleteAllShots(),
               .isMeant = [](std::string_view name) { return IsShot(name) || IsPreview(name); },
               .readOnlyQuestion = messages::DeleteReadOnlyShot(),
               .afterwards = {}});
}

void ShotFileOperations::mnuScreenshotDeleteAllPreview_Click() {
    DeleteAll({.question = messages::ReallyDeleteAllPreviews(),
               .isMeant = IsPreview,
               .readOnlyQuestion = messages::DeleteReadOnlyPreview(),
               .afterwards = {}});
}

void ShotFileOperations::mnuScreenshotDeleteAllTGA_Click() {
    DeleteAll({.question = messages::ReallyDeleteAllTga(),
               .isMeant = [](std::string_view name) { return ShotExtension(name) == ".tga"; },
               .readOnlyQuestion = messages::DeleteReadOnlyShot(),
               .afterwards = [this](const std::string& path) { DeletePreviewOf(path); }});
}

void ShotFileOperations::mnuScreenshotDeleteAllPCX_Click() {
    DeleteAll({.question = messages::ReallyDeleteAllPcx(),
               .isMeant = [](std::string_view name) { return ShotExtension(name) == ".pcx"; },
               .readOnlyQuestion = messages::DeleteReadOnlyShot(),
               .afterwards = [this](const std::string& path) { DeletePreviewOf(path); }});
}

void ShotFileOperations::mnuScreenshotDeleteAllJPG_Click() {
    DeleteAll({.question = messages::ReallyDeleteAllJpg(),
               .isMeant = [](std::string_view name) { return ShotExtension(name) == ".jpg"; },
               .readOnlyQuestion = messages::DeleteReadOnlyShot(),
               .afterwards = [this](const std::string& path) { DeletePreviewOfJpg(path); }});
}

// The preview of a PCX shot lives on. That of a TGA shot does not, and is made anew when the shot
// is viewed.
void ShotFileOperations::DeletePreviewOfJpg(const std::string& jpgPath) {
    const Result<FileInfo> pcx = platform_.files.Info(std::string(BaseNameOf(jpgPath)) + ".pcx");
    if (!pcx.Ok() || pcx.Value().length == 0) {
        DeletePreviewOf(jpgPath);
    }
}

void ShotFileOperations::mnuScreenshotRename_Click() {
    const Shot shot = list_.CurrentShot();
    if (shot.Name.empty()) {
        return;
    }
    const std::string base(BaseNameOf(shot.Name));
    const std::vector<std::string> listed = list_.ListedShots();
    const std::string name =
        platform_.windows.AskText(messages::EnterNewShotName(base)).value_or("");
    if (name.empty() || name == base) {
        return;
    }
    if (name.size() > kLongestFileName) {
        platform_.windows.Ask(messages::NotRenamed("screenshot", FileError::BadName));
    } else if (ValidateFileName(platform_.windows, name)) {
        Rename(shot, name, listed);
    }
}

void ShotFileOperations::Rename(const Shot& shot, const std::string& name,
                                const std::vector<std::string>& listed) {
    const std::string folder(FolderOf(shot.Path));
    const std::string renamed = name + std::string(shot.Name.substr(BaseNameOf(shot.Name).size()));
    const Status done = platform_.files.Rename(shot.Path, folder + renamed);
    if (!done.Ok()) {
        platform_.windows.Ask(messages::NotRenamed("screenshot", done.Error()));
        if (done.Error() == FileError::NotFound) {
            list_.RefreshScreenshotList();  // it is out of date
        }
        return;
    }
    RenamePreview(PreviewNameOf(shot.Path), folder + PreviewNameOf(renamed), listed);
    list_.RefreshAndReselect(renamed);
}

// One of the new name showed a shot that has gone, or that shares its preview from now on. A
// preview that cannot be renamed is made anew when the shot is viewed.
void ShotFileOperations::RenamePreview(const std::string& from, const std::string& to,
                                       const std::vector<std::string>& listed) {
    FileSystem& files = platform_.files;
    if (files.Rename(from, to).Ok()) {
        return;
    }
    const Result<FileInfo> info = files.Info(from);
    if (info.Ok()) {
        IgnoreFailure(files.Replace(from, to));
        return;
    }
    const std::string name = LowerCase(FileNameOf(to));
    const auto isOf = [&name](const std::string& shot) {
        return LowerCase(PreviewNameOf(shot)) == name;
    };
    // Without one of its own the shot must not be shown by that of one that has gone.
    if (info.Error() == FileError::NotFound && std::none_of(listed.begin(), listed.end(), isOf)) {
        IgnoreFailure(files.Delete(to));
    }
}

}  // namespace zentar
