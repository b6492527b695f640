#pragma once
// Push button.

#include "platform/win32/pari_win32.h"

namespace telva {

class PulsanteWin32 : public PariDi<Pulsante> {
  public:
    using PariDi::PariDi;

    void Comando(WORD codice, WORD) override {
        if (codice == BN_CLICKED && controllo_.Click) finestra_.Evento(controllo_.Click);
    }
    bool Invio() override {
        SendMessageW(hwnd_, BM_CLICK, 0, 0);
        return true;
    }

  protected:
    HWND Crea(const Nascita &nascita) override {
        const bool predefinito = controllo_.Proprietario()->predefinito == &controllo_;
        return nascita.Crea(L"BUTTON", ALargo(controllo_.Caption()),
                            WS_TABSTOP | (predefinito ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON));
    }
    void Mostra(Campo campo) override {
        if (campo == Campo::Didascalia) MostraTesto(hwnd_, controllo_.Caption);
    }
};

} // namespace telva
