#pragma once
// Size and place of a window: those of its module on the screen, and back.

#include "platform/win32/ospite_win32.h"
#include "platform/win32/posto_win32.h"

namespace telva {

class MisuraWin32 {
  public:
    MisuraWin32(Modulo &modulo, OspiteWin32 &finestra) : modulo_(modulo), finestra_(finestra) {}

    // Before the controls are made: a dialog too large for the screen, or a main window too large
    // even at its smallest, is laid out smaller, so that nothing of it is out of reach.
    void Riduci() const;
    // The window has all its controls: it takes its size; `altroDpi` when it was laid out for
    // another DPI than it has.
    void Nata(bool altroDpi);
    // Gives the window the module's size; a dialog stands in the middle of its owner.
    void Applica() const;
    // Brings the outer corner there, or as near as the screen allows.
    void Sposta(LONG left, LONG top) const;
    // WM_SIZE: the module takes the window's size and lays itself out anew, if it is another one
    // or `forza`.
    void Cambiata(WPARAM modo, bool forza = false);
    // WM_GETMINMAXINFO.
    void Minima(MINMAXINFO &info) const;
    // Where the window stands, or will stand once it is neither minimised nor maximised.
    PostoFinestra Posto() const;

  private:
    SIZE EsternaDialogo() const;
    void ApplicaDialogo() const;
    void RiduciDialogo() const;

    Modulo &modulo_;
    OspiteWin32 &finestra_;
    double larghezzaNormale_ = 0, altezzaNormale_ = 0; // neither minimised nor maximised, twips
    bool nata_ = false;
};

} // namespace telva
