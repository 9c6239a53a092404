// The hourglass pointer, for as long as a piece of work lasts.
#pragma once

#include "platform/window_services.h"

namespace zentar {

class Hourglass {
  public:
    explicit Hourglass(WindowServices& windows)
        : windows_(windows), before_(windows.SetPointer(Pointer::Hourglass)) {}
    // Another piece of work may be the one during which this one was done.
    ~Hourglass() { windows_.SetPointer(before_); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

  private:
    WindowServices& windows_;
    Pointer before_;
};

}  // namespace zentar
