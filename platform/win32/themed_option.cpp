#include "platform/win32/themed_option.h"

#include <uxtheme.h>
#include <vssym32.h>

#include <string>

#include "platform/win32/theme_handle.h"
#include "platform/win32/window_text.h"

namespace zentar {
namespace {

int StateOf(HWND button, UINT state) {
    const bool checked = SendMessageW(button, BM_GETCHECK, 0, 0) == BST_CHECKED;
    if ((state & CDIS_SELECTED) != 0) {
        return checked ? RBS_CHECKEDPRESSED : RBS_UNCHECKEDPRESSED;
    }
    if ((state & CDIS_HOT) != 0) {
        return checked ? RBS_CHECKEDHOT : RBS_UNCHECKEDHOT;
    }
    return checked ? RBS_CHECKEDNORMAL : RBS_UNCHECKEDNORMAL;
}

// Half a digit, as the system itself leaves it between mark and caption.
LONG Gap(HDC context) {
    INT width = 0;
    GetCharWidth32W(context, L'0', L'0', &width);
    return width / 2;
}

UINT CaptionFormat(HWND button) {
    const auto uiState = static_cast<UINT>(SendMessageW(button, WM_QUERYUISTATE, 0, 0));
    return DT_LEFT | DT_SINGLELINE | ((uiState & UISF_HIDEACCEL) != 0 ? DT_HIDEPREFIX : 0);
}

bool ShowsFocus(HWND button) {
    return GetFocus() == button &&
           (SendMessageW(button, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS) == 0;
}

// A pixel to the right, and a pixel less in the height, is how the system places captions.
void DrawCaption(HWND button, HDC context, const RECT& room, CaptionColour colour) {
    const std::wstring caption = WindowText(button);
    const int length = static_cast<int>(caption.size());
    const UINT format = CaptionFormat(button);
    RECT text{};
    DrawTextW(context, caption.c_str(), length, &text, format | DT_CALCRECT);
    OffsetRect(&text, room.left + 1, room.top + (room.bottom - room.top - 1 - text.bottom) / 2);
    if (colour == CaptionColour::Red) {
        SetBkMode(context, TRANSPARENT);
        SetTextColor(context, kRedCaption);
        DrawTextW(context, caption.c_str(), length, &text, format);
    }
    if (ShowsFocus(button)) {
        InflateRect(&text, 1, 0);
        // Drawn by turning pixels over, which takes these two colours.
        SetTextColor(context, RGB(0, 0, 0));
        SetBkColor(context, RGB(255, 255, 255));
        DrawFocusRect(context, &text);
    }
}

}  // namespace

bool DrawThemedOption(HWND button, const NMCUSTOMDRAW& drawing, HBRUSH behind,
                      CaptionColour colour) {
    const UniqueTheme theme(OpenThemeData(button, VSCLASS_BUTTON));
    const HDC context = drawing.hdc;
    const int state = StateOf(button, drawing.uItemState);
    SIZE mark{};
    if (!theme || FAILED(GetThemePartSize(theme.Get(), context, BP_RADIOBUTTON, state, nullptr,
                                          TS_DRAW, &mark))) {
        return false;
    }
    RECT room = drawing.rc;
    const LONG top = room.top + (room.bottom - room.top - mark.cy) / 2;
    const RECT place{room.left, top, room.left + mark.cx, top + mark.cy};
    // The mark, which is not all opaque, may have been drawn already.
    FillRect(context, &drawing.rc, behind);
    DrawThemeBackground(theme.Get(), context, BP_RADIOBUTTON, state, &place, nullptr);
    auto* const font = reinterpret_cast<HFONT>(SendMessageW(button, WM_GETFONT, 0, 0));
    const int saved = SaveDC(context);
    SelectObject(context, font);
    room.left = place.right + Gap(context);
    DrawCaption(button, context, room, colour);
    RestoreDC(context, saved);
    return true;
}

}  // namespace zentar
