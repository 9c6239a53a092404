#include "demos/demo_installer.h"

#include <optional>
#include <string>

#include "core/game_folders.h"
#include "core/hourglass.h"
#include "core/text.h"
#include "demos/demo_installation.h"
#include "demos/demo_messages.h"
#include "platform/shell.h"

namespace zentar {

DemoInstaller::DemoInstaller(ProgramState& state, const Platform& platform,
                             const DemoInstallerControls& controls, DemoListView& list)
    : state_(state), platform_(platform), controls_(controls), list_(list) {
    ControlEvents install;
    install.click = [this] { list_.RunCommand([this] { cmdDemoInstaller_Click(); }); };
    controls_.cmdDemoInstaller.SetEvents(std::move(install));
}

void DemoInstaller::Arrange(const GameInfo& game) {
    const bool available = game.id != kQuake1;
    EnableAll(available);
    if (!available) {
        controls_.fraDemoInstaller.SetText("Q2/3 Demo Installer");
        controls_.labDemoInstaller.SetText("This function is only used for Quake 2/3 demos.");
        controls_.cmdDemoInstaller.SetText("Unavailable");
        return;
    }
    const std::string number(1, game.id.back());
    controls_.fraDemoInstaller.SetText("Q" + number + " Demo Installer");
    controls_.labDemoInstaller.SetText("Click the button to install a folder of demos into Q" +
                                       number + ".");
    controls_.cmdDemoInstaller.SetText("Install Demos");
    controls_.cmdDemoInstaller.SetTooltip("Click here to select a folder of unzipped " +
                                          std::string(game.id) + " demos to install.");
}

void DemoInstaller::EnableAll(bool enabled) {
    controls_.fraDemoInstaller.SetEnabled(enabled);
    controls_.picDemoInstaller.SetEnabled(enabled);
    controls_.labDemoInstaller.SetEnabled(enabled);
    controls_.cmdDemoInstaller.SetEnabled(enabled);
}

void DemoInstaller::cmdDemoInstaller_Click() {
    const GameInfo* game = state_.Info();
    if (game == nullptr || game->id == kQuake1) {
        return;
    }
    CheckGameFolder(state_, platform_);
    if (!state_.GameFolderOK) {
        return;
    }
    const std::optional<std::string> picked =
        platform_.shell.PickFolder(messages::LocateDemosToInstall(game->id));
    if (!picked) {
        return;
    }
    const std::string gameFolder = state_.Game()->GameFolder;
    InstallCount count;
    {
        const Hourglass hourglass(platform_.windows);
        platform_.windows.PumpPending();
        count = InstallDemos(platform_.files, *game, gameFolder, WithBackslash(*picked));
    }
    if (count.installed > 0) {
        // Some may have come to the mod whose demos are listed.
        const DemoInfo& selected = list_.SelectedDemo();
        if (!selected.NotADemo) {
            list_.SetPendingReselection(selected.Item);
        }
        list_.RefreshDemoList();
    }
    platform_.windows.Ask(messages::DemosInstalled(game->id, count.installed, count.found));
}

}  // namespace zentar
