// The program's life: loading the main window, its first activation, the exit guard and shutdown.
#pragma once

#include <functional>

#include "core/game_selection.h"
#include "core/program_state.h"
#include "core/settings_file.h"
#include "platform/controls.h"
#include "platform/platform.h"

namespace zentar {

class ProgramLife {
  public:
    // tmrQ3Game is the watch over a running game, which keeps the program from leaving;
    // `restoreHiddenPaks` puts back what was hidden from such a game.
    ProgramLife(ProgramState& state, const Platform& platform, GameSelection& games,
                const SettingsControls& settings, TabControl& SSTab1, Timer& tmrQ3Game,
                std::function<void()> restoreHiddenPaks);

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
    std::function<void()> restoreHiddenPaks_;
    bool settingsWereRead_ = true;
};

// Sets state.ShiftHeld: Shift is down now and was pressed since the last poll.
void PollShiftKey(ProgramState& state, const Platform& platform);

}  // namespace zentar
