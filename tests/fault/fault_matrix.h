// The table of what becomes of each command when a call of the file system fails in it.
#pragma once

#include <string>

#include "tests/fault/command_sweep.h"

namespace zentar {

struct FaultMatrix {
    std::string text;  // in Markdown, with a line feed behind each line
    int filesLost = 0;
};

// Runs all commands with every failure, and with the program killed at every call.
FaultMatrix MakeFaultMatrix();

// "Rename C:\a\b.x -> C:\a\c.x" as its kind, "Rename", and its target, "b.x -> c.x". A second path
// in another folder keeps that folder's name.
struct CallInWords {
    std::string kind;
    std::string target;
};
CallInWords InWords(const std::string& call);

}  // namespace zentar
