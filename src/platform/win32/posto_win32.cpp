#include "platform/win32/posto_win32.h"

#include "platform/win32/schermo_win32.h"

namespace telva {
namespace {

constexpr const wchar_t *kChiave = L"Software\\Telva", *kValore = L"Finestra";

// Whether another window of the program stands with its corner just there.
bool Occupato(const RECT &r, HWND questa) {
    RECT altra{};
    for (HWND h = nullptr; (h = FindWindowExW(nullptr, h, kClasseFinestra, nullptr)) != nullptr;)
        if (h != questa && IsWindowVisible(h) && GetWindowRect(h, &altra) && altra.left == r.left &&
            altra.top == r.top)
            return true;
    return false;
}

} // namespace

std::optional<PostoFinestra> LeggiPosto(const Modulo &modulo) {
    NumeriPosto n{};
    DWORD byte = sizeof n;
    const bool letto = RegGetValueW(HKEY_CURRENT_USER, kChiave, kValore, RRF_RT_REG_BINARY, nullptr,
                                    n.data(), &byte) == ERROR_SUCCESS &&
                       byte == sizeof n;
    const std::optional<PostoFinestra> posto = letto ? PostoDaNumeri(n) : std::nullopt;
    if (!posto) return {};
    const RECT area = AreaDiLavoro({posto->left, posto->top, posto->left + 1, posto->top + 1});
    const double dpi = DpiCheMostra(modulo, area, modulo.dpi);
    return EntroArea(*posto, ATwip(area.right - area.left, dpi),
                     ATwip(area.bottom - area.top, dpi));
}

void ScriviPosto(const PostoFinestra &posto) {
    const NumeriPosto n = ANumeri(posto);
    RegSetKeyValueW(HKEY_CURRENT_USER, kChiave, kValore, REG_BINARY, n.data(), sizeof n);
}

PostoFinestra PostoDi(HWND finestra, double larghezza, double altezza) {
    WINDOWPLACEMENT p{};
    p.length = sizeof p;
    GetWindowPlacement(finestra, &p);
    RECT r = p.rcNormalPosition;
    const bool ridotta = IsIconic(finestra) != 0;
    bool grande = IsZoomed(finestra) != 0;
    if (!ridotta && !grande) GetWindowRect(finestra, &r);
    if (ridotta) grande = (p.flags & WPF_RESTORETOMAXIMIZED) != 0;
    return {r.left, r.top, larghezza, altezza, grande};
}

// A window must not reach below the taskbar of a small screen, nor stand on a monitor that is gone.
RECT PostoLibero(RECT r, POINT angolo, HWND finestra, double dpi) {
    OffsetRect(&r, angolo.x - r.left, angolo.y - r.top);
    PortaNelloSchermo(r);
    const int scarto = MulDiv(26, static_cast<int>(dpi), 96);
    for (int n = 0; n < 10 && Occupato(r, finestra); ++n) {
        const RECT prima = r;
        OffsetRect(&r, scarto, scarto);
        PortaNelloSchermo(r);
        if (!EqualRect(&r, &prima)) continue;
        const RECT area = AreaDiLavoro(r); // no room further on: from the beginning
        OffsetRect(&r, area.left - r.left, area.top - r.top);
    }
    return r;
}

} // namespace telva
