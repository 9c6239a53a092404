// Which entries of the popup menu a right click in the list leaves enabled.
#pragma once

#include "screenshots/shot.h"

namespace zentar {

struct ShotMenu {
    bool showFull = false;
    bool convert = false;  // both "Make JPG" entries
    bool setWallpaper = false;
    bool fileCommands = false;  // delete, rename, copy, move
    bool deletePreview = false;
};

// `libraryPresent`: screenshots can be decoded. `previewOnly`: what is shown is no more than the
// preview image, be it by the view mode or since Shift was held.
ShotMenu DecideShotMenu(const Shot& shot, bool libraryPresent, bool previewOnly);

}  // namespace zentar
