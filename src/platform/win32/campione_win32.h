#pragma once
// Colour swatch to choose from, or the frame around one; the window has them painted.

#include "platform/win32/pari_win32.h"

namespace telva {

class CampioneWin32 : public PariDi<Campione> {
  public:
    using PariDi::PariDi;

    void Comando(WORD codice, WORD) override {
        // The arrow keys choose, as among option buttons.
        const bool scelto = codice == BN_CLICKED || (codice == BN_SETFOCUS && !controllo_.Marcato);
        if (scelto && DaScegliere()) finestra_.Evento(controllo_.Click);
    }
    bool Invio() override {
        SendMessageW(hwnd_, BM_CLICK, 0, 0);
        return true;
    }
    void Disegna(const DRAWITEMSTRUCT &d) const override {
        if (DaScegliere())
            DisegnaColore(d);
        else
            DisegnaBordo(d);
    }

  protected:
    HWND Crea(const Nascita &nascita) override {
        if (!DaScegliere()) return nascita.Crea(L"STATIC", L"", SS_OWNERDRAW);
        return nascita.Crea(L"BUTTON", ALargo(controllo_.didascalia),
                            BS_OWNERDRAW | BS_NOTIFY | (controllo_.Marcato ? WS_TABSTOP : 0));
    }
    void Mostra(Campo campo) override {
        if (campo != Campo::Colore) return;
        // Tab enters the swatches at the chosen one.
        if (DaScegliere()) CambiaStile(hwnd_, WS_TABSTOP, controllo_.Marcato);
        InvalidateRect(hwnd_, nullptr, TRUE);
    }
    bool FaGruppo() const override { return DaScegliere(); }

  private:
    bool DaScegliere() const { return static_cast<bool>(controllo_.Click); }

    static std::uint32_t AMeta(std::uint32_t a, std::uint32_t b) {
        return (a >> 1 & 0x7F7F7F) + (b >> 1 & 0x7F7F7F);
    }
    void DisegnaBordo(const DRAWITEMSTRUCT &d) const {
        const int marcato = controllo_.Enabled ? COLOR_HIGHLIGHT : COLOR_GRAYTEXT;
        FillRect(d.hDC, &d.rcItem, GetSysColorBrush(controllo_.Marcato ? marcato : COLOR_BTNFACE));
    }
    void DisegnaColore(const DRAWITEMSTRUCT &d) const {
        RECT r = d.rcItem;
        const bool spento = !controllo_.Enabled;
        const std::uint32_t colore = controllo_.BackColor;
        const HBRUSH pennello =
            CreateSolidBrush(spento ? AMeta(colore, GetSysColor(COLOR_BTNFACE)) : colore);
        FillRect(d.hDC, &r, pennello);
        DeleteObject(pennello);
        FrameRect(d.hDC, &r, GetSysColorBrush(spento ? COLOR_GRAYTEXT : COLOR_WINDOWFRAME));
        if ((d.itemState & ODS_FOCUS) == 0) return;
        for (const int tinta : {WHITE_BRUSH, BLACK_BRUSH}) { // one of them shows on any colour
            InflateRect(&r, -2, -2);
            FrameRect(d.hDC, &r, static_cast<HBRUSH>(GetStockObject(tinta)));
        }
    }
};

} // namespace telva
