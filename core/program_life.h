// The program's life: loading the main window, its first activation, the exit guard and shutdown.
#pragma once

#include "core/game_selection.h"
#include "core/program_state.h"
#include "core/settings_file.h"
#include "platform/controls.h"
#include "platform/platform.h"

namespace zentar {

// What the tabs do when the program starts and leaves, filled in by whoever puts the program
// together.
class LifeFollowers {
  public:
    virtual ~LifeFollowers() = default;
    // The folders are known, the settings are not: the coloured text kept from the last time.
    virtual void LoadCurrentDesign() = 0;
    // The settings have been read, so the tabs follow them.
    virtual void FollowSettings() = 0;
    // The window is in front for the first time: First Aid shows no remedy.
    virtual void ClearRemedy() = 0;
    // Shows a new user the help, until they close it.
    virtual void ShowHelpModally() = 0;
    // Puts back what was hidden from a game that played.
    virtual void RestoreHiddenPaks() = 0;
};

class ProgramLife {
  public:
    // tmrQ3Game is the watch over a running game, which keeps the program from leaving.
    ProgramLife(ProgramState& state, const Platform& platform, GameSelection& games,
                const SettingsControls& settings, TabControl& SSTab1, Timer& tmrQ3Game,
                LifeFollowers& followers);

    // The start-up of the main window, step by step: folders, defaults, settings, games. Reports
    // nothing; whatever fails leaves its default.
    void Form2_Load();
    // The first time, welcomes a new user; later times do nothing.
    void Form2_Activate();
    // Whether the program may leave. If not, the user has been told why; if so, everything has been
    // put in order.
    bool Form2_QueryUnload();
    // Windows ends the session: what must not be lost is saved, and what was hidden is put back.
    void Form2_SessionEnding();

  private:
    void WelcomeNewUser();
    void RemoveTempFiles();
    void SaveSettingsUnlessUnread();

    ProgramState& state_;
    Platform platform_;
    GameSelection& games_;
    SettingsControls settings_;
    TabControl& SSTab1_;
    Timer& tmrQ3Game_;
    LifeFollowers& followers_;
    bool settingsWereRead_ = true;
};

// Sets state.ShiftHeld: Shift is down now and was pressed since the last poll.
void PollShiftKey(ProgramState& state, const Platform& platform);

}  // namespace zentar
