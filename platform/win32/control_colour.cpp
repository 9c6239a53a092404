#include "platform/win32/control_colour.h"

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

HBRUSH TextColours::Apply(HWND control, HDC context) const {
    SetBkColor(context, Rgb(background_));
    SetTextColor(context,
                 IsWindowEnabled(control) ? Rgb(foreground_) : GetSysColor(COLOR_GRAYTEXT));
    const auto* system = std::get_if<SystemColour>(&background_);
    return system != nullptr ? GetSysColorBrush(IndexOf(*system)) : brush_.Get();
}

}  // namespace zentar
