// What the consoles of the three games say during a match.
#pragma once

#include <string_view>

namespace zentar::samples {

// Quake 1, -condebug: golden names, and Ctrl-A before speech.
std::string_view Quake1Log();
// Quake 2, condump: the team speaks in parentheses; a name may hold what HTML would take for a tag.
std::string_view Quake2Condump();
// Quake 3, logfile 1: coloured names, speech behind markers, reports of the server.
std::string_view Quake3Log();

}  // namespace zentar::samples
