// How the windows are laid out: sizes, states of the main window, what its bars leave behind.
#include "Finestre.h"
#include "Sessione.h"

#include <algorithm>

using namespace telva::prove;

namespace {

struct Misura {
    LONG larghezza, altezza;
};

Misura MisuraDi(HWND finestra) {
    RECT r{};
    GetWindowRect(finestra, &r);
    return {r.right - r.left, r.bottom - r.top};
}

// A size in twips (1440 to the inch) as pixels, but never larger than the screen.
Misura InPixel(HWND finestra, Misura twip) {
    const auto dpi = static_cast<LONG>(GetDpiForWindow(finestra));
    const RECT area = AreaDiLavoro();
    return {std::min((twip.larghezza * dpi + 1439) / 1440, area.right),
            std::min((twip.altezza * dpi + 1439) / 1440, area.bottom)};
}

constexpr Misura kAllaNascita{.larghezza = 15000, .altezza = 11400};
const struct {
    const char *voce, *tasti, *titolo, *chiude;
} kDialoghi[] = {
    {.voce = "Trappola...", .tasti = "t", .titolo = "Opzioni", .chiude = "Command1"},
    {.voce = "Opzioni...",
     .tasti = "p",
     .titolo = "Opzioni di rappresentazione",
     .chiude = "Chiudi"},
};
constexpr Misura kMinima{.larghezza = 5550, .altezza = 7120};

void Comanda(Sessione &s, WPARAM comando) {
    PostMessageW(s.finestra, WM_SYSCOMMAND, comando, 0);
    s.p.Aspetta("the window's new state", [&] {
        return (comando == SC_MINIMIZE) == (IsIconic(s.finestra) != 0) &&
               (comando == SC_MAXIMIZE) == (IsZoomed(s.finestra) != 0);
    });
    if (comando != SC_MINIMIZE) s.p.Principale();
}

} // namespace

SCENARIO(finestra_alla_nascita) {
    Programma p(amb.telva, amb.Argomento());
    const HWND finestra = p.Principale();
    const Misura vista = MisuraDi(finestra), attesa = InPixel(finestra, kAllaNascita);
    UGUALE(vista.larghezza, attesa.larghezza);
    UGUALE(vista.altezza, attesa.altezza);
    UGUALE(Difetti(p, finestra), "");
}

SCENARIO(finestra_minima) {
    Sessione s(amb, Genere::Aste, "7-14");
    s.PuntaInDisparte();
    s.Dimensiona(100, 100);
    const Misura attesa = InPixel(s.finestra, kMinima);
    DIVENTA(s.p, MisuraDi(s.finestra).larghezza, attesa.larghezza);
    DIVENTA(s.p, MisuraDi(s.finestra).altezza, attesa.altezza);
    s.Premi("Ctrl+A");
    // The longest title of a function and the longest question.
    for (const char *voce : {"Orientamento", "Nome elemento"}) {
        s.Menu("Selezioni", voce);
        s.Riscrivi("Risposta", "1");
        UGUALE(Difetti(s.p, s.finestra), "");
    }
}

// A dialog of a window in the corner of the screen is still seen whole.
SCENARIO(dialoghi_nell_angolo) {
    Sessione s(amb);
    const RECT area = AreaDiLavoro();
    const Misura m = MisuraDi(s.finestra);
    SetWindowPos(s.finestra, nullptr, area.right - m.larghezza, area.bottom - m.altezza, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER);
    for (const auto &caso : kDialoghi) {
        s.Menu("Opzioni", caso.voce);
        const HWND dialogo = s.AttendiDialogo(caso.titolo);
        VERIFICA(SiVedeIntera(dialogo));
        UGUALE(Difetti(s.p, dialogo), "");
        s.Premi("Esc");
        s.AttendiFinestra();
    }
}

// Where the window may not become as small as the screen is, it is laid out smaller, and so are the
// dialogs: nothing is out of reach, at the first start and at every later one.
SCENARIO(schermo_piccolo) {
    LavoroPiccolo(amb);
    for (const bool ricorda : {false, true}) {
        Programma p(amb.telva, amb.Argomento("LAVORO=prova1"), ricorda);
        const HWND finestra = p.Principale();
        for (const Misura &m : {MisuraDi(finestra), Misura{.larghezza = 100, .altezza = 100}}) {
            p.Dimensiona(finestra, m.larghezza, m.altezza);
            DIVENTA(p, SiVedeIntera(finestra), true);
            UGUALE(FuoriPosto(p, finestra), "");
        }
        for (const auto &caso : kDialoghi) {
            p.Menu("Alt+Z", caso.tasti);
            const HWND dialogo = p.Dialogo(caso.titolo);
            VERIFICA(SiVedeIntera(dialogo));
            UGUALE(FuoriPosto(p, dialogo), "");
            p.Clic(caso.chiude);
            p.Principale();
        }
        p.Dimensiona(finestra, AreaDiLavoro().right, AreaDiLavoro().bottom);
        p.Premi("Ctrl+E");
        UGUALE(p.AttendiFine(), 0U);
    }
}

SCENARIO(finestra_ridotta_e_massima) {
    Sessione s(amb);
    s.PuntaInDisparte();
    s.Fotografa("FrameSel");
    Comanda(s, SC_MINIMIZE);
    Comanda(s, SC_RESTORE);
    Comanda(s, SC_MAXIMIZE);
    UGUALE(Difetti(s.p, s.finestra), "");
    Comanda(s, SC_RESTORE);
    s.PuntaInDisparte();
    s.FotoUguale();
    UGUALE(Difetti(s.p, s.finestra), "");
}

// The bars, taken away and brought back, leave nothing behind.
SCENARIO(barre_tolte_e_rimesse) {
    Sessione s(amb);
    s.PuntaInDisparte();
    s.Fotografa("FrameSel");
    for (const char *barra :
         {"Barra laterale", "Barra delle icone", "Barra laterale", "Barra delle icone"}) {
        s.Menu("Opzioni", barra);
        s.Premi("Ctrl+Z");
        s.SottoFunzioneDiventa("Zoom");
        s.Premi("Esc");
        s.SottoFunzioneDiventa("");
        UGUALE(Difetti(s.p, s.finestra), "");
    }
    s.PuntaInDisparte();
    s.FotoUguale();
}
