// A coloured text that is as much work as one of its length can be.
#pragma once

#include <string>
#include <vector>

#include "q3tools/colour_codes.h"

namespace zentar::benchmarks {

// Each character in another colour than the one before.
inline std::vector<ColouredRun> MotleyText(int characters) {
    constexpr ColourRef kColours[] = {kQ3Black, kQ3Red, kQ3Green, kQ3Yellow};
    std::vector<ColouredRun> runs;
    for (int i = 0; i < characters; ++i) {
        runs.push_back({std::string(1, static_cast<char>('a' + i % 26)), kColours[i % 4]});
    }
    return runs;
}

}  // namespace zentar::benchmarks
