// The best of some runs.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>

namespace zentar::benchmarks {

// `prepare` runs before each run and does not count.
inline double BestMilliseconds(const std::function<void()>& work, int runs = 9,
                               const std::function<void()>& prepare = {}) {
    double best = 1e300;
    for (int run = 0; run < runs; ++run) {
        if (prepare) {
            prepare();
        }
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> took =
            std::chrono::steady_clock::now() - start;
        best = std::min(best, took.count());
    }
    return best;
}

}  // namespace zentar::benchmarks
