// The loops of which the program's speed is made, on inputs that are always the same.
#pragma once

#include <string>

#include "benchmarks/loop_counter.h"

namespace zentar::benchmarks {

// `folder` takes the files that they read, made where they are missing.
void CountDemoLoops(LoopCounter& counter, const std::string& folder);
void CountFileLoops(LoopCounter& counter, const std::string& folder);
void CountImageLoops(LoopCounter& counter);
void CountLogLoops(LoopCounter& counter, const std::string& folder);
void CountTextLoops(LoopCounter& counter);

}  // namespace zentar::benchmarks
