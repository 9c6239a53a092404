// Playing a demo: starting its game with the right executable and command line.
//
// Quake 3 plays only demos of its own network generation, so the user keeps old executables beside
// the new one under fixed names. The oldest, 1.17, does not run with the packs of later patches in
// its base folder; these are hidden (renamed) while it plays, and put back once its window is gone.
#pragma once

#include <set>
#include <string>

#include "core/program_state.h"
#include "demos/demo_list_view.h"
#include "platform/controls.h"
#include "platform/platform.h"

namespace zentar {

class DemoPlayback {
  public:
    // tmrQ3Game runs while a 1.17 game is thought to play.
    DemoPlayback(ProgramState& state, const Platform& platform, DemoListView& list,
                 Timer& tmrQ3Game);
    DemoPlayback(const DemoPlayback&) = delete;
    DemoPlayback& operator=(const DemoPlayback&) = delete;

    // Plays the selected demo. For a file that is no demo, offers the rename instead.
    void PlayDemo();
    // Puts back the packs that are hidden, be it since a moment ago or since a crash.
    void RestoreHiddenPaks();

    void tmrQ3Game_Timer();

  private:
    bool CanBePlayed(const DemoInfo& demo);
    bool OldGameIsThere();
    bool HidePaks();
    void RestorePaksIn(const std::string& folder);
    std::string Executable() const;
    std::string Arguments(const std::string& item) const;
    bool PlaysV117() const;
    bool PlaysNewestQuake3() const;

    ProgramState& state_;
    Platform platform_;
    DemoListView& list_;
    Timer& tmrQ3Game_;
    // Where packs were hidden; the user may choose another folder for the game meanwhile.
    std::set<std::string> hiddenIn_;
};

}  // namespace zentar
