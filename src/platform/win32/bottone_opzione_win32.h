#pragma once
// Option button: one of a group is chosen, and Tab enters the group at that one.

#include "platform/win32/pari_win32.h"

namespace telva {

class BottoneOpzioneWin32 : public PariDi<BottoneOpzione> {
  public:
    using PariDi::PariDi;

    void Comando(WORD codice, WORD) override {
        if (codice == BN_CLICKED && !controllo_.Value)
            finestra_.Evento([this] { controllo_.Seleziona(); });
    }

  protected:
    HWND Crea(const Nascita &nascita) override {
        const bool scelto = controllo_.Value;
        const HWND h = nascita.Crea(L"BUTTON", ALargo(controllo_.Caption()),
                                    BS_AUTORADIOBUTTON | (scelto ? WS_TABSTOP : 0));
        if (scelto) SendMessageW(h, BM_SETCHECK, BST_CHECKED, 0);
        return h;
    }
    void Mostra(Campo campo) override {
        if (campo == Campo::Didascalia) MostraTesto(hwnd_, controllo_.Caption);
        if (campo != Campo::Spunta) return;
        SendMessageW(hwnd_, BM_SETCHECK, controllo_.Value ? BST_CHECKED : BST_UNCHECKED, 0);
        CambiaStile(hwnd_, WS_TABSTOP, controllo_.Value);
    }
    bool FaGruppo() const override { return true; }
};

} // namespace telva
