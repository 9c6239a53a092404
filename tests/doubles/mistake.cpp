#include "tests/doubles/mistake.h"

#include <cstdio>
#include <cstdlib>

namespace zentar {

void Mistake(const std::string& what) {
    std::fprintf(stderr, "A mistake of the program: %s\n", what.c_str());
    std::fflush(stderr);
    std::abort();
}

}  // namespace zentar
