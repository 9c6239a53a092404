// Counts the instructions of loops: Valgrind's Callgrind counts what runs between its marks, which
// is the same in every run, however busy the machine is.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace zentar::benchmarks {

struct CountedLoop {
    std::string name;   // also that of its profile
    std::string input;  // in words
    std::string unit;   // of what the instructions are shared among
    std::uint64_t units = 0;
};

class LoopCounter {
  public:
    // Runs a loop, and then asks whether it did its work, which is not counted; prints its line of
    // the table, still without its instructions, which Callgrind writes under the loop's name.
    void Count(const CountedLoop& loop, const std::function<void()>& run,
               const std::function<bool()>& isDone);
    // Whether each loop did its work.
    bool AllDone() const { return allDone_; }

  private:
    bool allDone_ = true;
};

}  // namespace zentar::benchmarks
