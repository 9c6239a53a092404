// Files of coloured text, and the suggestion for their names.
//
// They carry the extension .ini, but hold rich text: RTF, as any rich text editor writes and reads
// it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "platform/rich_text.h"

namespace zentar {

// A text as a file name: the characters that no file name may hold become words in brackets.
std::string SuggestedFileName(std::string_view text);

// The characters and colours of a file; one that holds no RTF gives its bytes in black, as the game
// shows them. A file of more than a megabyte is no design, and gives NoSpace.
Result<std::vector<ColouredRun>> LoadColouredText(FileSystem& files, const std::string& path);

// Replaces the file in one step.
Status SaveColouredText(FileSystem& files, const std::string& path,
                        const std::vector<ColouredRun>& runs);

}  // namespace zentar
