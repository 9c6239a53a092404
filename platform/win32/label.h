// A text that the user only reads.
#pragma once

#include "platform/win32/control_window.h"

namespace zentar {

class Win32Label : public ControlBase<Label> {
  public:
    using ControlBase::ControlBase;

  protected:
    ControlStyle Style() const override;
};

}  // namespace zentar
