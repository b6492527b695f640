#pragma once
// Keys and wheel of a window, before they reach a native control.

#include "platform/win32/ospite_win32.h"

namespace telva {

class TastieraWin32 {
  public:
    TastieraWin32(const Modulo &modulo, OspiteWin32 &finestra)
        : modulo_(modulo), finestra_(finestra) {}

    // True when the message is done with.
    bool Tratta(const MSG &messaggio);
    // The window is no longer the active one: a pressed key is let go elsewhere.
    void Lascia() { escPremuto_ = false; }

  private:
    bool Tasto(const MSG &messaggio);
    bool Esc(const MSG &messaggio);
    bool Rotella(const MSG &messaggio);
    void Scatti(const MSG &messaggio);

    const Modulo &modulo_;
    OspiteWin32 &finestra_;
    RaccoltaRotella rotella_;
    bool escPremuto_ = false;
};

} // namespace telva
