// The hourglass pointer, for as long as a piece of work lasts.
#pragma once

#include "platform/window_services.h"

namespace zentar {

class Hourglass {
  public:
    explicit Hourglass(WindowServices& windows) : windows_(windows) {
        windows_.SetPointer(Pointer::Hourglass);
    }
    ~Hourglass() { windows_.SetPointer(Pointer::Default); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

  private:
    WindowServices& windows_;
};

}  // namespace zentar
