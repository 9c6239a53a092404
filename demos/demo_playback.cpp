#include "demos/demo_playback.h"

#include <array>
#include <string_view>

#include "core/file_name.h"
#include "core/game_folders.h"
#include "core/messages.h"
#include "core/questions.h"
#include "demos/demo_messages.h"
#include "platform/file_system.h"
#include "platform/shell.h"
#include "platform/window_services.h"

namespace zentar {
namespace {

// An executable of an older Quake 3, known by its exact length.
struct OldGame {
    Q3Generation generation;
    std::string_view version;
    std::string_view executable;
    std::uint64_t length;
};

constexpr std::array<OldGame, 2> kOldGames{{
    {Q3Generation::V117, "1.17", "quake3-117.exe", 852'025},
    {Q3Generation::V127h, "1.27h", "quake3-127h.exe", 880'640},
}};

const OldGame* OldGameOf(Q3Generation generation) {
    for (const OldGame& game : kOldGames) {
        if (game.generation == generation) {
            return &game;
        }
    }
    return nullptr;
}

// Without their extensions.
constexpr std::array<std::string_view, 3> kLaterPaks = {"pak4", "pak5", "pak6"};
constexpr std::string_view kShown = ".pk3";
constexpr std::string_view kHidden = ".zentar";

std::string PakPath(const std::string& folder, std::string_view pak, std::string_view extension) {
    return std::string(folder).append(pak).append(extension);
}

constexpr const char* kGameTitle = "Quake 3: Arena";

}  // namespace

DemoPlayback::DemoPlayback(ProgramState& state, const Platform& platform, DemoListView& list,
                           Timer& tmrQ3Game)
    : state_(state), platform_(platform), list_(list), tmrQ3Game_(tmrQ3Game) {
    tmrQ3Game_.SetTick([this] { tmrQ3Game_Timer(); });
}

void DemoPlayback::PlayDemo() {
    const DemoInfo demo = list_.SelectedDemo();
    if (demo.Item.empty() || !CanBePlayed(demo)) {
        return;
    }
    CheckGameFolder(state_, platform_);
    if (!state_.GameFolderOK || !OldGameIsThere() ||
        !Confirmed(state_, platform_.windows, messages::ReallyPlayDemo(state_.settings.Game))) {
        return;
    }
    const bool playsV117 = PlaysV117();
    const std::string executable = Executable();
    if (playsV117) {
        // A look at a game before this one would put the packs back.
        const bool watching = tmrQ3Game_.Enabled();
        tmrQ3Game_.SetEnabled(false);
        if (!HidePaks()) {
            tmrQ3Game_.SetEnabled(watching);
            return;
        }
    } else if (PlaysNewestQuake3()) {
        // Some may still be hidden since a game whose end nobody saw.
        RestoreHiddenPaks();
    }
    const Status started = platform_.shell.StartProgram(
        {state_.current.CurrentGameFolder, executable, Arguments(demo.Item)});
    if (playsV117) {
        // Also when it did not start: the first look finds no game and puts the packs back.
        tmrQ3Game_.SetEnabled(true);
    }
    if (!started.Ok()) {
        platform_.windows.Ask(messages::GameNotStarted(state_.settings.Game, executable));
    }
}

bool DemoPlayback::CanBePlayed(const DemoInfo& demo) {
    if (FolderOf(demo.Path) != state_.current.DemoFolder) {
        // Another mod or game has been picked, whose demos are about to be listed.
        return false;
    }
    if (demo.NotADemo) {
        list_.OfferNotADemoRename();
        return false;
    }
    if (!platform_.files.Info(demo.Path).Ok()) {
        platform_.windows.Ask(messages::IsGone("demo"));
        list_.RefreshDemoList();
        return false;
    }
    if (demo.Unreadable) {
        platform_.windows.Ask(messages::DemoIsUnreadable());
        return false;
    }
    return true;
}

bool DemoPlayback::PlaysV117() const {
    return state_.settings.Game == kQuake3 && state_.generation == Q3Generation::V117;
}

bool DemoPlayback::PlaysNewestQuake3() const {
    return state_.settings.Game == kQuake3 && OldGameOf(state_.generation) == nullptr;
}

std::string DemoPlayback::Executable() const {
    const OldGame* old = OldGameOf(state_.generation);
    if (state_.settings.Game == kQuake3 && old != nullptr) {
        return std::string(old->executable);
    }
    return state_.current.CurrentExe;
}

// For a demo of an older generation, its game must be there; tells the user if it is not.
bool DemoPlayback::OldGameIsThere() {
    const OldGame* old = OldGameOf(state_.generation);
    if (state_.settings.Game != kQuake3 || old == nullptr) {
        return true;
    }
    const Result<FileInfo> file =
        platform_.files.Info(state_.current.CurrentGameFolder + std::string(old->executable));
    if (file.Ok() && file.Value().length == old->length) {
        return true;
    }
    platform_.windows.Ask(messages::OldGameNeeded(old->version, old->executable));
    return false;
}

std::string DemoPlayback::Arguments(const std::string& item) const {
    const std::string& mod = state_.current.SelectedMod;
    const std::string& extension = state_.current.DemoExtension;
    if (state_.settings.Game == kQuake1) {
        return " -game " + mod + " +playdemo \"" + item + extension + "\"";
    }
    if (state_.settings.Game == kQuake2) {
        return " +set game " + mod + " +map " + item + extension;
    }
    // Without an extension: each game looks for the one of its own generation.
    return " +set fs_game " + mod + " +demo \"" + item.substr(0, item.find_last_not_of(' ') + 1) +
           "\"";
}

bool DemoPlayback::HidePaks() {
    const std::string folder = state_.current.CurrentBasePath;
    hiddenIn_.insert(folder);
    for (const std::string_view pak : kLaterPaks) {
        const std::string shown = PakPath(folder, pak, kShown);
        if (!platform_.files.Info(shown).Ok()) {
            continue;
        }
        const Status hidden = platform_.files.Rename(shown, PakPath(folder, pak, kHidden));
        if (!hidden.Ok()) {
            RestoreHiddenPaks();
            platform_.windows.Ask(messages::PakNotHidden(pak, hidden.Error()));
            return false;
        }
    }
    return true;
}

void DemoPlayback::RestoreHiddenPaks() {
    RestorePaksIn(state_.games[kQuake3Row].BaseModPath);
    for (const std::string& folder : hiddenIn_) {
        RestorePaksIn(folder);
    }
}

void DemoPlayback::RestorePaksIn(const std::string& folder) {
    for (const std::string_view pak : kLaterPaks) {
        const std::string hidden = PakPath(folder, pak, kHidden);
        if (platform_.files.Info(hidden).Ok()) {
            // One that the game still holds is put back the next time.
            IgnoreFailure(platform_.files.Rename(hidden, PakPath(folder, pak, kShown)));
        }
    }
}

void DemoPlayback::tmrQ3Game_Timer() {
    if (!platform_.windows.HasWindowTitled(kGameTitle)) {
        tmrQ3Game_.SetEnabled(false);
        RestoreHiddenPaks();
    }
}

}  // namespace zentar
