#pragma once
// The tips of a window's controls.

#include "platform/win32/base_win32.h"

#include <unordered_map>

namespace telva {

class SuggerimentiWin32 {
  public:
    // Tips for controls in `finestra`, which owns the native window and takes it away with itself.
    void Crea(HWND finestra);
    // What a control's tip says; no tip when the text is empty.
    void Imposta(HWND nativo, std::wstring testo);
    // Letters and greatest width as the window's DPI asks for them.
    void Adegua(HFONT font, double dpi) const;

  private:
    HWND finestra_ = nullptr, hwnd_ = nullptr;
    std::unordered_map<HWND, std::wstring> testi_;
};

} // namespace telva
