// What a user finds after a run in which something failed, in words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/fault/command_sweep.h"

namespace zentar {

// Whether only what the program has not finished ever stands under that name. The next command of
// the kind writes over it or takes it away.
bool IsUnfinished(const std::string& path);

// The files of which the user should have been told and was not.
std::vector<std::string> UnsaidWithoutAReason(const CommandSweep& sweep, const FaultedRun& run);

// "done", "told, nothing changed", "silent, done but for `a.tga`: seen in the list"; behind it what
// is left over.
std::string OutcomeOf(const CommandSweep& sweep, const FaultedRun& run);

// "C:\Games\a.tga" -> "a.tga", "C:\Games\" -> "Games\".
std::string LastNameOf(const std::string& path);

template <typename Words>
std::string Joined(const Words& words, std::string_view separator) {
    std::string joined;
    for (const std::string& word : words) {
        joined.append(joined.empty() ? "" : separator).append(word);
    }
    return joined;
}

}  // namespace zentar
