// What lies behind a control: the window's face, or a tab page, which visual styles draw lighter.
#pragma once

#include <windows.h>

#include <cstdint>

namespace zentar {

enum class Surface : std::uint8_t { WindowFace, TabPage };

// A brush of the system's: never to be deleted.
HBRUSH SurfaceBrush(Surface surface);
// Prepares a control's device context for text on the surface, in the colour that the user chose
// for it; gives the brush behind it.
HBRUSH PaintOn(Surface surface, HDC context);

}  // namespace zentar
