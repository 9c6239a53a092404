// Single-player progress of Quake 3: the lines of its configuration that hold it, as a file of
// their own, and back.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace zentar {

// Whether a line of a configuration holds progress or awards, or, if `all`, the player's name,
// looks and railgun.
bool IsProgressLine(std::string_view line, bool all);

// Writes those lines of `config` as they stand into `backup`, which is replaced in one step.
Status BackUpProgress(FileSystem& files, const std::string& config, const std::string& backup,
                      bool all);

// Appends those lines of `backup` to `config` in one write; what stands there before stays, since
// the game takes the last line of a setting. A backup with more than kMostProgress bytes of them is
// none, and gives NoSpace.
Status RestoreProgress(FileSystem& files, const std::string& backup, const std::string& config,
                       bool all);
inline constexpr std::size_t kMostProgress = std::size_t{16} * 1024 * 1024;

// The note in the folder of the backups, which is made if need be. Nobody waits for it, so failures
// are silent. The folder ends in a backslash.
void WriteBackupsInfo(FileSystem& files, const std::string& folder);

}  // namespace zentar
