#pragma once
// The summary field: one line of data in a frame, long texts with an ellipsis, more
// of them in the tip; Ctrl+C copies it all.

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

  private:
    static LRESULT CALLBACK Procedura(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l);
    LRESULT Messaggio(UINT messaggio, WPARAM w, LPARAM l);
    void Dipingi() const;
    void Copia() const;
    // True when the whole text does not fit into the field.
    bool Tagliato() const;

    HFONT font_ = nullptr;
};

} // namespace telva
