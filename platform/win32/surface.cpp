#include "platform/win32/surface.h"

#include <uxtheme.h>

namespace zentar {
namespace {

bool LooksLikeAWindow(Surface surface) { return surface == Surface::TabPage && IsAppThemed(); }

}  // namespace

HBRUSH SurfaceBrush(Surface surface) {
    return GetSysColorBrush(LooksLikeAWindow(surface) ? COLOR_WINDOW : COLOR_BTNFACE);
}

// The system hands out contexts for black text, which not every colour scheme lets one read.
HBRUSH PaintOn(Surface surface, HDC context) {
    const bool window = LooksLikeAWindow(surface);
    SetBkColor(context, GetSysColor(window ? COLOR_WINDOW : COLOR_BTNFACE));
    SetTextColor(context, GetSysColor(window ? COLOR_WINDOWTEXT : COLOR_BTNTEXT));
    return SurfaceBrush(surface);
}

}  // namespace zentar
