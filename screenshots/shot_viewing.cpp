#include "screenshots/shot_viewing.h"

#include "core/atomic_file.h"
#include "core/text.h"
#include "platform/file_system.h"
#include "platform/image_library.h"
#include "platform/locale.h"
#include "platform/pictures.h"
#include "screenshots/busy_image.h"
#include "screenshots/picture_file.h"
#include "screenshots/shot_name.h"

namespace zentar {
namespace {

constexpr Size kPreviewSize = {320, 240};

std::string DimsText(Size size) {
    return "Dims:\t" + std::to_string(size.width) + " x " + std::to_string(size.height) + " pixels";
}

}  // namespace

void ShotViewing::ClearShotView() {
    controls_.imgShotView.SetEnabled(false);
    controls_.imgShotView.SetImage(nullptr);
    actual_ = {};
    loading_ = false;
}

// Messages are handled while a shot is being loaded. A command that the user gives then must not
// find the picture of another shot under this one's name.
void ShotViewing::BeginLoading() {
    loading_ = true;
    actual_ = {};
    controls_.imgShotView.SetImage(nullptr);
    EnablePictureCommands(false, false);
}

void ShotViewing::EnablePictureCommands(bool convert, bool show) {
    controls_.mnuScreenshotMakeJPEGOnly.SetEnabled(convert);
    controls_.mnuScreenshotMakeJPEGAndKill.SetEnabled(convert);
    controls_.mnuScreenshotSetWallpaper.SetEnabled(show);
    controls_.mnuScreenshotShowFull.SetEnabled(show);
}

// The file is for those who look for it there; the picture comes from memory, since a protected
// Windows folder takes none.
void ShotViewing::ShowBusyImage() {
    const std::string path = state_.WindowsFolder + "zentar-tmp.gif";
    IgnoreFailure(platform_.files.ClearAttributes(path));
    IgnoreFailure(ReplaceFileContents(platform_.files, path, BusyImage(), Durability::Cached));
    if (!busyImage_) {
        busyImage_ = platform_.pictures.Decode(BusyImage());
    }
    controls_.imgShotView.SetImage(busyImage_);
}

void ShotViewing::ShowReal(Shot& shot) {
    loading_ = false;
    controls_.optModePreview.SetCaptionColour(CaptionColour::Normal);
    Decode(shot);
    controls_.imgShotView.SetImage(actual_.picture);
    EnablePictureCommands(shot.ShotExtension != ".jpg", true);
    FillFileProperties(shot);
    shot.ShotDimsText = DimsText(actual_.picture ? actual_.picture->Dimensions() : Size{});
    MakePreview(shot);
    controls_.imgShotView.SetEnabled(true);
    controls_.imgShotView.SetPointer(BoxPointer::Custom);
}

void ShotViewing::ShowPreview(Shot& shot) {
    loading_ = false;
    controls_.optModePreview.SetCaptionColour(CaptionColour::Red);
    if (const BitmapPtr preview = ReadPicture(platform_, PreviewNameOf(shot.Path))) {
        controls_.imgShotView.SetImage(preview);
    }
    EnablePictureCommands(false, false);
    FillFileProperties(shot);
    controls_.imgShotView.SetEnabled(true);
    controls_.imgShotView.SetPointer(BoxPointer::Default);
}

// What cannot be decoded leaves no picture.
void ShotViewing::Decode(const Shot& shot) {
    const Result<FileInfo> file = platform_.files.Info(shot.Path);
    if (file.Ok()) {
        actual_.file = file.Value();
        actual_.picture = shot.ShotExtension == ".jpg" ? ReadPicture(platform_, shot.Path)
                                                       : platform_.images.Load(shot.Path);
    }
}

void ShotViewing::FillFileProperties(Shot& shot) {
    const Result<FileInfo> file = platform_.files.Info(shot.Path);
    if (file.Ok()) {
        shot.ShotSizeText =
            "File size:\t" +
            GroupDigits(file.Value().length, platform_.locale.ThousandsSeparator()) + " bytes";
        shot.ShotDateText = "Taken:\t" + platform_.locale.GeneralDate(file.Value().lastWrite);
    }
}

// One that cannot be written leaves the one that was there, or none.
void ShotViewing::MakePreview(const Shot& shot) {
    const BitmapPtr picShotPreview =
        actual_.picture ? platform_.pictures.Stretch(*actual_.picture, kPreviewSize) : nullptr;
    if (!picShotPreview) {
        return;
    }
    const Result<std::string> bytes = platform_.pictures.EncodeBmp(*picShotPreview);
    if (bytes.Ok()) {
        const std::string path = PreviewNameOf(shot.Path);
        IgnoreFailure(platform_.files.ClearAttributes(path));
        IgnoreFailure(
            ReplaceFileContents(platform_.files, path, bytes.Value(), Durability::Cached));
    }
}

}  // namespace zentar
