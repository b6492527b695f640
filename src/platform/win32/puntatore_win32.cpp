#include "platform/win32/puntatore_win32.h"

#include "platform/win32/pari_win32.h"

namespace telva {
namespace {

HCURSOR Cursore(Puntatore puntatore) {
    const wchar_t *nome = puntatore == Puntatore::Croce          ? IDC_CROSS
                          : puntatore == Puntatore::Ridimensiona ? IDC_SIZEALL
                          : puntatore == Puntatore::Clessidra    ? IDC_WAIT
                                                                 : IDC_ARROW;
    return LoadCursorW(nullptr, nome);
}

} // namespace

bool MostraPuntatore(const Modulo &modulo, HWND sotto) {
    const PariWin32 *p = PariDiNativo(sotto);
    Puntatore forma = modulo.MousePointer;
    if (forma == Puntatore::Predefinito && p) forma = p->FormaPuntatore();
    if (forma == Puntatore::Predefinito && p) return false;
    SetCursor(Cursore(forma));
    return true;
}

void RinnovaPuntatore(HWND finestra) {
    POINT p{};
    if (!GetCursorPos(&p)) return;
    const HWND sotto = WindowFromPoint(p);
    if (sotto && GetAncestor(sotto, GA_ROOT) == finestra)
        SendMessageW(finestra, WM_SETCURSOR, reinterpret_cast<WPARAM>(sotto),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
}

} // namespace telva
