#include "platform/win32/control_colour.h"

#include <cstdlib>
#include <utility>

namespace zentar {
namespace {

int IndexOf(SystemColour colour) {
    switch (colour) {
        case SystemColour::Window:
            return COLOR_WINDOW;
        case SystemColour::WindowText:
            return COLOR_WINDOWTEXT;
        case SystemColour::ButtonFace:
            break;
    }
    return COLOR_BTNFACE;
}

int Brightness(COLORREF colour) {
    return (299 * GetRValue(colour) + 587 * GetGValue(colour) + 114 * GetBValue(colour)) / 1000;
}

}  // namespace

COLORREF Rgb(Colour colour) {
    const auto* system = std::get_if<SystemColour>(&colour);
    return system != nullptr ? GetSysColor(IndexOf(*system)) : std::get<ColourRef>(colour);
}

bool TextColours::SetForeground(Colour colour) {
    return std::exchange(foreground_, colour) != colour;
}

bool TextColours::SetBackground(Colour colour) {
    if (std::exchange(background_, colour) == colour) {
        return false;
    }
    const auto* own = std::get_if<ColourRef>(&colour);
    brush_.Reset(own != nullptr ? CreateSolidBrush(*own) : nullptr);
    return true;
}

// The system's colour for text is meant for the system's background. On another one it may be lost,
// such as white text on yellow; then the text is black.
COLORREF TextColours::ShownForeground() const {
    const COLORREF text = Rgb(foreground_);
    const bool meantForEachOther = foreground_.index() == background_.index();
    if (meantForEachOther || !std::holds_alternative<SystemColour>(foreground_)) {
        return text;
    }
    const int behind = Brightness(Rgb(background_));
    return std::abs(Brightness(text) - behind) < behind ? COLORREF{kBlack} : text;
}

HBRUSH TextColours::Apply(HWND control, HDC context) const {
    SetBkColor(context, Rgb(background_));
    SetTextColor(context,
                 IsWindowEnabled(control) ? ShownForeground() : GetSysColor(COLOR_GRAYTEXT));
    const auto* system = std::get_if<SystemColour>(&background_);
    return system != nullptr ? GetSysColorBrush(IndexOf(*system)) : brush_.Get();
}

}  // namespace zentar
