#pragma once
// The controls of one window together: made, brought to their places, their background.

#include "platform/win32/pari_win32.h"

#include <memory>
#include <unordered_set>
#include <vector>

namespace telva {

class ControlliWin32 {
  public:
    // Makes the peers of the module's controls and their native controls in `finestra`.
    void Crea(const Modulo &modulo, OspiteWin32 &finestra);
    auto begin() const { return tutti_.begin(); }
    auto end() const { return tutti_.end(); }

    // The control has another place, or may have.
    void Sposta(PariWin32 &pari) { daPosizionare_.insert(&pari); }
    // Moves what is to be moved in `finestra`, all at once, and has it painted again.
    void ApplicaPosizioni(HWND finestra);
    // A notification goes to the one that it is for.
    void Notifica(const NMHDR &notifica) const;
    void ColoriCambiati() const;
    // The button that Enter presses wears its mark unless the focus is on another button.
    void SegnaPredefinito();
    // The window's background without what the controls cover anyway: nothing flickers while
    // resizing.
    void CancellaSfondo(HWND finestra, HDC dc) const;

  private:
    bool TuttiInsieme() const;
    void UnoPerUno() const;

    std::vector<std::unique_ptr<PariWin32>> tutti_;
    HWND predefinito_ = nullptr, segnatoPer_ = nullptr; // the focus that its mark is right for
    std::unordered_set<PariWin32 *> daPosizionare_;
};

} // namespace telva
