#pragma once
// Labels: the plain ones, and the one whose text stands in the middle of its height, to the right.
// The label that shows data stands in riassunto_win32.h.

#include "platform/mostrabile.h"
#include "platform/win32/pari_win32.h"

namespace telva {

class EtichettaWin32 : public PariDi<Etichetta> {
  public:
    using PariDi::PariDi;

  protected:
    HWND Crea(const Nascita &nascita) override {
        return nascita.Crea(L"STATIC", ALargo(Testo()), Stile());
    }
    void Mostra(Campo campo) override {
        if (campo == Campo::Didascalia && MostraTesto(hwnd_, Testo()))
            InvalidateRect(hwnd_, nullptr, TRUE);
    }
    std::string Testo() const { return Mostrabile(controllo_.Caption(), kCaratteriEtichetta); }
    StileFont FontProprio() const override {
        const bool pedice = controllo_.stile == StileEtichetta::Pedice;
        return pedice ? StileFont::Piccolo : StileFont::Normale;
    }
    virtual DWORD Stile() const {
        const bool unaRiga = controllo_.stile == StileEtichetta::Semplice;
        return SS_NOPREFIX | SS_NOTIFY |
               (controllo_.stile == StileEtichetta::SuPiuRighe ? SS_LEFT : SS_LEFTNOWORDWRAP) |
               (unaRiga ? SS_CENTERIMAGE | SS_ENDELLIPSIS : 0);
    }
};

// On several lines, centred in its height, against its right edge: the window has it painted.
class EtichettaADestraWin32 : public EtichettaWin32 {
  public:
    using EtichettaWin32::EtichettaWin32;
    void Disegna(const DRAWITEMSTRUCT &d) const override;

  protected:
    DWORD Stile() const override { return SS_OWNERDRAW; }
};

} // namespace telva
