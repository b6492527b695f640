#include "platform/win32/riquadro_win32.h"

#include "platform/mostrabile.h"
#include "platform/win32/font_win32.h"
#include "platform/win32/schermo_win32.h"

#include <cstddef>

namespace telva {
namespace {

constexpr std::size_t kColonne = 100; // without a blank; a longer line is hard to read
constexpr int kContorno = 150;        // frame, icon, button and margins at 96 DPI, each way
constexpr UINT kModo = DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS;

// What a text may take there.
SIZE Spazio(HWND proprietaria, UINT dpi) {
    RECT r{};
    if (proprietaria) GetWindowRect(proprietaria, &r);
    const RECT area = AreaDiLavoro(r);
    const int contorno = MulDiv(kContorno, static_cast<int>(dpi), 96);
    return {area.right - area.left - contorno, area.bottom - area.top - contorno};
}

// What it takes: a box breaks lines at blanks, a good half of the screen wide, but words never.
SIZE Ingombro(HDC dc, const std::string &testo, LONG larghezza) {
    RECT r{0, 0, larghezza * 5 / 8, 0};
    DrawTextW(dc, ALargo(testo).c_str(), -1, &r, kModo);
    return {r.right, r.bottom};
}

std::string Adatta(HDC dc, const std::string &testo, SIZE spazio) {
    for (std::size_t colonne = kColonne, caratteri = kCaratteriRiquadro;;) {
        std::string righe = ConRigheBrevi(Mostrabile(testo, caratteri), colonne);
        const SIZE serve = Ingombro(dc, righe, spazio.cx);
        if (serve.cx > spazio.cx && colonne > 10)
            colonne -= 5;
        else if (serve.cy > spazio.cy && caratteri > 100)
            caratteri -= 50;
        else
            return righe;
    }
}

} // namespace

std::string NelRiquadro(const std::string &testo, HWND proprietaria) {
    const HDC dc = GetDC(nullptr);
    if (!dc) return ConRigheBrevi(Mostrabile(testo, kCaratteriRiquadro), kColonne);
    const UINT dpi = DpiDi(proprietaria);
    const LOGFONTW tipo = TipoMessaggi(dpi);
    const HFONT font = CreateFontIndirectW(&tipo);
    const HGDIOBJ prima = font ? SelectObject(dc, font) : nullptr;
    std::string adatto = Adatta(dc, testo, Spazio(proprietaria, dpi));
    if (prima) SelectObject(dc, prima);
    if (font) DeleteObject(font);
    ReleaseDC(nullptr, dc);
    return adatto;
}

} // namespace telva
