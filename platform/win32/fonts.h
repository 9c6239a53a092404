// The fonts of a window at its dpi: the user's message font, and a larger one for headings.
#pragma once

#include "platform/win32/win32_handle.h"

namespace zentar {

class Fonts {
  public:
    explicit Fonts(int dpi);

    HFONT Text() const { return text_.Get(); }
    HFONT Heading() const { return heading_.Get(); }

  private:
    UniqueFont text_;
    UniqueFont heading_;
};

}  // namespace zentar
