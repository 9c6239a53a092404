// Which event procedures are under way, and what waits for them to return.
#pragma once

#include <functional>
#include <vector>

namespace zentar {

// One for all windows of a program. A modal window starts a level of its own: what waits there
// waits for the procedures of that window only.
class ProcedureStack {
  public:
    // Runs an event procedure, then what waited for it if it was the outermost of its level.
    void Run(const std::function<void()>& procedure);
    // Runs `later` once no procedure of the level is under way, which may be at once.
    void WhenIdle(int level, std::function<void()> later);

    // Starts the level of a modal window and gives it; 0 is the level of all other windows.
    int EnterModal();
    void LeaveModal();

    bool Idle() const { return depth_ == 0; }

  private:
    struct Waiting {
        int level = 0;
        std::function<void()> later;
    };
    int Level() const { return static_cast<int>(modals_.size()); }
    void RunWaiting();

    int depth_ = 0;
    std::vector<int> modals_;  // the depth at which each modal window was shown
    std::vector<Waiting> waiting_;
};

}  // namespace zentar
