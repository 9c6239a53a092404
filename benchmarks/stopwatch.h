// The best of some runs.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>

namespace zentar::benchmarks {

inline double BestMilliseconds(const std::function<void()>& work, int runs = 9) {
    double best = 1e300;
    for (int run = 0; run < runs; ++run) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> took =
            std::chrono::steady_clock::now() - start;
        best = std::min(best, took.count());
    }
    return best;
}

}  // namespace zentar::benchmarks
