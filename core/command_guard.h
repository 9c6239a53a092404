// One command at a time: while one lets waiting messages run, the user may ask for more.
#pragma once

#include <functional>

#include "core/scoped_flag.h"

namespace zentar {

class CommandGuard {
  public:
    // Runs the command, unless another one is under way.
    void Run(const std::function<void()>& command) {
        if (runs_) {
            return;
        }
        const ScopedFlag running(runs_);
        command();
    }

  private:
    bool runs_ = false;
};

}  // namespace zentar
