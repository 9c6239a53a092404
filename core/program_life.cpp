#include "core/program_life.h"

#include "core/file_deletion.h"
#include "core/game_folders.h"
#include "core/messages.h"
#include "core/text.h"
#include "platform/file_system.h"
#include "platform/shell.h"

namespace zentar {

ProgramLife::ProgramLife(ProgramState& state, const Platform& platform, GameSelection& games,
                         const SettingsControls& settings, TabControl& SSTab1, Timer& tmrQ3Game,
                         LifeFollowers& followers)
    : state_(state),
      platform_(platform),
      games_(games),
      settings_(settings),
      SSTab1_(SSTab1),
      tmrQ3Game_(tmrQ3Game),
      followers_(followers) {}

void ProgramLife::Form2_Load() {
    state_.settings.Virgin = 1;
    state_.Q3TextFolder = state_.ProgramFolder + "data\\q3text\\";
    state_.settings.Remote = state_.ProgramFolder.substr(0, 3);
    // Usually they are there; where they cannot be made, saving a design will say so.
    IgnoreFailure(platform_.files.CreateFolder(state_.ProgramFolder + "data\\"));
    IgnoreFailure(platform_.files.CreateFolder(state_.Q3TextFolder));
    // A first query also tells of presses from before the program's time.
    platform_.windows.KeyState(PollKey::Shift);
    platform_.windows.KeyState(PollKey::Control);
    state_.WindowsFolder = WithBackslash(platform_.shell.WindowsFolder());
    state_.settings.Game = GameId(kQuake2);
    for (std::size_t i = 0; i < kGameCount; ++i) {
        state_.games[i].CurMod = AllGames()[i].baseMod;
    }
    state_.settings.AutoShowAll = 1;
    followers_.LoadCurrentDesign();
    settingsWereRead_ =
        LoadSettings(platform_.files, state_.ProgramFolder, SettingRows(state_, settings_));
    DetectInstalledGames(state_, platform_.files);
    followers_.FollowSettings();
    games_.RefreshGame();
    RemoveTempFiles();
}

void ProgramLife::Form2_Activate() {
    if (state_.FirstActivationDone) {
        return;
    }
    state_.FirstActivationDone = true;
    followers_.ClearRemedy();
    if (state_.settings.Virgin == 1) {
        WelcomeNewUser();
    }
    SSTab1_.SetFocus();
}

void ProgramLife::WelcomeNewUser() {
    followers_.ShowHelpModally();
    state_.settings.Virgin = 0;
    if (platform_.windows.Ask(messages::FirstRunWelcome()) == Answer::Yes) {
        for (const GameInfo& game : AllGames()) {
            games_.SetCurrentGame(GameId(game.id));
            games_.SpecifyGameFolder();
        }
    }
    games_.ShowCurrentFolders();
}

bool ProgramLife::Form2_QueryUnload() {
    if (tmrQ3Game_.Enabled()) {
        platform_.windows.Ask(messages::CannotExitYet());
        return false;
    }
    SaveSettingsUnlessUnread();
    followers_.RestoreHiddenPaks();
    RemoveTempFiles();
    return true;
}

void ProgramLife::Form2_SessionEnding() {
    SaveSettingsUnlessUnread();
    followers_.RestoreHiddenPaks();
}

void ProgramLife::SaveSettingsUnlessUnread() {
    // A settings file that could not be read still holds what the user had set.
    if (settingsWereRead_) {
        SaveSettings(platform_.files, state_.ProgramFolder, SettingRows(state_, settings_));
    }
}

void ProgramLife::RemoveTempFiles() {
    for (const char* name : {"zentar-tmp.gif", "zentar-tmp.htm", "zentar-help.htm"}) {
        // Usually they are not there; one that another program holds goes the next time.
        IgnoreFailure(ForceDelete(platform_.files, state_.WindowsFolder + name));
    }
    // The game writes this one; it must only not be read-only.
    IgnoreFailure(platform_.files.ClearAttributes(state_.games[0].BaseModPath + "zentar.cfg"));
}

void PollShiftKey(ProgramState& state, const Platform& platform) {
    constexpr std::uint16_t kDownAndPressedSince = 0x8001;
    state.ShiftHeld = platform.windows.KeyState(PollKey::Shift) == kDownAndPressedSince;
}

}  // namespace zentar
