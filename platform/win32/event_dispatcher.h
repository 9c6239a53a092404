// Every event procedure of the program runs through here.
//
// That keeps exceptions away from the system's window code, and knows whether a procedure is under
// way: what may run only outside of all others (closing a window, its activation) waits for that.
#pragma once

#include <functional>

namespace zentar {

class EventDispatcher {
  public:
    // Runs when the outermost procedure has returned.
    void SetOnIdle(std::function<void()> onIdle);
    // An empty procedure is none. The procedure may replace itself meanwhile.
    void Run(const std::function<void()>& procedure);
    bool Idle() const { return depth_ == 0; }

    // The time during which a modal window of the program runs its own message loop: the procedure
    // that showed it waits, and those of the modal window count from zero.
    class Modal {
      public:
        explicit Modal(EventDispatcher& dispatcher);
        Modal(const Modal&) = delete;
        Modal& operator=(const Modal&) = delete;
        ~Modal();

      private:
        EventDispatcher& dispatcher_;
        int outerDepth_;
    };

  private:
    std::function<void()> onIdle_;
    int depth_ = 0;
};

}  // namespace zentar
