// Colours of a window's controls, and those controls that the window paints itself.
#include "platform/win32/finestra_win32.h"

#include <algorithm>

namespace telva {
namespace {

std::uint32_t AMeta(std::uint32_t a, std::uint32_t b) {
    return (a >> 1 & 0x7F7F7F) + (b >> 1 & 0x7F7F7F);
}

} // namespace

LRESULT FinestraWin32::ColoreControllo(HDC dc, HWND nativo) {
    const Controllo *c = DaNativo(nativo);
    int sfondo = COLOR_BTNFACE, testo = COLOR_BTNTEXT;
    if (c && c->TipoControllo() == Tipo::CasellaTesto) {
        const bool finestra = static_cast<const CasellaTesto *>(c)->BackColor() == kColoreFinestra;
        sfondo = finestra && c->Enabled ? COLOR_WINDOW : COLOR_BTNFACE;
        testo = c->Enabled ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT;
    }
    SetBkColor(dc, GetSysColor(sfondo));
    SetTextColor(dc, GetSysColor(testo));
    return reinterpret_cast<LRESULT>(GetSysColorBrush(sfondo));
}

void FinestraWin32::DisegnaCentrata(const DRAWITEMSTRUCT &d) const {
    constexpr UINT kModo = DT_WORDBREAK | DT_NOPREFIX;
    const std::wstring testo = ALargo(TestoFinestra(d.hwndItem));
    const int lunghezza = static_cast<int>(testo.size());
    const HGDIOBJ prima = SelectObject(d.hDC, font_);
    RECT r = d.rcItem, dentro = r;
    FillRect(d.hDC, &r, GetSysColorBrush(COLOR_BTNFACE));
    SetBkMode(d.hDC, TRANSPARENT);
    SetTextColor(d.hDC, GetSysColor(COLOR_BTNTEXT));
    DrawTextW(d.hDC, testo.c_str(), lunghezza, &dentro, kModo | DT_CALCRECT);
    r.top += std::max<LONG>((r.bottom - r.top - (dentro.bottom - dentro.top)) / 2, 0);
    DrawTextW(d.hDC, testo.c_str(), lunghezza, &r, kModo);
    SelectObject(d.hDC, prima);
}

void FinestraWin32::DisegnaCampione(const DRAWITEMSTRUCT &d) {
    const Controllo *c = DaNativo(d.hwndItem);
    if (c && c->TipoControllo() == Tipo::Etichetta) DisegnaCentrata(d);
    if (!c || c->TipoControllo() != Tipo::Campione) return;
    const auto &campione = static_cast<const Campione &>(*c);
    RECT r = d.rcItem;
    if (!DaScegliere(*c)) { // the frame around a swatch
        const int marcato = c->Enabled ? COLOR_HIGHLIGHT : COLOR_GRAYTEXT;
        FillRect(d.hDC, &r, GetSysColorBrush(campione.Marcato ? marcato : COLOR_BTNFACE));
        return;
    }
    const bool spento = !c->Enabled;
    const std::uint32_t colore = campione.BackColor;
    const HBRUSH pennello =
        CreateSolidBrush(spento ? AMeta(colore, GetSysColor(COLOR_BTNFACE)) : colore);
    FillRect(d.hDC, &r, pennello);
    DeleteObject(pennello);
    FrameRect(d.hDC, &r, GetSysColorBrush(spento ? COLOR_GRAYTEXT : COLOR_WINDOWFRAME));
    if ((d.itemState & ODS_FOCUS) == 0) return;
    for (const int tinta : {WHITE_BRUSH, BLACK_BRUSH}) { // one of them shows on any colour
        InflateRect(&r, -2, -2);
        FrameRect(d.hDC, &r, static_cast<HBRUSH>(GetStockObject(tinta)));
    }
}

// The background without what the controls cover anyway: nothing flickers while resizing.
void FinestraWin32::CancellaSfondo(HDC dc) const {
    const int stato = SaveDC(dc);
    for (const auto &[c, h] : nativi_) {
        // Frames and the flat tool bar show this background.
        if (c->TipoControllo() == Tipo::Cornice || c->TipoControllo() == Tipo::BarraStrumenti ||
            !IsWindowVisible(h))
            continue;
        const RECT r = RettangoloPixel(*c);
        ExcludeClipRect(dc, r.left, r.top, r.right, r.bottom);
    }
    RECT tutto{};
    GetClientRect(hwnd_, &tutto);
    FillRect(dc, &tutto, GetSysColorBrush(COLOR_BTNFACE));
    RestoreDC(dc, stato);
}

} // namespace telva
