// Picking a game and a mod: the game menu, the option buttons, the mod list, and the order in which
// the rest of the window follows.
#pragma once

#include <array>

#include "core/latest_only.h"
#include "core/program_state.h"
#include "platform/controls.h"
#include "platform/platform.h"

namespace zentar {

// What the tabs do when another game or mod becomes the current one, filled in by whoever puts the
// program together.
class GameFollowers {
  public:
    virtual ~GameFollowers() = default;
    // The phrases that the demo filter offers become the game's map names.
    virtual void FillDemoFilterList(const GameInfo& game) = 0;
    // Quake 3 is the current game: the folder of its backups says what it is for.
    virtual void DescribeBackups() = 0;
    virtual void ArrangeChatFrame(const GameInfo& game) = 0;
    // The demo installer says what it installs for the game, if anything.
    virtual void ArrangeDemoInstaller(const GameInfo& game) = 0;
    virtual void ArrangeDemoProperties(const GameInfo& game) = 0;
    // The caption of the view mode is as it is at rest.
    virtual void ResetPreviewCaption() = 0;
    virtual void RefreshScreenshotList() = 0;
    virtual void RefreshDemoList() = 0;
    // What First Aid says of the selected symptom depends on the game.
    virtual void RefreshSymptom() = 0;
};

struct GameSelectionControls {
    std::array<OptionButton*, kGameCount> optGame;  // in the order of AllGames()
    std::array<MenuEntry*, kGameCount> mnuGame;     // likewise
    MenuEntry& mnuGameGetFolder;
    MenuEntry& mnuGameCurrentFolders;
    Label& labMod;
    ListBox& lstMods;
    CheckBox& chkShowAllDemos;
};

class GameSelection {
  public:
    // Binds the controls' events.
    GameSelection(ProgramState& state, const Platform& platform,
                  const GameSelectionControls& controls, GameFollowers& followers);

    void SetCurrentGame(const GameId& game);
    void RefreshGame();
    void SpecifyGameFolder();
    void ShowCurrentFolders();

    void lstMods_Click();

  private:
    void ShowGameAsSelected(const GameInfo& info);
    void SetContext(const GameInfo& info, const GameState& game);
    void RefreshModList();
    std::vector<std::string> FindMods();
    void SelectListedMod();
    void SelectMod(const std::string& mod);

    ProgramState& state_;
    Platform platform_;
    GameSelectionControls controls_;
    GameFollowers& followers_;
    // Set while the refresh itself selects the option button, whose click must not refresh again.
    bool showingGame_ = false;
    // Counts the refreshes: one that was overtaken by another while messages were handled stops.
    unsigned refreshes_ = 0;
    bool modWasSelected_ = false;
    GameId listedGame_;  // whose mods the list shows
    LatestOnly selecting_;
};

}  // namespace zentar
