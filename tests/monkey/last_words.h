// Where a monkey is, for whoever wants to see it again: said when the program under test takes the
// test program down with it, or when somebody ends a run that hangs.
#pragma once

#include <cstdint>

namespace zentar::monkey {

struct Whereabouts {
    std::uint64_t seed = 0;
    long step = 0;
    const char* action = "";
    int control = 0;
};

Whereabouts& Here();

// From now on a crash, an abort and an end from outside say them.
void PromiseLastWords();

void SayWhereabouts();

}  // namespace zentar::monkey
