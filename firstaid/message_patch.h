// Silencing a message of a game by wiping it out of the game's executable.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace zentar {

// Finds the first place of each text and puts zeros over it, from the byte before the text to the
// byte behind it (its line feed or its end). A text that is not there, or stands at the very
// beginning, changes nothing. The rest of the file stays as it is, to the byte.
Status PatchGameMessages(FileSystem& files, const std::string& executable,
                         std::span<const std::string_view> texts);

}  // namespace zentar
