#include "q3tools/q3_config_search.h"

#include "core/file_reading.h"
#include "core/game_folders.h"
#include "platform/window_services.h"
#include "q3tools/config_messages.h"
#include "q3tools/q3_config.h"
#include "q3tools/q3_config_conversion.h"

namespace zentar {

std::optional<std::string> FindQ3Config(ProgramState& state, const Platform& platform,
                                        std::string_view purpose) {
    CheckGameFolder(state, platform, GameId(kQuake3));
    if (!state.GameFolderOK) {
        return std::nullopt;
    }
    std::string path = Q3ConfigPath(state);
    RecoverConfig(platform.files, path);
    if (!FileExists(platform.files, path)) {
        platform.windows.Ask(messages::NoQ3Config(purpose));
        return std::nullopt;
    }
    return path;
}

}  // namespace zentar
