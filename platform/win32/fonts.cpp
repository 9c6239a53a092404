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
    LOGFONTW font = metrics.lfMessageFont;
    text_.Reset(CreateFontIndirectW(&font));
    font.lfHeight = MulDiv(font.lfHeight, 3, 2);
    font.lfWeight = FW_SEMIBOLD;
    heading_.Reset(CreateFontIndirectW(&font));
}

}  // namespace zentar
