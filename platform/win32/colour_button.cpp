#include "platform/win32/colour_button.h"

#include "platform/win32/units.h"

namespace zentar {
namespace {

// Between the button's edge and its face, for the border that visual styles draw.
constexpr int kMargin = 5;

}  // namespace

// The system draws a button without a caption, which the colour then covers.
LRESULT Win32ColourButton::OnNotify(const NMHDR& header) {
    if (header.code != static_cast<UINT>(NM_CUSTOMDRAW)) {
        return CDRF_DODEFAULT;
    }
    const auto& drawing = reinterpret_cast<const NMCUSTOMDRAW&>(header);
    if (drawing.dwDrawStage == CDDS_PREPAINT) {
        return CDRF_NOTIFYPOSTPAINT;
    }
    if (drawing.dwDrawStage == CDDS_POSTPAINT) {
        DrawFace(drawing);
    }
    return CDRF_DODEFAULT;
}

void Win32ColourButton::DrawFace(const NMCUSTOMDRAW& drawing) const {
    const HDC context = drawing.hdc;
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
