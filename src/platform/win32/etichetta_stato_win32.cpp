#include "platform/win32/etichetta_stato_win32.h"

#include "platform/mostrabile.h"

#include <algorithm>

namespace telva {

EtichettaStatoWin32::Righe EtichettaStatoWin32::Dividi() const {
    const std::string &tutto = controllo_.Caption();
    const std::size_t fine = std::min(tutto.find("\r\n"), tutto.size());
    const std::size_t forte = std::min(controllo_.Evidenza().size(), fine);
    Righe r;
    r.evidenza = ALargo(tutto.substr(0, forte));
    r.prima = ALargo(tutto.substr(forte, fine - forte));
    if (fine < tutto.size()) r.seconda = ALargo(tutto.substr(fine + 2));
    return r;
}

int EtichettaStatoWin32::Larghezza(HDC dc, StileFont stile, const std::wstring &testo) const {
    const HGDIOBJ prima = SelectObject(dc, finestra_.Font(stile));
    SIZE misura{};
    GetTextExtentPoint32W(dc, testo.c_str(), static_cast<int>(testo.size()), &misura);
    SelectObject(dc, prima);
    return misura.cx;
}

void EtichettaStatoWin32::Disegna(const DRAWITEMSTRUCT &d) const {
    const Righe righe = Dividi();
    RECT r = d.rcItem;
    FillRect(d.hDC, &r, GetSysColorBrush(COLOR_BTNFACE));
    SetBkMode(d.hDC, TRANSPARENT);
    SetTextColor(d.hDC, GetSysColor(COLOR_BTNTEXT));
    const auto scrivi = [&](StileFont stile, const std::wstring &tutto, RECT dove) {
        constexpr UINT kModo = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;
        const HGDIOBJ prima = SelectObject(d.hDC, finestra_.Font(stile));
        const auto testo = InUnaRiga(d.hDC, tutto, static_cast<int>(dove.right - dove.left));
        DrawTextW(d.hDC, testo.c_str(), static_cast<int>(testo.size()), &dove, kModo);
        SelectObject(d.hDC, prima);
    };
    const LONG mezzo = (r.top + r.bottom) / 2;
    RECT sopra{r.left, r.top, r.right, mezzo};
    scrivi(StileFont::Grassetto, righe.evidenza, sopra);
    sopra.left += Larghezza(d.hDC, StileFont::Grassetto, righe.evidenza);
    if (sopra.left < sopra.right) scrivi(StileFont::Normale, righe.prima, sopra);
    scrivi(StileFont::Normale, righe.seconda, {r.left, mezzo, r.right, r.bottom});
}

// Readers find the text on the native label; what is painted comes from the control.
void EtichettaStatoWin32::Mostra(Campo campo) {
    if (campo != Campo::Didascalia) return;
    MostraTesto(hwnd_, controllo_.Caption);
    InvalidateRect(hwnd_, nullptr, FALSE);
    AggiornaSuggerimento();
}

std::wstring EtichettaStatoWin32::TestoSuggerito() const {
    const HDC dc = GetDC(hwnd_);
    if (!dc) return {};
    const Righe righe = Dividi();
    const int prima = Larghezza(dc, StileFont::Grassetto, righe.evidenza) +
                      Larghezza(dc, StileFont::Normale, righe.prima);
    const int seconda = Larghezza(dc, StileFont::Normale, righe.seconda);
    ReleaseDC(hwnd_, dc);
    const RECT r = Rettangolo();
    const bool intero = std::max(prima, seconda) <= r.right - r.left;
    if (intero) return {};
    // Cards present have commas between them and no blank to break the line at.
    const std::string &tutto = controllo_.Caption();
    const std::size_t poi = std::min(tutto.find("\r\n"), tutto.size());
    return ALargo(tutto.substr(0, poi) +
                  ElencoInRighe(tutto.substr(poi), kColonneSuggerimento, kRigheSuggerimento, "…"));
}

} // namespace telva
