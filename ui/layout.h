// From a window's table, its size and the screen's resolution to the place of every control.
#pragma once

#include <span>
#include <vector>

#include "platform/form_table.h"

namespace zentar {

// A length of the control table in pixels.
int ScaleToDpi(int units, int dpi);

// The height of a tab control's row of tabs and the margin around its pages, in units.
inline constexpr int kTabHeader = 26;
inline constexpr int kTabInset = 4;

// A LayoutFunction; see there.
std::vector<Rect> LayoutControls(const FormTable& table, std::span<const ControlRow> rows,
                                 Size client, int dpi);

}  // namespace zentar
