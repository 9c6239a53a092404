#include "screenshots/shot_menu.h"

namespace zentar {

ShotMenu DecideShotMenu(const Shot& shot, bool libraryPresent, bool previewOnly) {
    if (shot.Name.empty()) {
        return {};
    }
    const bool whole = libraryPresent && !previewOnly && shot.ShotExtension != ".jpg";
    return {.showFull = libraryPresent && shot.ShotDimsText != kUnknownDims,
            .convert = whole,
            .setWallpaper = whole,
            .fileCommands = true,
            .deletePreview = shot.HasPreview};
}

}  // namespace zentar
