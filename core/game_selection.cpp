#include "core/game_selection.h"

#include <algorithm>

#include "core/game_folders.h"
#include "core/messages.h"
#include "core/scoped_flag.h"
#include "core/text.h"
#include "platform/file_system.h"

namespace zentar {

GameSelection::GameSelection(ProgramState& state, const Platform& platform,
                             const GameSelectionControls& controls, GameFollowers& followers)
    : state_(state), platform_(platform), controls_(controls), followers_(followers) {
    for (std::size_t i = 0; i < kGameCount; ++i) {
        const auto select = [this, i] {
            if (!showingGame_) {
                SetCurrentGame(GameId(AllGames()[i].id));
            }
        };
        ControlEvents events;
        events.click = select;
        controls_.optGame[i]->SetEvents(std::move(events));
        controls_.mnuGame[i]->SetClick(select);
    }
    ControlEvents mods;
    mods.click = [this] { lstMods_Click(); };
    controls_.lstMods.SetEvents(std::move(mods));
    controls_.mnuGameGetFolder.SetClick([this] { SpecifyGameFolder(); });
    controls_.mnuGameCurrentFolders.SetClick([this] { ShowCurrentFolders(); });
}

void GameSelection::SetCurrentGame(const GameId& game) {
    state_.settings.Game = game;
    RefreshGame();
}

void GameSelection::SpecifyGameFolder() {
    if (ChooseGameFolder(state_, platform_)) {
        RefreshGame();
    }
}

void GameSelection::ShowCurrentFolders() {
    platform_.windows.Ask(messages::CurrentFolders(state_));
}

void GameSelection::RefreshGame() {
    const unsigned thisRefresh = ++refreshes_;
    if (const GameInfo* info = state_.Info()) {
        ShowGameAsSelected(*info);
        SetContext(*info, *state_.Game());
        if (info->id == kQuake3) {
            followers_.DescribeBackups();
        }
        followers_.FillDemoFilterList(*info);
        followers_.ArrangeChatFrame(*info);
        followers_.ArrangeDemoInstaller(*info);
        followers_.ArrangeDemoProperties(*info);
    }
    platform_.windows.PumpPending();
    if (thisRefresh != refreshes_) {
        return;  // the user picked another game meanwhile, and that one's refresh is complete
    }
    modWasSelected_ = false;
    RefreshModList();
    // Selecting the mod has listed its files; reading the folders a second time would show the
    // same.
    if (!modWasSelected_) {
        followers_.RefreshScreenshotList();
        followers_.RefreshDemoList();
    }
    followers_.RefreshSymptom();
}

void GameSelection::ShowGameAsSelected(const GameInfo& info) {
    const ScopedFlag showing(showingGame_);
    for (std::size_t i = 0; i < kGameCount; ++i) {
        const bool current = AllGames()[i].id == info.id;
        controls_.mnuGame[i]->SetChecked(current);
        controls_.optGame[i]->SetSelected(current);
    }
}

void GameSelection::SetContext(const GameInfo& info, const GameState& game) {
    CurrentGame& current = state_.current;
    current.CurrentExe = info.executable;
    current.CurrentBaseArg = info.BaseArgument();
    current.CurrentGameFolder = game.GameFolder;
    current.CurrentBasePath = game.BaseModPath;
    current.DemoExtension = info.demoExtension;
    current.ScreenshotFolder = game.BaseModPath + std::string(info.screenshotFolder);
    current.DemoFolder = game.BaseModPath + std::string(info.demoFolder);
    current.SelectedMod = info.baseMod;
}

std::vector<std::string> GameSelection::FindMods() {
    std::vector<std::string> mods;
    const GameState* game = state_.Game();
    if (game == nullptr || !game->GameInstalled) {
        return mods;
    }
    const auto visit = [&mods](const FolderEntry& entry) {
        if (!entry.info.isFolder) {
            return;
        }
        std::string name = LowerCase(entry.name);
        if (!HoldsNoMod(name)) {
            mods.push_back(std::move(name));
        }
    };
    // A folder that cannot be read shows the mods found so far, as an empty list at worst.
    IgnoreFailure(platform_.files.Enumerate(state_.current.CurrentGameFolder, visit));
    SortAlphabetically(mods);
    return mods;
}

void GameSelection::RefreshModList() {
    const std::vector<std::string> mods = FindMods();
    const bool any = !mods.empty();
    listedGame_ = state_.settings.Game;
    controls_.lstMods.SetItems(mods);
    controls_.lstMods.SetBackground(any ? SystemColour::Window : SystemColour::ButtonFace);
    controls_.lstMods.SetEnabled(any);
    controls_.labMod.SetEnabled(any);
    if (!any) {
        return;
    }
    const auto current = std::find(mods.begin(), mods.end(), LowerCase(state_.Game()->CurMod));
    if (current != mods.end()) {
        controls_.lstMods.Select(static_cast<int>(current - mods.begin()));
    }
}

void GameSelection::lstMods_Click() {
    if (listedGame_ != state_.settings.Game) {
        return;  // still the mods of the game before, whose names mean nothing to this one
    }
    modWasSelected_ = true;
    selecting_.Run([this] { SelectListedMod(); });
}

void GameSelection::SelectListedMod() {
    const int selected = controls_.lstMods.SelectedIndex();
    if (selected >= 0 && state_.Info() != nullptr) {
        SelectMod(controls_.lstMods.Item(selected));
    }
}

void GameSelection::SelectMod(const std::string& mod) {
    followers_.ResetPreviewCaption();
    const GameInfo& info = *state_.Info();
    GameState& game = *state_.Game();
    state_.current.SelectedMod = mod;
    game.CurMod = mod;
    const std::string modFolder = game.GameFolder + mod + "\\";
    state_.current.ScreenshotFolder = modFolder + std::string(info.screenshotFolder);
    state_.current.DemoFolder = modFolder + std::string(info.demoFolder);
    followers_.RefreshScreenshotList();
    if (selecting_.AskedAgain()) {
        return;  // another one was picked meanwhile, whose files are listed next
    }
    if (!controls_.chkShowAllDemos.Checked() && state_.settings.AutoShowAll == 1) {
        controls_.chkShowAllDemos.SetChecked(true);  // its own procedure then lists the demos
    } else {
        followers_.RefreshDemoList();
    }
}

}  // namespace zentar
