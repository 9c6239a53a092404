#include "platform/win32/fonts.h"

namespace zentar {

Fonts::Fonts(int dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (!SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0,
                                    static_cast<UINT>(dpi))) {
        // Without a font the controls draw in the system's old one.
        return;
    }
    LOGFONTW monospaced{};
    monospaced.lfHeight = metrics.lfMessageFont.lfHeight;
    monospaced.lfWeight = FW_NORMAL;
    monospaced.lfCharSet = DEFAULT_CHARSET;
    monospaced.lfQuality = metrics.lfMessageFont.lfQuality;
    monospaced.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    wcscpy(monospaced.lfFaceName, L"Courier New");
    monospaced_.Reset(CreateFontIndirectW(&monospaced));
    LOGFONTW font = metrics.lfMessageFont;
    text_.Reset(CreateFontIndirectW(&font));
    font.lfHeight = MulDiv(font.lfHeight, 3, 2);
    font.lfWeight = FW_SEMIBOLD;
    heading_.Reset(CreateFontIndirectW(&font));
}

}  // namespace zentar
