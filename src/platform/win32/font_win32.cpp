#include "platform/win32/font_win32.h"

#include "platform/win32/schermo_win32.h"

namespace telva {

LOGFONTW TipoMessaggi(double dpi) {
    NONCLIENTMETRICSW misure{};
    misure.cbSize = sizeof misure;
    LOGFONTW tipo{};
    if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof misure, &misure, 0))
        tipo = misure.lfMessageFont;
    else
        GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof tipo, &tipo);
    // The system tells the size for its own DPI; this window may stand on another monitor.
    tipo.lfHeight = MulDiv(tipo.lfHeight, static_cast<int>(dpi), static_cast<int>(DpiDi(nullptr)));
    return tipo;
}

FontWin32::FontWin32(double dpi) {
    const LOGFONTW tipo = TipoMessaggi(dpi);
    const auto crea = [](const LOGFONTW &come) {
        return Richiesto(CreateFontIndirectW(&come), "CreateFontIndirect");
    };
    LOGFONTW piccolo = tipo, grassetto = tipo;
    piccolo.lfHeight = MulDiv(tipo.lfHeight, 3, 4);
    grassetto.lfWeight = FW_BOLD;
    font_ = {crea(tipo), crea(piccolo), crea(grassetto)};
}

FontWin32::~FontWin32() {
    for (const HFONT font : font_)
        if (font) DeleteObject(font);
}

FontWin32 &FontWin32::operator=(FontWin32 &&altro) noexcept {
    std::swap(font_, altro.font_);
    return *this;
}

} // namespace telva
