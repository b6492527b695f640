#include "platform/win32/pari_win32.h"

#include "platform/mostrabile.h"

#include <algorithm>
#include <typeinfo>

namespace telva {
namespace {

constexpr const wchar_t *kPari = L"TelvaPari";

} // namespace

PariWin32 *PariDiNativo(HWND nativo) { return static_cast<PariWin32 *>(GetPropW(nativo, kPari)); }

void DisegnaNativo(const DRAWITEMSTRUCT &d) {
    if (const PariWin32 *p = PariDiNativo(d.hwndItem)) p->Disegna(d);
}

LRESULT ColoraNativo(HDC dc, HWND nativo) {
    const PariWin32 *p = PariDiNativo(nativo);
    const Tinte tinte = p ? p->Colori() : Tinte{};
    SetBkColor(dc, GetSysColor(tinte.sfondo));
    SetTextColor(dc, GetSysColor(tinte.testo));
    return reinterpret_cast<LRESULT>(GetSysColorBrush(tinte.sfondo));
}

void PariWin32::Nasci(const PariWin32 *precedente, int id) {
    const bool continua = precedente && FaGruppo() && typeid(*precedente) == typeid(*this) &&
                          precedente->questo_.Genitore() == questo_.Genitore();
    const DWORD stile = (questo_.VisibileDavvero() ? WS_VISIBLE : 0) |
                        (questo_.AbilitatoDavvero() ? 0 : WS_DISABLED) | (continua ? 0 : WS_GROUP);
    hwnd_ = Crea({finestra_.Maniglia(), Rettangolo(), stile, id});
    Richiesto(SetPropW(hwnd_, kPari, this), "SetProp");
    AssegnaNome(hwnd_, questo_.NomeControllo());
    AggiornaFont(false);
    AggiornaSuggerimento();
    questo_.pari = this;
}

RECT PariWin32::Rettangolo() const {
    const double dpi = finestra_.Dpi();
    const int left = APixel(questo_.LeftAssoluto(), dpi), top = APixel(questo_.TopAssoluto(), dpi);
    return {left, top, left + std::max(APixel(questo_.Width, dpi), 0),
            top + std::max(APixel(questo_.Height, dpi), 0)};
}

void PariWin32::Cambia(Controllo &, Campo campo) {
    switch (campo) {
    case Campo::Posizione: finestra_.DaPosizionare(*this); break;
    case Campo::Visibile:
        if (!questo_.VisibileDavvero()) finestra_.LasciaFuoco(hwnd_);
        ShowWindow(hwnd_, questo_.VisibileDavvero() ? SW_SHOWNA : SW_HIDE);
        break;
    case Campo::Abilitato:
        if (!questo_.AbilitatoDavvero()) finestra_.LasciaFuoco(hwnd_);
        EnableWindow(hwnd_, questo_.AbilitatoDavvero());
        break;
    case Campo::Suggerimento: AggiornaSuggerimento(); break;
    case Campo::Fuoco: finestra_.PortaFuoco(hwnd_); break;
    default: Mostra(campo); break;
    }
}

void PariWin32::AggiornaFont(bool ridisegna) {
    SendMessageW(hwnd_, WM_SETFONT, reinterpret_cast<WPARAM>(finestra_.Font(FontProprio())),
                 ridisegna);
}

std::wstring PariWin32::TestoSuggerito() const {
    return ALargo(Mostrabile(questo_.ToolTipText(), kCaratteriSuggerimento));
}

} // namespace telva
