#pragma once
// Text box.

#include "platform/win32/pari_win32.h"

namespace telva {

class CasellaTestoWin32 : public PariDi<CasellaTesto> {
  public:
    using PariDi::PariDi;

    void Cambia(Controllo &controllo, Campo campo) override {
        PariWin32::Cambia(controllo, campo);
        if (campo == Campo::Fuoco && IsWindowEnabled(hwnd_)) SendMessageW(hwnd_, EM_SETSEL, 0, -1);
    }
    void AggiornaFont(bool ridisegna) override {
        PariWin32::AggiornaFont(ridisegna);
        if (controllo_.stretta)
            SendMessageW(hwnd_, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    }
    void Comando(WORD codice, WORD) override {
        if (codice == EN_CHANGE) controllo_.Text.Accogli(TestoFinestra(hwnd_));
        // Left for another control, a narrow box shows its text from the start.
        if (codice == EN_KILLFOCUS && controllo_.stretta &&
            IsChild(finestra_.Maniglia(), GetFocus())) {
            SendMessageW(hwnd_, EM_SETSEL, 0, 0);
            SendMessageW(hwnd_, EM_SCROLLCARET, 0, 0);
        }
    }
    void Tasto(int tasto) override {
        if (controllo_.KeyDown) finestra_.Evento([&] { controllo_.KeyDown(tasto); });
    }
    bool TieneTasti() const override { return true; }
    Tinte Colori() const override {
        const bool bianca = controllo_.BackColor() == kColoreFinestra && controllo_.Enabled;
        return {bianca ? COLOR_WINDOW : COLOR_BTNFACE,
                controllo_.Enabled ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT};
    }

  protected:
    HWND Crea(const Nascita &nascita) override {
        // A box has no text of its own to be read out: its name is the label made before it.
        if (const std::wstring nome = TestoSuggerito(); !nome.empty())
            Nascita{nascita.genitore, {}, WS_VISIBLE, 0}.Crea(L"STATIC", nome, 0);
        const HWND h = nascita.Crea(L"EDIT", ALargo(controllo_.Text()), WS_TABSTOP | ES_AUTOHSCROLL,
                                    WS_EX_CLIENTEDGE);
        SendMessageW(h, EM_SETLIMITTEXT, 0, 0);
        return h;
    }
    void Mostra(Campo campo) override {
        if (campo == Campo::Testo) MostraTesto(hwnd_, controllo_.Text);
        if (campo == Campo::Sfondo) InvalidateRect(hwnd_, nullptr, TRUE);
    }
};

} // namespace telva
