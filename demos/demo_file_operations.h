// Deleting and renaming demos.
//
// Message boxes let time pass, so each command works on a copy of what was selected when it began.
// A demo is never renamed over another file.
#pragma once

#include <string>

#include "core/program_state.h"
#include "demos/demo_list_view.h"
#include "platform/platform.h"

namespace zentar {

class DemoFileOperations {
  public:
    DemoFileOperations(const ProgramState& state, const Platform& platform, DemoListView& list)
        : state_(state), platform_(platform), list_(list) {}

    void DeleteSelected();
    // Those that the filter keeps out of the list stay.
    void DeleteAllListed();
    void RenameSelected();
    // Puts the demo's map in square brackets before its name.
    void RenameSelectedWithMap();

  private:
    void Rename(const DemoInfo& demo, const std::string& name, const std::string& extension);

    const ProgramState& state_;
    Platform platform_;
    DemoListView& list_;
};

}  // namespace zentar
