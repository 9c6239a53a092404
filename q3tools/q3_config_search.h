// Where the commands on Quake 3's configuration begin.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/program_state.h"
#include "platform/platform.h"

namespace zentar {

// The path of the configuration, whatever game is current; nothing when the game or the file is not
// there, which the user is told of. `purpose` is what the file is wanted for: "backup from",
// "edit". One that a killed conversion lost is there again.
std::optional<std::string> FindQ3Config(ProgramState& state, const Platform& platform,
                                        std::string_view purpose);

}  // namespace zentar
