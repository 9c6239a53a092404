#include "core/game_folders.h"

#include <algorithm>
#include <array>

#include "core/file_reading.h"
#include "core/messages.h"
#include "core/text.h"
#include "platform/shell.h"

namespace zentar {
namespace {

constexpr std::array<std::string_view, 14> kNoMods = {".",
                                                      "..",
                                                      "ctf_logs",
                                                      "docs",
                                                      "extras",
                                                      "ereg",
                                                      "gamespy",
                                                      "heat",
                                                      "kprad",
                                                      "ratlogs",
                                                      "release",
                                                      "team arena help",
                                                      "zentar strays",
                                                      "single-player backups"};

std::string ExecutablePath(const GameInfo& info, const GameState& game) {
    return game.GameFolder + std::string(info.executable);
}

void UpdateBaseModPath(const GameInfo& info, GameState& game) {
    game.BaseModPath = game.GameFolder + std::string(info.baseMod) + "\\";
}

}  // namespace

void DetectInstalledGames(ProgramState& state, FileSystem& files) {
    for (std::size_t i = 0; i < kGameCount; ++i) {
        const GameInfo& info = AllGames()[i];
        GameState& game = state.games[i];
        const Result<FileInfo> executable = files.Info(ExecutablePath(info, game));
        if (executable.Ok() && executable.Value().length > 0) {
            game.GameInstalled = true;
            if (info.id == kQuake3) {
                state.Q3BackupFolder = game.GameFolder + "Single-Player Backups\\";
            }
        } else {
            game.GameFolder = state.ProgramFolder.substr(0, 2);
        }
        UpdateBaseModPath(info, game);
    }
}

bool HoldsNoMod(std::string_view folder) {
    return std::find(kNoMods.begin(), kNoMods.end(), folder) != kNoMods.end();
}

bool ChooseGameFolder(ProgramState& state, const Platform& platform) {
    const GameInfo* info = state.Info();
    const auto picked = platform.shell.PickFolder(messages::LocateGameFolder(state.settings.Game));
    if (!picked) {
        return false;
    }
    GameState chosen;
    chosen.GameFolder = WithBackslash(*picked);
    if (info == nullptr || !FileExists(platform.files, ExecutablePath(*info, chosen))) {
        platform.windows.Ask(messages::NotTheGameFolder(state.settings.Game));
        return false;
    }
    GameState& game = *state.Game();
    game.GameInstalled = true;
    game.GameFolder = chosen.GameFolder;
    UpdateBaseModPath(*info, game);
    if (info->id == kQuake3) {
        state.Q3BackupFolder = game.GameFolder + "single-player backups\\";
    }
    return true;
}

void CheckGameFolder(ProgramState& state, const Platform& platform) {
    CheckGameFolder(state, platform, state.settings.Game);
}

void CheckGameFolder(ProgramState& state, const Platform& platform, const GameId& game) {
    state.GameFolderOK = true;
    if (const int index = GameIndex(game); index >= 0) {
        const auto row = static_cast<std::size_t>(index);
        state.GameFolderOK =
            FileExists(platform.files, ExecutablePath(AllGames()[row], state.games[row]));
    }
    if (!state.GameFolderOK) {
        platform.windows.Ask(messages::GameFolderUnknown(game));
    }
}

}  // namespace zentar
