#include "platform/win32/casella_testo_win32.h"

#include <algorithm>

namespace telva {
namespace {

int AltezzaRiga(HWND finestra, HFONT font) {
    const HDC dc = GetDC(finestra);
    if (!dc) return 0;
    const HGDIOBJ prima = SelectObject(dc, font);
    TEXTMETRICW misure{};
    GetTextMetricsW(dc, &misure);
    SelectObject(dc, prima);
    ReleaseDC(finestra, dc);
    return misure.tmHeight;
}

} // namespace

HWND CasellaTestoWin32::Crea(const Nascita &nascita) {
    // A box has no text of its own to be read out: its name is the label made before it.
    if (const std::wstring nome = TestoSuggerito(); !nome.empty())
        Nascita{nascita.genitore, {}, WS_VISIBLE, 0}.Crea(L"STATIC", nome, 0);
    hwnd_ = nascita.Crea(L"EDIT", ALargo(controllo_.Text()), WS_TABSTOP | ES_AUTOHSCROLL,
                         WS_EX_CLIENTEDGE);
    SendMessageW(hwnd_, EM_SETLIMITTEXT, 0, 0);
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    sistema_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(hwnd_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedura)));
    return hwnd_;
}

void CasellaTestoWin32::Cambia(Controllo &controllo, Campo campo) {
    PariWin32::Cambia(controllo, campo);
    if (campo == Campo::Fuoco && IsWindowEnabled(hwnd_)) SendMessageW(hwnd_, EM_SETSEL, 0, -1);
    if (campo == Campo::Sfondo || campo == Campo::Abilitato)
        RedrawWindow(hwnd_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

void CasellaTestoWin32::AggiornaFont(bool ridisegna) {
    PariWin32::AggiornaFont(ridisegna);
    if (controllo_.stretta) SendMessageW(hwnd_, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    constexpr UINT kSoloIlBordo =
        SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
    SetWindowPos(hwnd_, nullptr, 0, 0, 0, 0, kSoloIlBordo);
}

void CasellaTestoWin32::Comando(WORD codice, WORD) {
    if (codice == EN_CHANGE) controllo_.Text.Accogli(TestoFinestra(hwnd_));
    // Left for another control, a narrow box shows its text from the start.
    if (codice == EN_KILLFOCUS && controllo_.stretta && IsChild(finestra_.Maniglia(), GetFocus())) {
        SendMessageW(hwnd_, EM_SETSEL, 0, 0);
        SendMessageW(hwnd_, EM_SCROLLCARET, 0, 0);
    }
}

Tinte CasellaTestoWin32::Colori() const {
    const bool bianca = controllo_.BackColor() == kColoreFinestra && controllo_.Enabled;
    return {bianca ? COLOR_WINDOW : COLOR_BTNFACE,
            controllo_.Enabled ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT};
}

LRESULT CALLBACK CasellaTestoWin32::Procedura(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l) {
    const auto &questo =
        *reinterpret_cast<const CasellaTestoWin32 *>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    const auto sistema = [&] { return CallWindowProcW(questo.sistema_, hwnd, messaggio, w, l); };
    switch (messaggio) {
    case WM_NCCALCSIZE: {
        auto &r = *reinterpret_cast<RECT *>(l); // the whole window, then what is inside
        const RECT esterna = r;
        const LRESULT esito = sistema();
        questo.CentraTesto(esterna, r);
        return esito;
    }
    case WM_NCPAINT: {
        const LRESULT esito = sistema();
        questo.DipingiSopra();
        return esito;
    }
    case WM_NCHITTEST: return HTCLIENT; // its edge too puts the cursor into the text
    default: return sistema();
    }
}

// The client area begins so far below the edge that a row at its top, where the system writes,
// stands in the middle of the box.
void CasellaTestoWin32::CentraTesto(const RECT &esterna, RECT &interna) const {
    RECT testo{};
    SendMessageW(hwnd_, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&testo));
    const LONG riga = AltezzaRiga(hwnd_, finestra_.Font(StileFont::Normale));
    const LONG mezzo = (esterna.bottom - esterna.top) / 2 - riga / 2; // as DrawText reckons
    interna.top = std::max(interna.top, esterna.top + mezzo - testo.top);
}

// What stands between the edge and the client area.
void CasellaTestoWin32::DipingiSopra() const {
    RECT esterna{}, interna{};
    GetWindowRect(hwnd_, &esterna);
    GetClientRect(hwnd_, &interna);
    MapWindowPoints(hwnd_, nullptr, reinterpret_cast<POINT *>(&interna), 2);
    OffsetRect(&interna, -esterna.left, -esterna.top);
    const RECT sopra{interna.left, interna.left, interna.right, interna.top};
    const HDC dc = GetWindowDC(hwnd_);
    if (!dc) return;
    FillRect(dc, &sopra, GetSysColorBrush(Colori().sfondo));
    ReleaseDC(hwnd_, dc);
}

} // namespace telva
