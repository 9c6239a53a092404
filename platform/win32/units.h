// The control table's units, and twips, in pixels of a window's dpi.
#pragma once

#include <windows.h>

namespace zentar {

inline constexpr int kDesignDpi = 96;
inline constexpr int kTwipsPerUnit = 15;
// From this height on, in units, a label or button has room for a second line.
inline constexpr int kTwoLines = 28;

inline int PixelsOfUnits(int units, int dpi) { return MulDiv(units, dpi, kDesignDpi); }
inline int PixelsOfTwips(int twips, int dpi) {
    return MulDiv(twips, dpi, kDesignDpi * kTwipsPerUnit);
}

}  // namespace zentar
