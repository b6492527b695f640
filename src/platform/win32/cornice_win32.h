#pragma once
// Frame, or (without border) a mere group: the controls that stand in it move, vanish and are
// switched off with it.

#include "platform/win32/pari_win32.h"

namespace telva {

class CorniceWin32 : public PariDi<Cornice> {
  public:
    using PariDi::PariDi;

    void Cambia(Controllo &controllo, Campo campo) override {
        PariWin32::Cambia(controllo, campo);
        if (campo != Campo::Posizione && campo != Campo::Visibile && campo != Campo::Abilitato)
            return;
        for (Controllo *altro : controllo_.Proprietario()->controlli)
            if (altro->Genitore() == &controllo_) altro->Avvisa(campo);
    }
    bool CopreSfondo() const override { return false; }

  protected:
    HWND Crea(const Nascita &nascita) override {
        if (controllo_.bordo)
            return nascita.Crea(L"BUTTON", ALargo(controllo_.Caption()), BS_GROUPBOX,
                                WS_EX_TRANSPARENT);
        RegistraGruppo();
        return nascita.Crea(kClasseGruppo, L"", 0, WS_EX_TRANSPARENT);
    }
    void Mostra(Campo campo) override {
        if (campo == Campo::Didascalia) MostraTesto(hwnd_, controllo_.Caption);
    }

  private:
    static constexpr const wchar_t *kClasseGruppo = L"TelvaCornice";

    // It paints nothing and lets the mouse through.
    static LRESULT CALLBACK Procedura(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l) {
        switch (messaggio) {
        case WM_ERASEBKGND: return 1;
        case WM_NCHITTEST: return HTTRANSPARENT;
        default: return DefWindowProcW(hwnd, messaggio, w, l);
        }
    }
    static void RegistraGruppo() {
        WNDCLASSEXW classe{};
        classe.lpfnWndProc = Procedura;
        classe.lpszClassName = kClasseGruppo;
        RegistraClasse(classe);
    }
};

} // namespace telva
