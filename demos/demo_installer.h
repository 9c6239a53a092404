// The frame "Demo Installer" of the Misc tab.
#pragma once

#include "core/game_info.h"
#include "core/program_state.h"
#include "demos/demo_list_view.h"
#include "platform/controls.h"
#include "platform/platform.h"

namespace zentar {

struct DemoInstallerControls {
    Frame& fraDemoInstaller;
    Picture& picDemoInstaller;
    Label& labDemoInstaller;
    Button& cmdDemoInstaller;
};

class DemoInstaller {
  public:
    // Binds the button's event procedure.
    DemoInstaller(ProgramState& state, const Platform& platform,
                  const DemoInstallerControls& controls, DemoListView& list);
    DemoInstaller(const DemoInstaller&) = delete;
    DemoInstaller& operator=(const DemoInstaller&) = delete;

    // Says what is installed for the game; for Quake 1, that nothing is.
    void Arrange(const GameInfo& game);

    void cmdDemoInstaller_Click();

  private:
    void EnableAll(bool enabled);

    ProgramState& state_;
    Platform platform_;
    DemoInstallerControls controls_;
    DemoListView& list_;
};

}  // namespace zentar
