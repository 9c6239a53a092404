// What is known about the selected demo.
#pragma once

#include <cstdint>
#include <string>

#include "core/program_state.h"
#include "platform/file_system.h"

namespace zentar {

// Map, name and search term are game text (bytes), as they stand in the file.
struct DemoInfo {
    std::string Item;  // the entry, exactly as the list shows it; empty when none is selected
    std::string Path;
    std::string Extension;                         // of the file, in lower case: ".dm2", ".dm_48"
    std::string Map;                               // lower case, without folder and extension
    std::string Name;                              // the level's descriptive name; may be empty
    Q3Generation Generation = Q3Generation::None;  // Quake 3 only
    std::uint64_t SizeBytes = 0;
    FileTime Stamp = 0;
    std::string SearchTerm;   // Name, its blanks and hyphens turned into "+"
    bool NotADemo = false;    // has the extension, but not the content, of a demo of its game
    bool Unreadable = false;  // the file vanished, is locked, or the like; Map and Name are empty
};

}  // namespace zentar
