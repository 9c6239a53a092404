// What the screenshot commands say to the user.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/result.h"
#include "platform/window_services.h"
#include "screenshots/shot.h"

namespace zentar::messages {

Message ImageLibraryMissing();
Message ShotProperties(const Shot& shot);

Message ReallyKillOriginal();
Message ReallyOverwriteJpg();
Message OverwriteReadOnlyJpg();
// Lengths in bytes; `separator` stands between groups of three digits.
Message JpgDone(std::uint64_t original, std::uint64_t jpg, std::string_view separator);
Message JpgNotMade(const std::string& game);
Message OriginalNotKilled(const std::string& game);

Message ReallyOverwriteWallpaper();
Message WallpaperNotSet();
Message ReallyDeleteAllWallpaper();

Message ReallyDeleteShot();
Message DeleteReadOnlyShot();
Message ReallyDeletePreview();
Message DeleteReadOnlyPreview();
Message ReallyDeleteAllShots();
Message ReallyDeleteAllPreviews();
Message ReallyDeleteAllTga();
Message ReallyDeleteAllPcx();
Message ReallyDeleteAllJpg();

TextQuestion EnterNewShotName(const std::string& name);

}  // namespace zentar::messages
