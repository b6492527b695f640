#pragma once
// The label that tells how things stand: two rows, the beginning of the first in bold, each with an
// ellipsis when it is too long; the whole is then in the tip.

#include "platform/win32/etichetta_win32.h"

#include <string>

namespace telva {

class EtichettaStatoWin32 : public EtichettaWin32 {
  public:
    using EtichettaWin32::EtichettaWin32;
    void Disegna(const DRAWITEMSTRUCT &d) const override;
    void Spostato() override { AggiornaSuggerimento(); }

  protected:
    DWORD Stile() const override { return SS_OWNERDRAW | SS_NOTIFY; }
    void Mostra(Campo campo) override;
    std::wstring TestoSuggerito() const override;

  private:
    struct Righe {
        std::wstring evidenza, prima, seconda;
    };
    Righe Dividi() const;
    int Larghezza(HDC dc, StileFont stile, const std::wstring &testo) const;
};

} // namespace telva
