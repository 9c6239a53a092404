// The fonts of a window at its dpi: the user's message font, a larger one for headings, and one of
// its size whose characters are all of one width.
#pragma once

#include "platform/win32/win32_handle.h"

namespace zentar {

class Fonts {
  public:
    explicit Fonts(int dpi);

    HFONT Text() const { return text_.Get(); }
    HFONT Heading() const { return heading_.Get(); }
    HFONT Monospaced() const { return monospaced_.Get(); }

  private:
    UniqueFont text_;
    UniqueFont heading_;
    UniqueFont monospaced_;
};

}  // namespace zentar
