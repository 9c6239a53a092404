// The desktop wallpaper: making it of the screenshot that is shown, and deleting what was made.
#pragma once

#include <string>
#include <vector>

#include "core/program_state.h"
#include "platform/platform.h"
#include "platform/result.h"
#include "screenshots/shot_list_view.h"

namespace zentar {

class Wallpaper {
  public:
    Wallpaper(ProgramState& state, const Platform& platform, ShotListView& list)
        : state_(state), platform_(platform), list_(list) {}

    void mnuScreenshotSetWallpaper_Click();
    void mnuScreenshotDeleteAllWallpaper_Click();

  private:
    bool Save(const std::string& bytes, const std::string& path);
    bool SaveElevated(const std::string& bytes, const std::string& path);

    ProgramState& state_;
    Platform platform_;
    ShotListView& list_;
};

// The names of the wallpapers that the program made.
std::vector<std::string> FindWallpapers(FileSystem& files, const std::string& windowsFolder);

}  // namespace zentar
