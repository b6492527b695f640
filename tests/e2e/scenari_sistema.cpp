// What the system does to the program, and what it is given to show: sizes and places that cannot
// be, texts of any length, the end of the session.
#include "Finestre.h"
#include "LavoroPiccolo.h"

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

} // namespace

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
    VERIFICA(SiVedeIntera(r.finestra));
    p.ChiudiRiquadro();
    p.Premi("Ctrl+E");
    UGUALE(p.AttendiFine(), 0U);
}

// A place out of a broken registry costs neither memory nor a window that cannot be seen.
SCENARIO(posto_smisurato) {
    RicordaPosto(-900000, 900000, 150000, 150000); // twips: a picture of 400 MB
    Programma p(amb.telva, amb.Argomento(), true);
    VERIFICA(SiVedeIntera(p.Principale()));
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
