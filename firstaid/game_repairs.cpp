#include "firstaid/game_repairs.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "core/file_copy.h"
#include "core/file_deletion.h"
#include "core/file_reading.h"
#include "core/program_info.h"
#include "core/text.h"

namespace zentar {
namespace {

constexpr const char* kNote = "Strays Info.txt";

std::string AutoexecText(const std::string& game) {
    const std::string version(kVersionLine);
    return Lines({"// " + game + " AutoExec Config by " + version, "//",
                  "// Enter all your custom " + game + " settings into the lines below.",
                  "// Blank lines are okay if you want to space out your settings.",
                  "// Any line starting with \"//\" is a comment and ignored by " + game + ".",
                  "// This config can't be bigger than 8 K or " + game + " will complain.",
                  "// Make sure the last line is blank or " + game + " will complain.", "", ""});
}

std::string StraysText() {
    return Lines({std::string(kVersionLine) + " Strays Folder", WebSiteLine(),
                  "-------------------------------",
                  "The files found here were moved here from Quake 2's \"players\" folder.",
                  "This was done to prevent the game crashing or reporting an error when",
                  "changing your player at the \"Multiplayer\\Player Setup\" menu.  (There",
                  "should ONLY be folders inside your \"players\" folder, and not files).",
                  "======================================================================", ""});
}

// "skin.pcx" -> "skin (2).pcx".
std::string Numbered(const std::string& name, int number) {
    const std::size_t dot = std::min(name.rfind('.'), name.size());
    std::string numbered = name.substr(0, dot);
    numbered.append(" (").append(std::to_string(number)).append(")").append(name, dot);
    return numbered;
}

// What cannot go after its copy was made stays, and the copy goes.
Status DeleteOrTakeBack(FileSystem& files, const FolderEntry& stray, const std::string& from,
                        const std::string& to) {
    Status deleted = files.DeleteOriginal(from, to);
    if (!deleted.Ok() && deleted.Error() == FileError::AccessDenied && stray.info.readOnly) {
        // Which keeps it from deletion, but not from being moved.
        IgnoreFailure(files.ClearAttributes(from));
        deleted = files.DeleteOriginal(from, to);
    }
    if (!deleted.Ok() && FileExists(files, from)) {
        IgnoreFailure(ForceDelete(files, to));
    }
    return deleted;
}

// Across drives, to which a linked folder may lead, a file is copied and checked before it goes.
// One that is in use or protected stays where it is, rather than twice.
Status MoveFile(FileSystem& files, const FolderEntry& stray, const std::string& from,
                const std::string& to) {
    Status moved = files.Rename(from, to);
    if (moved.Ok() || moved.Error() != FileError::Other) {
        return moved;
    }
    switch (CopyFileWhole(files, from, to, stray.info.length, Existing::Keep)) {
        case CopyOutcome::Whole:
            return DeleteOrTakeBack(files, stray, from, to);
        case CopyOutcome::Exists:
            return FileError::AlreadyExists;
        default:
            return FileError::Other;
    }
}

void MoveStray(FileSystem& files, const FolderEntry& stray, const std::string& fromFolder,
               const std::string& toFolder) {
    constexpr int kMostNumbers = 1000;
    // The note's name is its own, also where it could not be written.
    const bool isNote = LowerAscii(stray.name) == LowerAscii(kNote);
    std::string name = isNote ? Numbered(stray.name, 2) : stray.name;
    for (int number = isNote ? 3 : 2; number < kMostNumbers; ++number) {
        const Status moved = MoveFile(files, stray, fromFolder + stray.name, toFolder + name);
        if (moved.Ok() || moved.Error() != FileError::AlreadyExists) {
            return;
        }
        name = Numbered(stray.name, number);
    }
}

// What could not be written whole is taken away again: it is the program's own.
Status WriteWhole(FileSystem& files, const std::string& path, WriteMode mode,
                  std::string_view text) {
    Result<std::unique_ptr<WritableFile>> file = files.OpenForWriting(path, mode);
    if (!file.Ok()) {
        return file.Error();
    }
    Status written = file.Value()->Write(text);
    if (written.Ok()) {
        written = file.Value()->Close();
    }
    if (!written.Ok()) {
        file.Value().reset();
        IgnoreFailure(files.Delete(path));
    }
    return written;
}

std::vector<FolderEntry> EntriesOf(FileSystem& files, const std::string& folder) {
    std::vector<FolderEntry> entries;
    // Without the folder there is nothing to repair.
    IgnoreFailure(files.Enumerate(
        folder, [&entries](const FolderEntry& entry) { entries.push_back(entry); }));
    return entries;
}

}  // namespace

Status CreateAutoexec(FileSystem& files, const std::string& path, const std::string& game) {
    return WriteWhole(files, path, WriteMode::CreateNew, AutoexecText(game));
}

void MoveStrays(FileSystem& files, const std::string& gameFolder,
                const std::string& playersFolder) {
    const std::string strays = gameFolder + "Zentar Strays\\";
    // Usually it is there already; where it cannot be made, nothing can be moved.
    IgnoreFailure(files.CreateFolder(strays));
    // The files are worth more than the note. It has no temporary file, whose name a stray may
    // have.
    IgnoreFailure(WriteWhole(files, strays + kNote, WriteMode::Truncate, StraysText()));
    for (const FolderEntry& entry : EntriesOf(files, playersFolder)) {
        if (!entry.info.isFolder) {
            MoveStray(files, entry, playersFolder, strays);
        }
    }
}

void CreateScreenshotFolders(FileSystem& files, const std::string& gameFolder) {
    for (const FolderEntry& entry : EntriesOf(files, gameFolder)) {
        const std::string name = LowerCase(entry.name);
        if (entry.info.isFolder && name != "." && name != ".." && name != "docs" &&
            name != "zentar strays") {
            // Usually it is there.
            IgnoreFailure(files.CreateFolder(gameFolder + entry.name + "\\scrnshot"));
        }
    }
}

}  // namespace zentar
