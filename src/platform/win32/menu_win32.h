#pragma once
// Menu bar, pop-up and keyboard shortcuts of a module.

#include "platform/win32/ospite_win32.h"

#include <unordered_map>

namespace telva {

class MenuWin32 : public Pari {
  public:
    // Builds the menu bar of the module; shows it on `finestra`.
    MenuWin32(Modulo &modulo, OspiteWin32 &finestra);
    ~MenuWin32() override;
    MenuWin32(const MenuWin32 &) = delete;

    void Cambia(Controllo &controllo, Campo campo) override;
    // Runs the item of a WM_COMMAND number; nothing when there is none.
    void Comando(WORD id) const;
    bool TraduciScorciatoia(MSG &messaggio) const;
    void Popup(const VoceMenu &menu) const;
    // Answer to WM_MENUCHAR: items without a letter of their own hear to their first one.
    LRESULT Lettera(HMENU menu, wchar_t lettera) const;
    // Makes the items' pictures again, for this DPI.
    void DpiCambiato(UINT dpi);

  private:
    struct VoceMostrata {
        HMENU menu = nullptr;
        UINT posizione = 0;
        HMENU figlio = nullptr;
        HBITMAP figura = nullptr;
    };
    // Item of a number, or nullptr.
    VoceMenu *Voce(WORD id) const;
    void Aggiorna(const VoceMenu &voce) const;
    HMENU Costruisci(const std::vector<VoceMenu *> &voci, HMENU menu);
    void Inserisci(const VoceMenu &voce, const VoceMostrata &posto);
    // The picture of an item at this DPI; none: nullptr.
    HBITMAP BitmapFigura(const VoceMenu &voce, UINT dpi) const;

    Modulo &modulo_;
    OspiteWin32 &finestra_;
    HMENU barra_ = nullptr;
    HACCEL scorciatoie_ = nullptr;
    std::unordered_map<const VoceMenu *, VoceMostrata> posti_;
};

} // namespace telva
