#pragma once
// Tick.

#include "platform/win32/pari_win32.h"

namespace telva {

class CasellaSpuntaWin32 : public PariDi<CasellaSpunta> {
  public:
    using PariDi::PariDi;

    void Comando(WORD codice, WORD) override {
        if (codice == BN_CLICKED) finestra_.Evento([this] { controllo_.Premi(); });
    }

  protected:
    HWND Crea(const Nascita &nascita) override {
        const HWND h =
            nascita.Crea(L"BUTTON", ALargo(controllo_.Caption()), WS_TABSTOP | BS_AUTOCHECKBOX);
        if (controllo_.Value) SendMessageW(h, BM_SETCHECK, BST_CHECKED, 0);
        return h;
    }
    void Mostra(Campo campo) override {
        if (campo == Campo::Didascalia) MostraTesto(hwnd_, controllo_.Caption);
        if (campo == Campo::Spunta)
            SendMessageW(hwnd_, BM_SETCHECK, controllo_.Value ? BST_CHECKED : BST_UNCHECKED, 0);
    }
};

} // namespace telva
