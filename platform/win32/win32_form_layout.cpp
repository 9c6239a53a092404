// Places and sizes of a form and its controls.

#include <algorithm>

#include "platform/win32/units.h"
#include "platform/win32/win32_form.h"

namespace zentar {
namespace {

MONITORINFO MonitorOf(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    return monitor;
}

RECT WorkArea(HWND window) { return MonitorOf(window).rcWork; }

LONG Width(const RECT& rect) { return rect.right - rect.left; }
LONG Height(const RECT& rect) { return rect.bottom - rect.top; }

SIZE Within(SIZE size, const RECT& area) {
    return {std::min(size.cx, Width(area)), std::min(size.cy, Height(area))};
}

// The middle of `over`, but inside the area.
RECT InTheMiddle(SIZE size, const RECT& over, const RECT& area) {
    const LONG left = over.left + (Width(over) - size.cx) / 2;
    const LONG top = over.top + (Height(over) - size.cy) / 2;
    const LONG x = std::clamp(left, area.left, area.right - size.cx);
    const LONG y = std::clamp(top, area.top, area.bottom - size.cy);
    return {x, y, x + size.cx, y + size.cy};
}

}  // namespace

// The whole window's size for that of its client area.
SIZE Win32Form::FrameSize(SIZE client) const {
    RECT rect{0, 0, client.cx, client.cy};
    AdjustWindowRectExForDpi(&rect, style_.style, menus_.HasBar(), style_.exStyle,
                             static_cast<UINT>(screenDpi_));
    return {Width(rect), Height(rect)};
}

void Win32Form::UseDpi(int screenDpi) {
    screenDpi_ = screenDpi;
    dpi_ = FittingDpi();
}

// On a small screen of a high resolution the controls are smaller than elsewhere, so that all of
// them can be seen and reached, but never smaller than designed.
int Win32Form::FittingDpi() const {
    const bool outer = table_.outerSize != Size{};
    const Size designed = outer ? table_.outerSize : table_.clientSize;
    const SIZE frame = outer ? SIZE{} : FrameSize({0, 0});
    const RECT area = WorkArea(window_.Get());
    const LONG across = (Width(area) - frame.cx) * kDesignDpi / std::max(designed.width, 1);
    const LONG down = (Height(area) - frame.cy) * kDesignDpi / std::max(designed.height, 1);
    const auto most = static_cast<int>(std::min(across, down));
    return std::min(screenDpi_, std::max(most, kDesignDpi));
}

SIZE Win32Form::DesignedSize() const {
    if (table_.outerSize != Size{}) {
        return {PixelsOfUnits(table_.outerSize.width, dpi_),
                PixelsOfUnits(table_.outerSize.height, dpi_)};
    }
    return FrameSize({PixelsOfUnits(table_.clientSize.width, dpi_),
                      PixelsOfUnits(table_.clientSize.height, dpi_)});
}

// On a small screen the window may be smaller than designed.
SIZE Win32Form::DesignedSizeOnScreen() const {
    return Within(DesignedSize(), WorkArea(window_.Get()));
}

// In the middle of the screen, or of the window below; or in a corner or all of the screen.
RECT Win32Form::FirstPlace(HWND over) const {
    if (table_.kind == FormKind::FullScreen) {
        return MonitorOf(over).rcMonitor;
    }
    const RECT area = WorkArea(over);
    if (table_.kind == FormKind::Companion) {
        const SIZE size = Within(DesignedSize(), area);
        return {area.right - size.cx, area.top, area.right, area.top + size.cy};
    }
    RECT middle = area;
    if (over != nullptr) {
        GetWindowRect(over, &middle);
    }
    return InTheMiddle(Within(DesignedSize(), area), middle, area);
}

void Win32Form::MoveWindowTo(const RECT& place) const {
    SetWindowPos(window_.Get(), nullptr, place.left, place.top, Width(place), Height(place),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void Win32Form::ApplyDpi() {
    // The controls still draw with the old fonts until each has its new one.
    const std::optional<Fonts> old = std::exchange(fonts_, Fonts(dpi_));
    ForEachMade([this](ControlWindow& control) {
        SendMessageW(control.Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(FontOf(control.Row())),
                     FALSE);
        control.OnDpi(dpi_);
    });
    tooltips_->SetDpi(dpi_);
    TakeIcons();
    Layout();
    ForEachMade([](ControlWindow& control) { control.OnLayout(); });
    RedrawWindow(window_.Get(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

HFONT Win32Form::FontOf(const ControlRow& row) const {
    if ((row.flags & Heading) != 0) {
        return fonts_->Heading();
    }
    return (row.flags & Monospaced) != 0 ? fonts_->Monospaced() : fonts_->Text();
}

std::vector<Rect> Win32Form::ComputePlaces() const {
    RECT client{};
    GetClientRect(window_.Get(), &client);
    std::vector<Rect> places = session_.layout(table_, rows_, {client.right, client.bottom}, dpi_);
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        const bool keepsTop = (rows_[row].anchors & AnchorBottom) == 0;
        if (tops_[row] && keepsTop) {
            places[row].top = PixelsOfTwips(*tops_[row], dpi_);
        }
    }
    return places;
}

void Win32Form::Layout() {
    std::vector<Rect> places = ComputePlaces();
    ForEachMade([&](ControlWindow& control) {
        const std::size_t row = IndexOf(control.Row());
        const Rect& place = places[row];
        // Most places stay: only the few that do not are worth a call of the system.
        if (places_[row] != place) {
            SetWindowPos(control.Handle(), nullptr, place.left, place.top, place.width,
                         place.height, SWP_NOZORDER | SWP_NOACTIVATE);
            control.OnLayout();
        }
    });
    places_ = std::move(places);
}

void Win32Form::MoveTop(const ControlRow& row, int twips) {
    const std::size_t index = IndexOf(row);
    tops_[index] = twips;
    rows_[index].rect.top = PixelsOfTwips(twips, kDesignDpi);
    Layout();
}

}  // namespace zentar
