#include "platform/win32/colour_button.h"

#include "platform/win32/units.h"
#include "platform/win32/win32_handle.h"

namespace zentar {
namespace {

// Between the button's edge and its face, for the border that visual styles draw.
constexpr int kMargin = 5;

}  // namespace

// The system draws a button without a caption, which the colour then covers. With visual styles it
// says when.
LRESULT Win32ColourButton::OnNotify(const NMHDR& header) {
    if (header.code != static_cast<UINT>(NM_CUSTOMDRAW)) {
        return CDRF_DODEFAULT;
    }
    const auto& drawing = reinterpret_cast<const NMCUSTOMDRAW&>(header);
    if (drawing.dwDrawStage == CDDS_PREPAINT) {
        return CDRF_NOTIFYPOSTPAINT;
    }
    if (drawing.dwDrawStage == CDDS_POSTPAINT) {
        DrawFace(drawing.hdc);
        drawn_ = true;
    }
    return CDRF_DODEFAULT;
}

// Without them it says nothing, and draws at once whatever changes how the button looks.
std::optional<LRESULT> Win32ColourButton::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
        case WM_ENABLE:
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_UPDATEUISTATE:
        case BM_SETSTATE:
        case BM_SETSTYLE:
            break;
        default:
            return Win32Button::OnMessage(message, wParam, lParam);
    }
    drawn_ = false;
    std::optional<LRESULT> answer = Win32Button::OnMessage(message, wParam, lParam);
    if (!answer) {
        answer = PassOn(message, wParam, lParam);
    }
    if (!drawn_ && message == WM_PAINT) {
        const WindowContext context(Handle());
        DrawFace(context.Get());
    } else if (!drawn_) {
        Redraw(true);
    }
    return answer;
}

void Win32ColourButton::DrawFace(HDC context) const {
    const int margin = PixelsOfUnits(kMargin, dpi_);
    RECT face{};
    GetClientRect(Handle(), &face);
    InflateRect(&face, -margin, -margin);
    auto* const brush = static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
    const COLORREF former = SetDCBrushColor(context, Row().colour);
    FillRect(context, &face, brush);
    SetDCBrushColor(context, GetSysColor(COLOR_BTNSHADOW));
    FrameRect(context, &face, brush);
    SetDCBrushColor(context, former);
    const bool hidesFocus = (Send(WM_QUERYUISTATE) & UISF_HIDEFOCUS) != 0;
    if (GetFocus() == Handle() && !hidesFocus) {
        InflateRect(&face, 2, 2);
        SetTextColor(context, RGB(0, 0, 0));
        SetBkColor(context, RGB(255, 255, 255));
        DrawFocusRect(context, &face);
    }
}

}  // namespace zentar
