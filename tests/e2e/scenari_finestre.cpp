// How the windows are laid out: sizes, states of the main window, what its bars leave behind; where
// they stand, in a later start too; texts of any length that they have to show.
#include "Finestre.h"
#include "Sessione.h"

#include <algorithm>

using namespace telva::prove;

namespace {

constexpr SIZE kAllaNascita{.cx = 15000, .cy = 11400}; // twips: 1440 to the inch
constexpr SIZE kMinima{.cx = 5550, .cy = kAltezzaMinima};

SIZE MisuraDi(HWND finestra) {
    const RECT r = Rettangolo(finestra);
    return {r.right - r.left, r.bottom - r.top};
}

// In pixels, but never larger than the screen.
void MisuraDiventa(const Programma &p, HWND finestra, SIZE twip) {
    const auto dpi = static_cast<LONG>(GetDpiForWindow(finestra));
    const auto attesa = [dpi](LONG lato, LONG schermo) {
        return std::min((lato * dpi + 1439) / 1440, schermo);
    };
    DIVENTA(p, MisuraDi(finestra).cx, attesa(twip.cx, AreaDiLavoro().right));
    DIVENTA(p, MisuraDi(finestra).cy, attesa(twip.cy, AreaDiLavoro().bottom));
}

std::string Posto(HWND finestra) {
    const RECT r = Rettangolo(finestra);
    return std::to_string(r.left) + "," + std::to_string(r.top) + " to " + std::to_string(r.right) +
           "," + std::to_string(r.bottom);
}

std::string Appunti() {
    if (!OpenClipboard(nullptr)) return "(in use)";
    const HANDLE dato = GetClipboardData(CF_UNICODETEXT);
    const auto *testo = dato ? static_cast<const wchar_t *>(GlobalLock(dato)) : nullptr;
    const std::string letto = testo ? Utf8(testo) : "(no text)";
    if (testo) GlobalUnlock(dato);
    CloseClipboard();
    return letto;
}

} // namespace

SCENARIO(finestra_alla_nascita) {
    Programma p(amb.telva, amb.Argomento());
    const HWND finestra = p.Principale();
    MisuraDiventa(p, finestra, kAllaNascita);
    UGUALE(Difetti(p, finestra), "");
}

SCENARIO(finestra_minima) {
    Sessione s(amb, Genere::Aste, "7-14");
    s.PuntaInDisparte();
    s.Dimensiona(s.finestra, 100, 100);
    MisuraDiventa(s, s.finestra, kMinima);
    s.Premi("Ctrl+A");
    // The longest title of a function and the longest question.
    for (const char *voce : {"Orientamento", "Nome elemento"}) {
        s.Scegli("Selezioni", voce);
        s.Riscrivi("Risposta", "1");
        UGUALE(Difetti(s, s.finestra), "");
    }
}

// Dialogs of a window in the corner of the screen are still seen whole; so is a window, in its next
// start too, whose smallest size would be larger than the screen.
SCENARIO(finestre_intere) {
    {
        Sessione s(amb);
        const RECT area = AreaDiLavoro();
        const SIZE m = MisuraDi(s.finestra);
        SetWindowPos(s.finestra, nullptr, area.right - m.cx, area.bottom - m.cy, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER);
        for (const std::string chiude : {"Command1", "Chiudi"}) {
            const HWND dialogo = chiude == "Chiudi" ? s.ApriOpzioni() : s.ApriTrappola();
            VERIFICA(SiVedeIntera(dialogo));
            UGUALE(Difetti(s, dialogo), "");
            s.Clic(chiude);
            s.Principale();
        }
        Esci(s);
    }
    Programma p(amb.telva, amb.Argomento(), true);
    const HWND finestra = p.Principale();
    VERIFICA(SiVedeIntera(finestra));
    p.Dimensiona(finestra, 100, 100);
    VERIFICA(SiVedeIntera(finestra));
    UGUALE(Difetti(p, finestra), "");
}

SCENARIO(finestra_ridotta_e_massima) {
    Sessione s(amb);
    s.PuntaInDisparte();
    s.Fotografa("FrameSel");
    for (const int stato : {SW_MAXIMIZE, SW_MINIMIZE, SW_RESTORE, SW_SHOWNORMAL}) {
        ShowWindow(s.finestra, stato);
        if (stato == SW_MINIMIZE) continue;
        s.Principale();
        DIVENTA(s, Difetti(s, s.finestra), "");
    }
    s.PuntaInDisparte();
    s.FotoUguale();
}

// The bars, taken away and brought back, leave nothing behind; a text that moves is painted whole
// again.
SCENARIO(barre_tolte_e_rimesse) {
    Sessione s(amb);
    s.Premi("Ctrl+A");
    s.ChiediNomi();
    s.SottoFunzioneDiventa("Seleziona per nome elemento");
    s.PuntaInDisparte();
    s.Fotografa("Domanda");
    for (const bool mostra : {false, true}) {
        s.Scegli("Opzioni", "Barra delle icone");
        DIVENTA(s, s.Visibile("Toolbar1"), mostra);
        s.FotoUguale();
        UGUALE(Difetti(s, s.finestra), "");
    }
    s.Fotografa("FrameSel");
    for (const bool mostra : {false, true}) {
        s.PremiBottone("Attiva o disattiva la barra laterale");
        DIVENTA(s, s.Visibile("OptElem(4)"), mostra);
        s.BottoneSuggerisce("Attiva o disattiva la barra laterale",
                            mostra ? "Toglie la barra laterale" : "Aggiunge la barra laterale");
        UGUALE(Difetti(s, s.finestra), "");
    }
    s.PuntaInDisparte();
    s.FotoUguale();
}

// With the side bar goes the box that has the focus, and a wrong number in it.
SCENARIO(barre_tolte_con_un_numero_sbagliato) {
    Sessione s(amb);
    s.Riscrivi("IntX(0)", "abc");
    s.PremiBottone("Attiva o disattiva la barra laterale");
    ChiudiRiquadro(s, {.titolo = "ERRORE",
                       .testo = "Intervallo di coordinate non valido: abc",
                       .icona = "errore"});
    DIVENTA(s, s.Visibile("IntX(0)"), false);
    s.PuntaInDisparte();
    s.Fotografa("Disegno");
    s.Premi("Ctrl+Destra"); // a text box would keep it
    s.FotoDiversa();
}

// Every run begins where the one before ended.
SCENARIO(posto_ricordato) {
    std::string scelto;
    {
        Programma p(amb.telva, amb.Argomento());
        const HWND finestra = p.Principale();
        p.Dimensiona(finestra, 930, 720);
        SetWindowPos(finestra, nullptr, 61, 47, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        scelto = Posto(finestra);
        Esci(p);
    }
    {
        Programma p(amb.telva, amb.Argomento(), true);
        const HWND finestra = p.Principale();
        UGUALE(Posto(finestra), scelto);
        { // two at once can both be seen
            Programma altra(amb.telva, amb.Argomento(), true);
            VERIFICA(Rettangolo(altra.Principale()).left > Rettangolo(finestra).left);
            Esci(altra);
        }
        ShowWindow(finestra, SW_MAXIMIZE);
        Esci(p);
    }
    {
        Programma p(amb.telva, amb.Argomento(), true);
        const HWND finestra = p.Principale();
        VERIFICA(IsZoomed(finestra));
        ShowWindow(finestra, SW_RESTORE);
        UGUALE(Posto(finestra), scelto);
        SetWindowPos(finestra, nullptr, 63, 49, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        scelto = Posto(finestra);
        // Log-off ends the process without closing its window: the system kills it.
        VERIFICA(SendMessageW(finestra, WM_QUERYENDSESSION, 0, 0) != 0);
        SendMessageW(finestra, WM_ENDSESSION, TRUE, 0);
    }
    Programma p(amb.telva, amb.Argomento(), true);
    UGUALE(Posto(p.Principale()), scelto);
    Esci(p);
}

// A place on no monitor, or one out of a broken registry, costs neither memory nor a window that
// cannot be seen.
SCENARIO(posto_impossibile) {
    const struct {
        LONG sinistra, sopra, larghezza = 9000, altezza = 8000, massima = 0; // pixels, then twips
    } posti[] = {
        {.sinistra = 30000, .sopra = -20000},
        {.sinistra = -900000, .sopra = 900000, .larghezza = 150000, .altezza = 150000}}; // 400 MB
    for (const auto &posto : posti) {
        RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Telva", L"Finestra", REG_BINARY, &posto,
                        sizeof posto);
        Programma p(amb.telva, amb.Argomento(), true);
        VERIFICA(SiVedeIntera(p.Principale()));
        AL_PIU(p.LeggiRisorse().piccoByte >> 20, 250U);
        Esci(p);
    }
}

// Texts are shown cut, and copied whole.
SCENARIO(testo_smisurato) {
    const auto lavoro = LavoroPiccolo(amb);
    std::filesystem::remove(lavoro / "STRUTTUR.STR"); // the caller's list comes back as it is
    std::string lista = "777", riga, breve;
    for (int k = 1; k < 1250; ++k) lista += ",777";
    ScriviIngresso(lavoro, std::string(4000000, 'T'), lista, 0);
    Programma p(amb.telva, amb.Argomento("LAVORO=prova1"));
    p.ChiudiRiquadro();
    UGUALE(p.Testo("StringaSel"), lista.substr(0, 3999) + "…");
    for (int k = 0; k < 17; ++k) riga += "777,";
    for (int k = 0; k < 11; ++k) breve += riga + "\r\n";
    breve += "… Ctrl+C copia tutto";
    DIVENTA(p, p.Suggerimenti(p.Principale())[p.Controllo("StringaSel")], breve);
    p.Clic("StringaSel");
    p.Premi("Ctrl+C");
    DIVENTA(p, Appunti(), lista);
    const std::string titolo = p.Testo(p.Principale());
    AL_PIU(11U, titolo.size());
    AL_PIU(titolo.size(), 999U);
    p.Clic("Angolo(0)");
    const std::wstring testo(1000000, L'W');
    SendMessageW(p.Controllo("Angolo(0)"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(testo.c_str()));
    p.Premi("Invio");
    VERIFICA(SiVedeIntera(p.AttendiRiquadro().finestra));
    p.ChiudiRiquadro();
    Esci(p);
}
