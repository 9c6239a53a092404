#include "core/remote_folder.h"

#include "core/messages.h"
#include "platform/file_system.h"

namespace zentar {
namespace {

bool CanWriteTo(FileSystem& files, const std::string& path) {
    {
        const auto file = files.OpenForWriting(path, WriteMode::Truncate);
        if (!file.Ok() || !file.Value()->Close().Ok()) {
            return false;
        }
    }
    return files.Delete(path).Ok();
}

}  // namespace

void CheckRemoteFolder(ProgramState& state, const Platform& platform) {
    state.RemoteFolderOK = CanWriteTo(platform.files, state.settings.Remote + "zentar.tmp");
    if (!state.RemoteFolderOK) {
        platform.windows.Ask(messages::RemoteFolderInvalid());
    }
}

}  // namespace zentar
