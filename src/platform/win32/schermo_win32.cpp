#include "platform/win32/schermo_win32.h"

#include <algorithm>
#include <cmath>

namespace telva {
namespace {

// Newer functions of the system, looked up so that the program starts on older Windows too.
template <class F>
F Cerca(const wchar_t *libreria, const char *nome) {
    const HMODULE modulo = LoadLibraryExW(libreria, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (!modulo) return nullptr;
    return reinterpret_cast<F>(reinterpret_cast<void *>(GetProcAddress(modulo, nome)));
}

UINT DpiDiSistema() {
    const HDC schermo = GetDC(nullptr);
    if (!schermo) return 96;
    const int dpi = GetDeviceCaps(schermo, LOGPIXELSX);
    ReleaseDC(nullptr, schermo);
    return dpi > 0 ? static_cast<UINT>(dpi) : 96;
}

} // namespace

UINT DpiDi(HWND finestra) {
    using Chiamata = UINT(WINAPI *)(HWND);
    static const auto dpiFinestra = Cerca<Chiamata>(L"user32.dll", "GetDpiForWindow");
    const UINT dpi = finestra && dpiFinestra ? dpiFinestra(finestra) : 0;
    return dpi > 0 ? dpi : DpiDiSistema();
}

int AltezzaSpuntaMenu(UINT dpi) {
    using Chiamata = int(WINAPI *)(int, UINT);
    static const auto perDpi = Cerca<Chiamata>(L"user32.dll", "GetSystemMetricsForDpi");
    if (const int altezza = perDpi ? perDpi(SM_CYMENUCHECK, dpi) : 0; altezza > 0) return altezza;
    return MulDiv(GetSystemMetrics(SM_CYMENUCHECK), static_cast<int>(dpi),
                  static_cast<int>(DpiDiSistema()));
}

SIZE MisuraEsterna(SIZE interna, DWORD stile, DWORD stileEsteso, bool menu, UINT dpi) {
    using Chiamata = BOOL(WINAPI *)(RECT *, DWORD, BOOL, DWORD, UINT);
    static const auto perDpi = Cerca<Chiamata>(L"user32.dll", "AdjustWindowRectExForDpi");
    RECT r{0, 0, interna.cx, interna.cy};
    if (!perDpi || !perDpi(&r, stile, menu, stileEsteso, dpi))
        Richiesto(AdjustWindowRectEx(&r, stile, menu, stileEsteso), "AdjustWindowRectEx");
    return {r.right - r.left, r.bottom - r.top};
}

RECT RettangoloVisibile(HWND finestra) {
    using Chiamata = HRESULT(WINAPI *)(HWND, DWORD, void *, DWORD);
    static const auto attributo = Cerca<Chiamata>(L"dwmapi.dll", "DwmGetWindowAttribute");
    constexpr DWORD kBordiEstesi = 9; // DWMWA_EXTENDED_FRAME_BOUNDS
    RECT visibile{}, intero{};
    if (!GetWindowRect(finestra, &intero)) return intero;
    const bool trovato =
        attributo && SUCCEEDED(attributo(finestra, kBordiEstesi, &visibile, sizeof visibile));
    return trovato && visibile.right > visibile.left ? visibile : intero;
}

SIZE OltreIlVisibile(HWND finestra) {
    RECT intera{};
    if (!GetWindowRect(finestra, &intera)) return {};
    const RECT v = RettangoloVisibile(finestra);
    return {(intera.right - intera.left) - (v.right - v.left),
            (intera.bottom - intera.top) - (v.bottom - v.top)};
}

LONG APixelInSu(double twip, double dpi) {
    return static_cast<LONG>(std::ceil(twip * dpi / 1440 - 1e-6));
}

double DpiCheMostra(const Modulo &modulo, const RECT &area, double dpi) {
    return std::min({dpi, (area.right - area.left) * 1440 / modulo.larghezzaMinima,
                     (area.bottom - area.top) * 1440 / modulo.altezzaMinima});
}

RECT AreaDiLavoro(const RECT &r) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    return GetMonitorInfoW(MonitorFromRect(&r, MONITOR_DEFAULTTONEAREST), &info) ? info.rcWork : r;
}

void PortaNelloSchermo(RECT &r) {
    const RECT area = AreaDiLavoro(r);
    const LONG l = std::min(r.right - r.left, area.right - area.left);
    const LONG a = std::min(r.bottom - r.top, area.bottom - area.top);
    r.left = std::clamp(r.left, area.left, area.right - l);
    r.top = std::clamp(r.top, area.top, area.bottom - a);
    r.right = r.left + l;
    r.bottom = r.top + a;
}

RECT InMezzoA(HWND proprietaria, SIZE esterna) {
    RECT p{0, 0, 0, 0};
    if (proprietaria) GetWindowRect(proprietaria, &p);
    RECT r{p.left + (p.right - p.left - esterna.cx) / 2,
           p.top + (p.bottom - p.top - esterna.cy) / 2, 0, 0};
    r.right = r.left + esterna.cx;
    r.bottom = r.top + esterna.cy;
    PortaNelloSchermo(r);
    return r;
}

void Colloca(HWND finestra, const RECT &dove) {
    SetWindowPos(finestra, nullptr, dove.left, dove.top, dove.right - dove.left,
                 dove.bottom - dove.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace telva
