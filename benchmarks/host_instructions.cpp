// Runs the loops of which the program's speed is made, once each, for Callgrind to count their
// instructions: host_instructions <folder>
//
// By itself it measures nothing; count_instructions does, which runs it.
#include <cstdio>
#include <filesystem>
#include <string>

#include "benchmarks/counted_loops.h"

int main(int argc, char** argv) {
    using namespace zentar::benchmarks;
    const std::string folder = argc > 1 ? argv[1] : "benchmark_data";
    std::filesystem::create_directories(folder);
    LoopCounter counter;
    CountDemoLoops(counter, folder);
    CountFileLoops(counter, folder);
    CountImageLoops(counter);
    CountLogLoops(counter, folder);
    CountTextLoops(counter);
    return counter.AllDone() ? 0 : 1;
}
