// A text that the user only reads.
#pragma once

#include "platform/win32/control_window.h"

namespace zentar {

class Win32Label : public ControlBase<Label> {
  public:
    explicit Win32Label(const ControlPlace& place);
};

}  // namespace zentar
