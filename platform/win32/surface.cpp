#include "platform/win32/surface.h"

#include <uxtheme.h>

namespace zentar {
namespace {

int ColourIndex(Surface surface) {
    return surface == Surface::TabPage && IsAppThemed() ? COLOR_WINDOW : COLOR_BTNFACE;
}

}  // namespace

HBRUSH SurfaceBrush(Surface surface) { return GetSysColorBrush(ColourIndex(surface)); }

HBRUSH PaintOn(Surface surface, HDC context) {
    SetBkColor(context, GetSysColor(ColourIndex(surface)));
    return SurfaceBrush(surface);
}

}  // namespace zentar
