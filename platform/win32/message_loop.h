// Takes the window messages off the queue and hands them to the windows.
#pragma once

#include <windows.h>

#include "platform/win32/form_registry.h"

namespace zentar {

class MessageLoop {
  public:
    explicit MessageLoop(const FormRegistry& forms) : forms_(forms) {}

    // Until the main window has gone; gives the program's exit code.
    int Run() const;
    // For a modal window: as long as `goOn` holds, or until the program ends.
    void RunWhile(const bool& goOn) const;
    // What is waiting now. The end of the program stays in the queue.
    void RunPending() const;

  private:
    void Handle(MSG& message) const;

    const FormRegistry& forms_;
};

}  // namespace zentar
