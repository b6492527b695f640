#pragma once
// Menu bar, pop-up and keyboard shortcuts of a module.

#include "platform/controlli.h"
#include "platform/win32/base_win32.h"

#include <unordered_map>

namespace telva {

class MenuWin32 {
  public:
    // Builds the menu bar of the module; shows it on `finestra`.
    MenuWin32(Modulo &modulo, HWND finestra);
    ~MenuWin32();
    MenuWin32(const MenuWin32 &) = delete;

    // Item of a WM_COMMAND number, or nullptr.
    VoceMenu *Voce(WORD id) const;
    bool TraduciScorciatoia(MSG &messaggio) const;
    void Aggiorna(const VoceMenu &voce) const;
    void Popup(const VoceMenu &menu) const;
    // Answer to WM_MENUCHAR: items without a letter of their own hear to their first one.
    LRESULT Lettera(HMENU menu, wchar_t lettera) const;

  private:
    struct Posto {
        HMENU menu = nullptr;
        UINT posizione = 0;
        HMENU figlio = nullptr;
    };
    HMENU Costruisci(const std::vector<VoceMenu *> &voci, HMENU menu);
    void Inserisci(const VoceMenu &voce, const Posto &posto);

    Modulo &modulo_;
    HWND finestra_;
    HMENU barra_ = nullptr;
    HACCEL scorciatoie_ = nullptr;
    std::unordered_map<const VoceMenu *, Posto> posti_;
};

} // namespace telva
