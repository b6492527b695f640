#include "platform/win32/controlli_win32.h"

#include "platform/win32/pari_crea_win32.h"

#include <utility>

namespace telva {
namespace {

// Pixels copied from the old place may carry what a neighbour has painted there since.
constexpr UINT kModo = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS;
constexpr int kPrimoControllo = 100;

} // namespace

void ControlliWin32::Crea(const Modulo &modulo, OspiteWin32 &finestra) {
    const PariWin32 *precedente = nullptr;
    int id = kPrimoControllo;
    for (Controllo *c : modulo.controlli) {
        tutti_.push_back(CreaPari(*c, finestra));
        tutti_.back()->Nasci(precedente, id++);
        if (c == modulo.predefinito) predefinito_ = tutti_.back()->Maniglia();
        precedente = tutti_.back().get();
    }
}

void ControlliWin32::SegnaPredefinito() {
    const HWND fuoco = GetFocus();
    if (!predefinito_ || !fuoco || fuoco == segnatoPer_) return;
    segnatoPer_ = fuoco;
    const bool bottone = (SendMessageW(fuoco, WM_GETDLGCODE, 0, 0) &
                          (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
    const LONG_PTR dovuto =
        bottone && fuoco != predefinito_ ? BS_PUSHBUTTON : LONG_PTR{BS_DEFPUSHBUTTON};
    if ((GetWindowLongPtrW(predefinito_, GWL_STYLE) & BS_TYPEMASK) != dovuto)
        SendMessageW(predefinito_, BM_SETSTYLE, static_cast<WPARAM>(dovuto), TRUE);
}

bool ControlliWin32::TuttiInsieme() const {
    HDWP gruppo = BeginDeferWindowPos(static_cast<int>(daPosizionare_.size()));
    for (const PariWin32 *p : daPosizionare_) {
        const RECT r = p->Rettangolo();
        if (gruppo)
            gruppo = DeferWindowPos(gruppo, p->Maniglia(), nullptr, r.left, r.top, r.right - r.left,
                                    r.bottom - r.top, kModo);
    }
    return gruppo && EndDeferWindowPos(gruppo);
}

void ControlliWin32::UnoPerUno() const {
    for (const PariWin32 *p : daPosizionare_) {
        const RECT r = p->Rettangolo();
        SetWindowPos(p->Maniglia(), nullptr, r.left, r.top, r.right - r.left, r.bottom - r.top,
                     kModo);
    }
}

void ControlliWin32::ApplicaPosizioni(HWND finestra) {
    if (daPosizionare_.empty()) return;
    if (!TuttiInsieme()) UnoPerUno();
    // The frames let what is under them show through, so what has moved leaves its traces there.
    RedrawWindow(finestra, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    for (PariWin32 *p : std::exchange(daPosizionare_, {})) p->Spostato();
}

void ControlliWin32::Notifica(const NMHDR &notifica) const {
    for (const auto &p : tutti_)
        if (p->Notifica(notifica)) return;
}

void ControlliWin32::ColoriCambiati() const {
    for (const auto &p : tutti_) p->ColoriCambiati();
}

void ControlliWin32::CancellaSfondo(HWND finestra, HDC dc) const {
    const int stato = SaveDC(dc);
    for (const auto &p : tutti_) {
        if (!p->CopreSfondo() || !IsWindowVisible(p->Maniglia())) continue;
        const RECT r = p->Rettangolo();
        ExcludeClipRect(dc, r.left, r.top, r.right, r.bottom);
    }
    RECT tutto{};
    GetClientRect(finestra, &tutto);
    FillRect(dc, &tutto, GetSysColorBrush(COLOR_BTNFACE));
    RestoreDC(dc, stato);
}

} // namespace telva
