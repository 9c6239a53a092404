// The screenshot list, as the commands on screenshots use it.
#pragma once

#include <string>
#include <vector>

#include "screenshots/shot.h"

namespace zentar {

class ShotListView {
  public:
    virtual ~ShotListView() = default;

    // Its Name is empty when none is selected.
    virtual const Shot& CurrentShot() const = 0;
    virtual const ActualShot& picShotActual() const = 0;
    // The names of the listed shots, in order.
    virtual std::vector<std::string> ListedShots() const = 0;
    // The folder whose shots are listed, which may no longer be the current mod's.
    virtual const std::string& ListedFolder() const = 0;

    // Lists the shots of the current mod anew. Nothing is selected or shown afterwards.
    virtual void RefreshScreenshotList() = 0;
    // The same, then selects a shot, should it be there, as the user would.
    virtual void RefreshAndSelect(const std::string& shot) = 0;
    // The same, but what is shown stays as it is: it is this shot's already.
    virtual void RefreshAndReselect(const std::string& shot) = 0;
    // Whether the Windows folder holds wallpapers decides whether they can be deleted.
    virtual void DecideDeleteAllWallpaper() = 0;
};

}  // namespace zentar
