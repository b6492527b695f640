#include "platform/win32/tastiera_win32.h"

#include "platform/tasti.h"
#include "platform/win32/pari_win32.h"

#include <cstdlib>
#include <utility>

namespace telva {

bool TastieraWin32::Tratta(const MSG &m) {
    return m.message == WM_MOUSEWHEEL ? Rotella(m) : Tasto(m);
}

// Escape counts when it is let go here after it was pressed here.
bool TastieraWin32::Esc(const MSG &m) {
    if (m.message == WM_KEYUP) {
        const bool premuto = std::exchange(escPremuto_, false);
        if (premuto && modulo_.KeyUp) finestra_.Evento([this] { modulo_.KeyUp(kTastoEsc); });
        return premuto;
    }
    if (m.message == WM_KEYDOWN) escPremuto_ = true; // else typed as a character, not by its key
    if (modulo_.KeyPress) finestra_.Evento([this] { modulo_.KeyPress(kCarattereEsc); });
    return true;
}

bool TastieraWin32::Tasto(const MSG &m) {
    if ((m.message == WM_KEYUP || m.message == WM_KEYDOWN) && m.wParam == VK_ESCAPE) return Esc(m);
    if (m.message == WM_CHAR && m.wParam == kCarattereEsc) return Esc(m);
    if (m.message != WM_KEYDOWN) return false;
    PariWin32 *p = PariDiNativo(m.hwnd);
    const int tasto = static_cast<int>(m.wParam);
    const bool ctrl = GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_MENU) >= 0;
    if (ctrl && modulo_.KeyDown && !(p && p->TieneTasti())) {
        bool preso = false;
        finestra_.Evento([&] { preso = modulo_.KeyDown(tasto); });
        if (preso) return true;
    }
    if (p) p->Tasto(tasto);
    if (tasto != VK_RETURN) return false;
    const bool usato = p && p->Invio();
    if (const Pulsante *b = modulo_.predefinito; b && !usato && b->AbilitatoDavvero())
        finestra_.Evento(b->Click);
    return true; // no control has another use for Enter but a beep
}

bool TastieraWin32::Rotella(const MSG &m) {
    if (!modulo_.Rotella) return false;
    const POINT dove{static_cast<short>(LOWORD(m.lParam)), static_cast<short>(HIWORD(m.lParam))};
    const HWND sotto = WindowFromPoint(dove);
    // The property of another process's window would be a pointer into that process.
    const bool nostra = sotto && GetAncestor(sotto, GA_ROOT) == finestra_.Maniglia();
    PariWin32 *p = nostra ? PariDiNativo(sotto) : nullptr;
    if (!p || !p->PrendeRotella()) return false;
    p->InizioRotella();
    Scatti(m);
    // Steps that wait right behind this one: nobody would see the pictures between.
    for (MSG altro{}; PeekMessageW(&altro, nullptr, 0, 0, PM_NOREMOVE) && altro.hwnd == m.hwnd &&
                      altro.message == WM_MOUSEWHEEL && altro.lParam == m.lParam;) {
        if (!PeekMessageW(&altro, m.hwnd, WM_MOUSEWHEEL, WM_MOUSEWHEEL, PM_REMOVE)) break;
        Scatti(altro);
    }
    finestra_.Evento([p] { p->FineRotella(); });
    return true;
}

void TastieraWin32::Scatti(const MSG &m) {
    const int passi = rotella_.Aggiungi(static_cast<short>(HIWORD(m.wParam)));
    // One by one: five at once, each a tenth from either side, would leave nothing of the window.
    for (int n = std::abs(passi); n > 0; --n)
        finestra_.Evento([&] { modulo_.Rotella(passi > 0 ? 1 : -1); });
}

} // namespace telva
