// Copying and moving demos to the Remote Folder.
//
// A demo is deleted only after its copy has been checked, and a demo of that name in the Remote
// Folder is replaced only by a whole copy.
#pragma once

#include <string>

#include "core/file_transfer.h"
#include "core/program_state.h"
#include "demos/demo_list_view.h"
#include "demos/demo_transfer_messages.h"
#include "platform/platform.h"

namespace zentar {

class DemoTransfer {
  public:
    DemoTransfer(ProgramState& state, const Platform& platform, DemoListView& list)
        : state_(state), platform_(platform), list_(list) {}

    void CopySelected() { Transfer(TransferVerb::Copy); }
    void MoveSelected() { Transfer(TransferVerb::Move); }

  private:
    struct Job {
        TransferVerb verb;
        FileTransfer file;
        std::string mod;
    };

    void Transfer(TransferVerb verb);
    bool MayBegin(Job& job);
    void ShowResult(const Job& job, const std::string& item, bool done);

    ProgramState& state_;
    Platform platform_;
    DemoListView& list_;
};

}  // namespace zentar
