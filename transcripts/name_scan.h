// Finding out who speaks in a console dump or log.
#pragma once

#include <string>
#include <vector>

#include "core/console_lines.h"

namespace zentar {

// The names of the first 24 speakers in the order in which they first speak, as game text. Reading
// stops at the 24th.
std::vector<std::string> ScanForNames(ConsoleLines& lines, bool quake3);

}  // namespace zentar
