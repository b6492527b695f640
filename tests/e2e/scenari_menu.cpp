// Menus show what their items mean, as large as the scale of the screen asks for.
#include "Schermo.h"
#include "Sessione.h"

#include <algorithm>
#include <cmath>

using namespace telva::prove;

namespace {

constexpr std::uint32_t kMagenta = 0xFF00FF;

// The pop-up that was opened last lies in front.
HWND MenuAperto() { return FindWindowExW(nullptr, nullptr, L"#32768", nullptr); }

// Size of what shows a colour in a menu: "11 x 11".
std::string MisuraDelColore(HWND menu, std::uint32_t colore) {
    RECT r{};
    if (!menu || !GetWindowRect(menu, &r)) return "no menu";
    const Immagine vista = Schermo(&r);
    int sinistra = vista.larghezza, destra = -1, alto = vista.altezza, basso = -1;
    for (int y = 0; y < vista.altezza && (basso < 0 || basso == y - 1); ++y) // the first one
        for (int x = 0; x < vista.larghezza; ++x) {
            if (vista.In(x, y) != colore) continue;
            sinistra = std::min(sinistra, x), destra = std::max(destra, x);
            alto = std::min(alto, y), basso = std::max(basso, y);
        }
    if (destra < 0) return "nothing of that colour";
    return std::to_string(destra - sinistra + 1) + " x " + std::to_string(basso - alto + 1);
}

} // namespace

SCENARIO(barre_menu_coi_colori) {
    Sessione s(amb, Genere::Aste);
    s.Premi("Ctrl+A");
    s.FunzioneDiventa("Aggiungi selezione");
    const UINT nato = GetDpiForWindow(s.finestra);
    for (const UINT dpi : {nato, 2 * nato}) { // then it comes to another monitor
        if (dpi != nato) s.CambiaDpi(s.finestra, dpi);
        const int spunta = GetSystemMetricsForDpi(SM_CYMENUCHECK, dpi);
        const auto dentro = std::to_string(spunta - 2 * static_cast<int>(std::lround(dpi / 96.0)));
        Manda(Accordo("Alt+S"));
        s.Aspetta("the menu", [] { return MenuAperto() != nullptr; });
        const HWND selezioni = MenuAperto();
        Manda(Accordo("c"));
        s.Aspetta("the menu of colours", [&] { return MenuAperto() != selezioni; });
        DIVENTA(s, MisuraDelColore(MenuAperto(), kMagenta), dentro + " x " + dentro);
        for (int k = 0; k < 3; ++k) Manda(Accordo("Esc"));
        s.Principale();
    }
}
