#pragma once
// The native tool bar of a BarraStrumenti.

#include "platform/controlli.h"
#include "platform/win32/base_win32.h"

namespace telva {

class BarraWin32 {
  public:
    BarraWin32(BarraStrumenti &barra, const Nascita &nascita, UINT dpi);
    ~BarraWin32();
    BarraWin32(const BarraWin32 &) = delete;

    HWND Maniglia() const { return hwnd_; }
    // Button of a WM_COMMAND number, or nullptr.
    const BottoneBarra *Bottone(WORD id) const;
    void AggiornaAbilitati() const;
    // New pictures for a new DPI, or for new colours of the system.
    void ImpostaDpi(UINT dpi);
    // Answers TTN_GETDISPINFO.
    void Suggerimento(NMTTDISPINFOW &info);

  private:
    BarraStrumenti &barra_;
    HWND hwnd_ = nullptr;
    HIMAGELIST immagini_ = nullptr;
    std::wstring suggerimento_;
};

} // namespace telva
