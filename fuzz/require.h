// What must hold whatever the input is.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace zentar::fuzz {

// Ends the program when it does not hold, which keeps the input.
inline void Require(bool holds, const char* what = "a check") {
    if (!holds) {
        std::fprintf(stderr, "differs: %s\n", what);
        std::abort();
    }
}

}  // namespace zentar::fuzz
