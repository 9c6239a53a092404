#include "screenshots/shot_messages.h"

#include "core/message_kinds.h"
#include "core/text.h"

namespace zentar::messages {
namespace {

// 1234 as "1,234"; what got larger has saved less than nothing.
std::string SavedBytes(std::uint64_t original, std::uint64_t jpg, std::string_view separator) {
    return original >= jpg ? GroupDigits(original - jpg, separator)
                           : "-" + GroupDigits(jpg - original, separator);
}

}  // namespace

Message ImageLibraryMissing() {
    return Failure(Lines({"Screenshots cannot currently be viewed.", "",
                          "Zentar is missing a required file that is needed for",
                          "screenshot viewing.  This file would have been",
                          "present when you first installed Zentar, so you'll",
                          "need to re-install Zentar over itself to get it back."}));
}

Message ShotProperties(const Shot& shot) {
    return {shot.Name, Lines({shot.ShotSizeText, shot.ShotDateText, shot.ShotDimsText}),
            MessageIcon::Information};
}

Message ReallyKillOriginal() {
    return Confirmation("Really kill original after converting to JPG?");
}

Message ReallyOverwriteJpg() { return Confirmation("Really overwrite the existing JPG version?"); }

Message OverwriteReadOnlyJpg() {
    return FailureWithQuestion(
        Lines({"JPG version exists and can't be overwritten due to being read-only.",
               "Would you like me to remove this setting and force the overwrite?"}));
}

Message JpgDone(std::uint64_t original, std::uint64_t jpg, std::string_view separator) {
    return {"Done",
            Lines({"Original image size:\t" + GroupDigits(original, separator) + " bytes.",
                   "JPG version size:\t" + GroupDigits(jpg, separator) + " bytes.",
                   "Total bytes saved:\t" + SavedBytes(original, jpg, separator) + "."}),
            MessageIcon::Information};
}

Message JpgNotMade(const std::string& game) {
    return CriticalFailure(
        Lines({"JPG version could not be made for some reason.",
               "This is most probably due to a lack of available disk space,",
               "and the original image still remains in its " + game + " sub-folder."}));
}

Message OriginalNotKilled(const std::string& game) {
    return CriticalFailure(
        Lines({"JPG version was made, but the original could not be deleted",
               "and so the original image still remains in its " + game + " sub-folder."}));
}

Message ReallyOverwriteWallpaper() {
    return Confirmation("Really overwrite the existing wallpaper with this name?");
}

Message WallpaperNotSet() {
    return Failure(Lines({"This screenshot couldn't be set as the system wallpaper.", "",
                          "Your Windows folder may be protected, or its drive may be full."}));
}

Message ReallyDeleteAllWallpaper() {
    return Confirmation("Really delete all Zentar-created wallpaper?");
}

Message ReallyDeleteShot() { return Confirmation("Really delete this screenshot?"); }

Message DeleteReadOnlyShot() {
    return FailureWithQuestion(
        Lines({"Screenshot couldn't be deleted due to being set as read-only.",
               "Would you like me to remove this setting to force the deletion?"}));
}

Message ReallyDeletePreview() {
    return Confirmation("Really delete this screenshot's preview image?");
}

Message DeleteReadOnlyPreview() {
    return FailureWithQuestion(
        Lines({"Preview couldn't be deleted due to being set as read-only.",
               "Would you like me to remove this setting and force the delete?"}));
}

Message ReallyDeleteAllShots() { return Confirmation("Really delete all images/shots?"); }

Message ReallyDeleteAllPreviews() { return Confirmation("Really delete all preview images?"); }

Message ReallyDeleteAllTga() { return Confirmation("Really delete all TGA screenshots?"); }

Message ReallyDeleteAllPcx() { return Confirmation("Really delete all PCX screenshots?"); }

Message ReallyDeleteAllJpg() { return Confirmation("Really delete all JPG images?"); }

TextQuestion EnterNewShotName(const std::string& name) {
    return {.title = "Rename Screenshot",
            .prompt =
                Lines({"Enter new name for \"" + name + "\".", "", "(Do not type the extension)."}),
            .answer = name};
}

}  // namespace zentar::messages
