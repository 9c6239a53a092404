#include "screenshots/shot_conversion.h"

#include <memory>
#include <utility>

#include "core/file_copy.h"
#include "core/file_name.h"
#include "core/hourglass.h"
#include "core/questions.h"
#include "platform/file_system.h"
#include "platform/image_library.h"
#include "platform/locale.h"
#include "platform/pictures.h"
#include "screenshots/picture_file.h"
#include "screenshots/shot_messages.h"
#include "screenshots/shot_name.h"

namespace zentar {
namespace {

constexpr int kJpgQuality = 80;

// Nothing but an unfinished JPG ever stands under this name.
std::string Unfinished(const std::string& jpg) {
    return std::string(FolderOf(jpg)) + "zentar-jpg.tmp";
}

// A file that is held open, so that no other Zentar does the same meanwhile. Nobody holds one that
// a crash has left.
class Turn {
  public:
    Turn(FileSystem& files, std::string path)
        : files_(files),
          path_(std::move(path)),
          file_(files.OpenForWriting(path_, WriteMode::Truncate)) {}
    ~Turn() {
        if (file_.Ok()) {
            file_.Value().reset();
            // One that stays does no harm.
            IgnoreFailure(files_.Delete(path_));
        }
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

    bool IsOurs() const { return file_.Ok(); }
    bool Write(const std::string& bytes) { return IsOurs() && file_.Value()->Write(bytes).Ok(); }

  private:
    FileSystem& files_;
    std::string path_;
    Result<std::unique_ptr<WritableFile>> file_;
};

}  // namespace

void ShotConversion::mnuScreenshotMakeJPEGAndKill_Click() {
    if (list_.CurrentShot().Name.empty()) {
        return;
    }
    // No keeps the original, and converts all the same.
    KillOriginal_ = Confirmed(state_, platform_.windows, messages::ReallyKillOriginal());
    mnuScreenshotMakeJPEGOnly_Click();
}

void ShotConversion::mnuScreenshotMakeJPEGOnly_Click() {
    const Shot shot = list_.CurrentShot();
    const ActualShot actual = list_.picShotActual();
    if (shot.Name.empty()) {
        return;
    }
    const std::string jpg = std::string(FolderOf(shot.Path)) + JpgNameOf(shot.Name);
    const std::string game = state_.settings.Game;
    const bool overwrites = platform_.files.Info(jpg).Ok();
    if (overwrites && !(Confirmed(state_, platform_.windows, messages::ReallyOverwriteJpg()) &&
                        MayChangeFile(platform_, jpg, messages::OverwriteReadOnlyJpg()))) {
        return;
    }
    const bool kills = std::exchange(KillOriginal_, false);
    bool made = false;
    {
        const Hourglass hourglass(platform_.windows);
        const Turn turn(platform_.files, Unfinished(jpg) + ".lock");
        made = turn.IsOurs() && MakeJpg(shot, actual.picture, jpg) &&
               PutInPlace(jpg, overwrites, kills);
    }
    if (!made) {
        platform_.windows.Ask(messages::JpgNotMade(game));
        return;
    }
    const Result<FileInfo> jpgInfo = platform_.files.Info(jpg);
    if (kills && DeleteOriginal(shot, actual.file) == OriginalOutcome::NotDeletable) {
        platform_.windows.Ask(messages::OriginalNotKilled(game));
    }
    {
        const Hourglass hourglass(platform_.windows);
        list_.RefreshAndSelect(JpgNameOf(shot.Name));
    }
    platform_.windows.Ask(messages::JpgDone(actual.file.length,
                                            jpgInfo.Ok() ? jpgInfo.Value().length : 0,
                                            platform_.locale.ThousandsSeparator()));
}

// Makes it under a temporary name.
bool ShotConversion::MakeJpg(const Shot& shot, const BitmapPtr& picture, const std::string& jpg) {
    if (!picture) {
        return false;
    }
    MakeCurrentImage(shot, *picture);
    const bool saved = platform_.images.SaveAsJpg(kJpgQuality, Unfinished(jpg));
    if (!saved) {
        // What is left of it is of no use to anybody; usually nothing is.
        IgnoreFailure(platform_.files.Delete(Unfinished(jpg)));
    }
    return saved;
}

// When something goes for it, an older JPG or the original, the new one must be such that it can be
// seen and outlives a power cut.
bool ShotConversion::PutInPlace(const std::string& jpg, bool overwrites, bool kills) {
    FileSystem& files = platform_.files;
    const std::string unfinished = Unfinished(jpg);
    const Result<FileInfo> info = files.Info(unfinished);
    const bool whole = info.Ok() && info.Value().length > 0;
    const bool somethingGoes = overwrites || kills;
    const bool lasts = !somethingGoes || (ReadPicture(platform_, unfinished) != nullptr &&
                                          IsOnDisk(files, unfinished, false));
    // One that a game has written since the question is not replaced.
    if (whole && lasts &&
        (overwrites ? files.Replace(unfinished, jpg) : files.Rename(unfinished, jpg)).Ok()) {
        return true;
    }
    IgnoreFailure(files.Delete(unfinished));  // of no use to anybody
    return false;
}

// The library encodes what it loaded last, so the picture goes by way of a file. A program folder
// that takes none, or one that another Zentar uses for another folder's shot, leaves the shot's own
// file.
void ShotConversion::MakeCurrentImage(const Shot& shot, const Bitmap& picture) {
    const std::string scratch = state_.ProgramFolder + "tmp.bmp";
    const Result<std::string> bytes = platform_.pictures.EncodeBmp(picture);
    bool loaded = false;
    if (bytes.Ok()) {
        Turn turn(platform_.files, scratch);
        loaded = turn.Write(bytes.Value()) && platform_.images.Load(scratch) != nullptr;
    }
    if (!loaded) {
        // One that cannot be loaded either makes the encoding fail, which is told.
        platform_.images.Load(shot.Path);
    }
}

// Deletes the original unless it is no longer what was converted.
OriginalOutcome ShotConversion::DeleteOriginal(const Shot& shot, const FileInfo& converted) {
    const Result<FileInfo> now = platform_.files.Info(shot.Path);
    if (!now.Ok() && now.Error() == FileError::NotFound) {
        return OriginalOutcome::Gone;
    }
    if (!now.Ok() || now.Value().length != converted.length ||
        now.Value().lastWrite != converted.lastWrite) {
        return OriginalOutcome::NotDeletable;
    }
    if (!MayChangeFile(platform_, shot.Path, messages::DeleteReadOnlyShot())) {
        return OriginalOutcome::KeptByUser;
    }
    return platform_.files.Delete(shot.Path).Ok() ? OriginalOutcome::Gone
                                                  : OriginalOutcome::NotDeletable;
}

}  // namespace zentar
