#include "benchmarks/loop_counter.h"

#include <valgrind/callgrind.h>

#include <cstdio>

namespace zentar::benchmarks {

void LoopCounter::Count(const CountedLoop& loop, const std::function<void()>& run,
                        const std::function<bool()>& isDone) {
    CALLGRIND_START_INSTRUMENTATION;
    run();
    CALLGRIND_STOP_INSTRUMENTATION;
    CALLGRIND_DUMP_STATS_AT(loop.name.c_str());
    if (!isDone()) {
        std::fprintf(stderr, "%s: it did not do its work\n", loop.name.c_str());
        allDone_ = false;
    }
    std::printf("%s\t%s\t%s\t%llu\n", loop.name.c_str(), loop.input.c_str(), loop.unit.c_str(),
                static_cast<unsigned long long>(loop.units));
}

}  // namespace zentar::benchmarks
