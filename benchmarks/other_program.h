// A program that is run as a yardstick.
#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace zentar::benchmarks {

// Runs it with what it prints going into the file, in the plainest locale, and waits for its end.
// Any exit code but 0 is the benchmark's error.
void RunProgram(benchmark::State& state, const std::vector<std::string>& command,
                const std::string& output);

}  // namespace zentar::benchmarks
