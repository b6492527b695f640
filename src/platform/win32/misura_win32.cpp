#include "platform/win32/misura_win32.h"

#include "platform/win32/schermo_win32.h"

#include <algorithm>

namespace telva {

void MisuraWin32::Nata(bool altroDpi) {
    nata_ = true;
    Applica();
    RECT r{};
    if (modulo_.ridimensionabile && GetWindowRect(finestra_.Maniglia(), &r)) Sposta(r.left, r.top);
    if (altroDpi) Cambiata(SIZE_RESTORED, true);
}

void MisuraWin32::Applica() const {
    if (!nata_) return;
    if (!modulo_.ridimensionabile) {
        ApplicaDialogo();
        return;
    }
    const SIZE oltre = OltreIlVisibile(finestra_.Maniglia());
    SetWindowPos(finestra_.Maniglia(), nullptr, 0, 0,
                 APixelInSu(modulo_.Width, modulo_.dpi) + oltre.cx,
                 APixelInSu(modulo_.Height, modulo_.dpi) + oltre.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

SIZE MisuraWin32::EsternaDialogo() const {
    const HWND hwnd = finestra_.Maniglia();
    const SIZE interna{APixel(modulo_.Width, modulo_.dpi), APixel(modulo_.Height, modulo_.dpi)};
    const auto stile = static_cast<DWORD>(GetWindowLongPtrW(hwnd, GWL_STYLE));
    const auto esteso = static_cast<DWORD>(GetWindowLongPtrW(hwnd, GWL_EXSTYLE));
    return MisuraEsterna(interna, stile, esteso, GetMenu(hwnd) != nullptr, DpiDi(hwnd));
}

void MisuraWin32::ApplicaDialogo() const {
    const HWND hwnd = finestra_.Maniglia();
    Colloca(hwnd, InMezzoA(GetWindow(hwnd, GW_OWNER), EsternaDialogo()));
}

void MisuraWin32::Riduci() const {
    if (!modulo_.ridimensionabile) return RiduciDialogo();
    modulo_.dpi =
        DpiCheMostra(modulo_, AreaDiLavoro(RettangoloVisibile(finestra_.Maniglia())), modulo_.dpi);
}

void MisuraWin32::RiduciDialogo() const {
    const HWND hwnd = finestra_.Maniglia();
    const SIZE esterna = EsternaDialogo();
    const RECT posto = InMezzoA(GetWindow(hwnd, GW_OWNER), esterna); // smaller if it must be
    const double larghezza = APixel(modulo_.Width, modulo_.dpi);
    const double altezza = APixel(modulo_.Height, modulo_.dpi);
    const LONG toltaX = esterna.cx - (posto.right - posto.left);
    const LONG toltaY = esterna.cy - (posto.bottom - posto.top);
    modulo_.dpi *= std::min((larghezza - toltaX) / larghezza, (altezza - toltaY) / altezza);
}

void MisuraWin32::Sposta(LONG left, LONG top) const {
    const HWND hwnd = finestra_.Maniglia();
    RECT r{};
    if (GetWindowRect(hwnd, &r)) Colloca(hwnd, PostoLibero(r, {left, top}, hwnd, modulo_.dpi));
}

void MisuraWin32::Cambiata(WPARAM modo, bool forza) {
    modulo_.ridotta = modo == SIZE_MINIMIZED;
    if (!nata_ || !modulo_.ridimensionabile || modulo_.ridotta) return;
    const RECT r = RettangoloVisibile(finestra_.Maniglia());
    const double larghezza = ATwip(r.right - r.left, modulo_.dpi);
    const double altezza = ATwip(r.bottom - r.top, modulo_.dpi);
    if (modo == SIZE_RESTORED && !IsZoomed(finestra_.Maniglia())) {
        larghezzaNormale_ = larghezza;
        altezzaNormale_ = altezza;
    }
    // Shown or restored at the size it had: everything stands where it is.
    if (!forza && modulo_.Width == larghezza && modulo_.Height == altezza) return;
    modulo_.Width.Accogli(larghezza);
    modulo_.Height.Accogli(altezza);
    if (modulo_.Resize) finestra_.Evento(modulo_.Resize);
    InvalidateRect(finestra_.Maniglia(), nullptr, TRUE);
}

void MisuraWin32::Minima(MINMAXINFO &info) const {
    if (!modulo_.ridimensionabile) return;
    const SIZE oltre = OltreIlVisibile(finestra_.Maniglia());
    info.ptMinTrackSize.x = APixelInSu(modulo_.larghezzaMinima, modulo_.dpi) + oltre.cx;
    info.ptMinTrackSize.y = APixelInSu(modulo_.altezzaMinima, modulo_.dpi) + oltre.cy;
}

PostoFinestra MisuraWin32::Posto() const {
    return PostoDi(finestra_.Maniglia(), larghezzaNormale_, altezzaNormale_);
}

} // namespace telva
