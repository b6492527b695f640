#include "platform/win32/etichetta_win32.h"

#include <algorithm>

namespace telva {

void EtichettaADestraWin32::Disegna(const DRAWITEMSTRUCT &d) const {
    constexpr UINT kModo = DT_WORDBREAK | DT_NOPREFIX | DT_RIGHT;
    const std::wstring testo = ALargo(Testo());
    const int lunghezza = static_cast<int>(testo.size());
    const HGDIOBJ prima = SelectObject(d.hDC, finestra_.Font(StileFont::Normale));
    RECT r = d.rcItem, dentro = r;
    FillRect(d.hDC, &r, GetSysColorBrush(COLOR_BTNFACE));
    SetBkMode(d.hDC, TRANSPARENT);
    SetTextColor(d.hDC, GetSysColor(COLOR_BTNTEXT));
    DrawTextW(d.hDC, testo.c_str(), lunghezza, &dentro, kModo | DT_CALCRECT);
    r.top += std::max<LONG>((r.bottom - r.top - (dentro.bottom - dentro.top)) / 2, 0);
    DrawTextW(d.hDC, testo.c_str(), lunghezza, &r, kModo);
    SelectObject(d.hDC, prima);
}

} // namespace telva
