// Quake 3's own configuration file.
#pragma once

#include <string>
#include <string_view>

#include "core/program_state.h"
#include "platform/file_system.h"

namespace zentar {

std::string Q3ConfigPath(const ProgramState& state);

// Appends lines to it in one write. Each of `lines` brings its end; a last line of the file that
// has none, or that cannot be read, gets one first.
Status AppendToConfig(FileSystem& files, const std::string& path, std::string_view lines);

}  // namespace zentar
