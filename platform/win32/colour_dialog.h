// The system's dialog in which the user picks a colour.
#pragma once

#include <windows.h>

#include <array>
#include <optional>

#include "platform/colour.h"
#include "platform/win32/win32_session.h"

namespace zentar {

class ColourDialog {
  public:
    explicit ColourDialog(Win32Session& session);

    // As WindowServices::ChooseColour says. The colours that the user mixed before are offered
    // again.
    std::optional<ColourRef> Show(ColourRef shown);

  private:
    Win32Session& session_;
    std::array<COLORREF, 16> mixed_{};
};

}  // namespace zentar
