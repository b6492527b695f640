#pragma once
// Tool bar.

#include "platform/win32/pari_win32.h"

namespace telva {

class BarraWin32 : public PariDi<BarraStrumenti> {
  public:
    using PariDi::PariDi;
    ~BarraWin32() override;

    void Comando(WORD codice, WORD id) override;
    // Answers what tip a button has.
    bool Notifica(const NMHDR &notifica) override;
    void DpiCambiato() override { MettiImmagini(); }
    void ColoriCambiati() override;
    void VoceCambiata(const VoceMenu &voce) override;
    bool CopreSfondo() const override { return false; } // it is flat

  protected:
    HWND Crea(const Nascita &nascita) override;

  private:
    // Button of a WM_COMMAND number, or nullptr.
    const BottoneBarra *Bottone(UINT_PTR id) const;
    void MettiBottoni() const;
    void MettiImmagini();

    HIMAGELIST immagini_ = nullptr;
    std::wstring suggerimento_;
};

} // namespace telva
