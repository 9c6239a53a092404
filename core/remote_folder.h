// The Remote Folder: the one folder outside the games to which shots and demos are copied or moved.
#pragma once

#include "core/program_state.h"
#include "platform/platform.h"

namespace zentar {

// Tests that the Remote Folder exists and takes files, by writing "zentar.tmp" there and deleting
// it again; sets state.RemoteFolderOK, and tells the user when it is not so.
void CheckRemoteFolder(ProgramState& state, const Platform& platform);

}  // namespace zentar
