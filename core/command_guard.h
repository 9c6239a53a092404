// One command at a time: while one lets waiting messages run, the user may ask for more.
#pragma once

#include <functional>
#include <utility>

#include "core/scoped_flag.h"
#include "platform/controls.h"

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

// A click that runs the command under the guard.
inline ControlEvents GuardedClick(CommandGuard& guard, std::function<void()> command) {
    ControlEvents events;
    events.click = [&guard, command = std::move(command)] { guard.Run(command); };
    return events;
}

}  // namespace zentar
