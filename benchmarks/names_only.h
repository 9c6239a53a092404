// A folder that tells its files' names, in an order that is always the same, and no more.
#pragma once

#include <string>
#include <vector>

#include "benchmarks/posix_file_system.h"

namespace zentar::benchmarks {

class NamesOnly : public PosixFileSystem {
  public:
    std::vector<std::string> names;

    Status Enumerate(const std::string& /*folder*/, const EntryVisitor& visit) override {
        for (const std::string& name : names) {
            visit({.name = name, .info = {.length = 1}});
        }
        return {};
    }
};

}  // namespace zentar::benchmarks
