#include "platform/win32/font_win32.h"

#include "platform/win32/schermo_win32.h"

namespace telva {

FontWin32::FontWin32(double dpi) {
    NONCLIENTMETRICSW misure{};
    misure.cbSize = sizeof misure;
    LOGFONTW tipo{};
    if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof misure, &misure, 0))
        tipo = misure.lfMessageFont;
    else
        GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof tipo, &tipo);
    // The system tells the size for its own DPI; this window may stand on another monitor.
    tipo.lfHeight = MulDiv(tipo.lfHeight, static_cast<int>(dpi), static_cast<int>(DpiDi(nullptr)));
    normale_ = Richiesto(CreateFontIndirectW(&tipo), "CreateFontIndirect");
    tipo.lfHeight = MulDiv(tipo.lfHeight, 3, 4);
    piccolo_ = Richiesto(CreateFontIndirectW(&tipo), "CreateFontIndirect");
}

FontWin32::~FontWin32() {
    if (normale_) DeleteObject(normale_);
    if (piccolo_) DeleteObject(piccolo_);
}

FontWin32 &FontWin32::operator=(FontWin32 &&altro) noexcept {
    std::swap(normale_, altro.normale_);
    std::swap(piccolo_, altro.piccolo_);
    return *this;
}

} // namespace telva
