// An option button as visual styles draw it, but with a caption in another colour.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include "platform/controls.h"

namespace zentar {

inline constexpr COLORREF kRedCaption = RGB(255, 0, 0);

// Draws the button over its surface, in the state that the notification tells; false when there is
// no visual style to draw it with.
bool DrawThemedOption(HWND button, const NMCUSTOMDRAW& drawing, HBRUSH behind,
                      CaptionColour colour);

}  // namespace zentar
