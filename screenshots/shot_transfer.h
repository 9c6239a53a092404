// Copying and moving screenshots to the Remote Folder.
//
// A move to another drive copies and leaves the original where it is. Preview images stay in any
// case.
#pragma once

#include "core/file_transfer.h"
#include "core/program_state.h"
#include "core/transfer_messages.h"
#include "platform/platform.h"
#include "screenshots/shot_list_view.h"

namespace zentar {

class ShotTransfer {
  public:
    ShotTransfer(ProgramState& state, const Platform& platform, ShotListView& list)
        : state_(state), platform_(platform), list_(list) {}

    void TransferShotToRemote(TransferVerb verb);

  private:
    bool MayBegin(TransferVerb verb, FileTransfer& file);
    CopyOutcome Carry(TransferVerb verb, FileTransfer& file);

    ProgramState& state_;
    Platform platform_;
    ShotListView& list_;
};

}  // namespace zentar
