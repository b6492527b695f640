// What the system does to the program, and what it is given to show: sizes and places that cannot
// be, texts of any length, the end of the session.
#include "LavoroPiccolo.h"

#include <array>
#include <cstring>

using namespace telva::prove;

namespace {

void MettiNegliAppunti(const std::wstring &testo) {
    const SIZE_T byte = (testo.size() + 1) * sizeof(wchar_t);
    const HGLOBAL blocco = GlobalAlloc(GMEM_MOVEABLE, byte);
    std::memcpy(GlobalLock(blocco), testo.c_str(), byte);
    GlobalUnlock(blocco);
    if (!OpenClipboard(nullptr)) throw Fallito("the clipboard cannot be opened");
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, blocco);
    CloseClipboard();
}

void RicordaPosto(LONG left, LONG top, LONG larghezza, LONG altezza) {
    const LONG posto[] = {left, top, larghezza, altezza, 0};
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Telva", L"Finestra", REG_BINARY, posto,
                    sizeof posto);
}

RECT Area() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

RECT Rettangolo(HWND finestra) {
    RECT r{};
    GetWindowRect(finestra, &r);
    return r;
}

bool StaDentro(const RECT &r, const RECT &area) {
    return r.left >= area.left && r.top >= area.top && r.right <= area.right &&
           r.bottom <= area.bottom;
}

// The controls of a window that are not wholly seen in it, by their texts.
std::string Fuori(HWND cima) {
    RECT interna{};
    GetClientRect(cima, &interna);
    MapWindowPoints(cima, nullptr, reinterpret_cast<POINT *>(&interna), 2);
    std::string fuori;
    for (HWND h = GetWindow(cima, GW_CHILD); h; h = GetWindow(h, GW_HWNDNEXT)) {
        std::array<wchar_t, 64> testo{};
        GetWindowTextW(h, testo.data(), static_cast<int>(testo.size()));
        if (IsWindowVisible(h) && !StaDentro(Rettangolo(h), interna))
            fuori += Utf8(testo.data()) + "; ";
    }
    return fuori;
}

} // namespace

// On a small screen with a large scale too nothing of the largest dialog is out of reach.
SCENARIO(schermo_piccolo) {
    LavoroPiccolo(amb, "prova1");
    Programma p(amb.telva, amb.Argomento("LAVORO=prova1"));
    p.Principale();
    p.Menu("Alt+Z", "p");
    const HWND dialogo = p.Dialogo("Opzioni di rappresentazione");
    VERIFICA(StaDentro(Rettangolo(dialogo), Area()));
    UGUALE(Fuori(dialogo), "");
    p.Premi("Esc");
    p.Principale();
    p.Premi("Ctrl+E");
    UGUALE(p.AttendiFine(), 0U);
}

SCENARIO(titolo_smisurato) {
    const auto lavoro = LavoroPiccolo(amb, "prova1");
    ScriviIngresso(lavoro, std::string(4000000, 'T'), "2", 0);
    Programma p(amb.telva, amb.Argomento("LAVORO=prova1"));
    const std::string titolo = p.Testo(p.Principale());
    VERIFICA(titolo.starts_with("TTTTTTTTTT"));
    VERIFICA(titolo.size() < 1000);
    UGUALE(p.Testo("StringaSel"), "2");
    p.Premi("Ctrl+E");
    UGUALE(p.AttendiFine(), 0U);
}

SCENARIO(testo_smisurato_in_una_casella) {
    LavoroPiccolo(amb, "prova1");
    Programma p(amb.telva, amb.Argomento("LAVORO=prova1"));
    p.Principale();
    p.Clic("Angolo(0)");
    p.Premi("Ctrl+A");
    MettiNegliAppunti(std::wstring(1000000, L'x'));
    p.Premi("Ctrl+V");
    p.Premi("Invio");
    const Riquadro r = p.AttendiRiquadro();
    VERIFICA(StaDentro(Rettangolo(r.finestra), Area()));
    p.ChiudiRiquadro();
    p.Premi("Ctrl+E");
    UGUALE(p.AttendiFine(), 0U);
}

// A place out of a broken registry costs neither memory nor a window that cannot be seen.
SCENARIO(posto_smisurato) {
    RicordaPosto(-900000, 900000, 150000, 150000); // twips: a picture of 400 MB
    Programma p(amb.telva, amb.Argomento(), true);
    VERIFICA(StaDentro(Rettangolo(p.Principale()), Area()));
    VERIFICA(p.LeggiRisorse().piccoByte < 250U << 20);
    p.Premi("Ctrl+E");
    UGUALE(p.AttendiFine(), 0U);
}

// Log-off ends the process without closing its window.
SCENARIO(fine_della_sessione) {
    RECT lasciato{};
    {
        Programma p(amb.telva, amb.Argomento());
        const HWND finestra = p.Principale();
        p.Dimensiona(finestra, 940, 730);
        SetWindowPos(finestra, nullptr, 63, 49, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        lasciato = Rettangolo(finestra);
        VERIFICA(SendMessageW(finestra, WM_QUERYENDSESSION, 0, 0) != 0);
        SendMessageW(finestra, WM_ENDSESSION, TRUE, 0);
    } // ended as the system does it
    Programma p(amb.telva, amb.Argomento(), true);
    const RECT ritrovato = Rettangolo(p.Principale());
    VERIFICA(EqualRect(&ritrovato, &lasciato));
    p.Premi("Ctrl+E");
    UGUALE(p.AttendiFine(), 0U);
}
