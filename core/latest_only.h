// A procedure that lets waiting messages run, and is asked for again by them.
#pragma once

#include <functional>
#include <utility>

#include "core/scoped_flag.h"

namespace zentar {

// Asked for while it runs, the procedure runs once more when it is through, however often it was
// asked, and never inside itself: a key that is held down would else nest it deeper and deeper.
class LatestOnly {
  public:
    void Run(const std::function<void()>& procedure) {
        again_ = true;
        if (runs_) {
            return;
        }
        const ScopedFlag running(runs_);
        while (std::exchange(again_, false)) {
            procedure();
        }
    }
    bool Runs() const { return runs_; }
    // What the procedure does now has been overtaken.
    bool AskedAgain() const { return again_; }

  private:
    bool runs_ = false;
    bool again_ = false;
};

}  // namespace zentar
