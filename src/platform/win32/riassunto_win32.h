#pragma once
// The summary field: one line of data in a sunken frame, long texts with an ellipsis and whole in
// the tip; Ctrl+C copies it all.

#include "platform/win32/etichetta_win32.h"

namespace telva {

class RiassuntoWin32 : public EtichettaWin32 {
  public:
    using EtichettaWin32::EtichettaWin32;
    // What fitted in before may not fit now.
    void Spostato() override { AggiornaSuggerimento(); }

  protected:
    HWND Crea(const Nascita &nascita) override;
    void Mostra(Campo campo) override;
    std::wstring TestoSuggerito() const override;
};

} // namespace telva
