#pragma once
// Text box. Its text stands in the middle of its height, as that of a label beside it does.

#include "platform/win32/pari_win32.h"

namespace telva {

class CasellaTestoWin32 : public PariDi<CasellaTesto> {
  public:
    using PariDi::PariDi;

    void Cambia(Controllo &controllo, Campo campo) override;
    void AggiornaFont(bool ridisegna) override;
    void Comando(WORD codice, WORD) override;
    void Tasto(int tasto) override {
        if (controllo_.KeyDown) finestra_.Evento([&] { controllo_.KeyDown(tasto); });
    }
    bool TieneTasti() const override { return true; }
    Tinte Colori() const override;

  protected:
    HWND Crea(const Nascita &nascita) override;
    void Mostra(Campo campo) override {
        if (campo == Campo::Testo) MostraTesto(hwnd_, controllo_.Text);
    }

  private:
    static LRESULT CALLBACK Procedura(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l);
    void CentraTesto(const RECT &esterna, RECT &interna) const;
    void DipingiSopra() const;

    WNDPROC sistema_ = nullptr;
};

} // namespace telva
