// Prints what Google Benchmark measured, and in the end the best time of each benchmark against its
// yardstick's.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace zentar::benchmarks {

class RatioReporter : public benchmark::ConsoleReporter {
  public:
    RatioReporter() : ConsoleReporter(OO_Tabular) {}
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration) {
                Note(run.run_name.function_name, run.GetAdjustedRealTime());
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }
    void PrintRatio(const std::string& what, const std::string& ours, const std::string& yardstick,
                    double target) const {
        const double mine = best_.at(ours);
        const double other = best_.at(yardstick);
        std::printf("%-45s %8.2f ms %8.2f ms  ratio %.2f (target %.1f)\n", what.c_str(), mine,
                    other, mine / other, target);
    }

  private:
    void Note(const std::string& name, double time) {
        const auto known = best_.find(name);
        if (known == best_.end() || time < known->second) {
            best_[name] = time;
        }
    }
    std::map<std::string, double> best_;
};

}  // namespace zentar::benchmarks
