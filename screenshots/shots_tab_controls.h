// The controls of the Shots tab.
#pragma once

#include "platform/controls.h"

namespace zentar {

struct ShotsTabControls {
    ListBox& lstScreenshots;
    Label& labNumShots;
    ImageBox& imgShotView;
    OptionButton& optModePreview;
    OptionButton& optModeReal;
    MenuEntry& mnuScreenshotShowFull;
    MenuEntry& mnuScreenshotProperties;
    MenuEntry& mnuScreenshotMakeJPEGOnly;
    MenuEntry& mnuScreenshotMakeJPEGAndKill;
    MenuEntry& mnuScreenshotSetWallpaper;
    MenuEntry& mnuScreenshotDelete;
    MenuEntry& mnuScreenshotDeletePreview;
    MenuEntry& mnuScreenshotRename;
    MenuEntry& mnuScreenshotCopy;
    MenuEntry& mnuScreenshotMove;
    MenuEntry& mnuScreenshotDeleteAllWallpaper;
    MenuEntry& mnuScreenshotDeleteAll;
    MenuEntry& mnuScreenshotDeleteAllPreview;
    MenuEntry& mnuScreenshotDeleteAllJPG;
    MenuEntry& mnuScreenshotDeleteAllTGA;
    MenuEntry& mnuScreenshotDeleteAllPCX;
    MenuEntry& mnuScreenshotRefresh;
};

}  // namespace zentar
