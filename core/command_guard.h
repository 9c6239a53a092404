// One command at a time: while one lets waiting messages run, the user may ask for more.
#pragma once

#include <functional>

namespace zentar {

class CommandGuard {
  public:
    // Runs the command, unless another one is under way.
    void Run(const std::function<void()>& command) {
        if (runs_) {
            return;
        }
        const Running running(runs_);
        command();
    }

  private:
    struct Running {
        explicit Running(bool& running) : runs(running) { runs = true; }
        ~Running() { runs = false; }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;
        bool& runs;
    };

    bool runs_ = false;
};

}  // namespace zentar
