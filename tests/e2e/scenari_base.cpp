// Start, a selection by name, and the two ways out, as a caller and an engineer see them.
#include "LavoroPiccolo.h"

using namespace telva::prove;
namespace fs = std::filesystem;

namespace {

std::string TitoloAtteso(const std::string &titolo, const fs::path &lavoro) {
    return titolo + " - " + Utf8(lavoro.wstring());
}

void ScegliNome(Programma &p, const std::string &lista) {
    p.Menu("Alt+S", "o");
    DIVENTA(p, p.Testo("SottoFunAttiva"), "Seleziona per nome elemento");
    UGUALE(p.Testo("Domanda"), "Inserire i nomi degli elementi e premere INVIO");
    p.Scrivi("Risposta", lista);
    p.Premi("Invio");
}

} // namespace

SCENARIO(selezione_per_nome_e_salva) {
    const auto lavoro = LavoroPiccolo(amb, "prova1");
    ScriviIngresso(lavoro, "  Città di prova ", " 8,12 ", 1);
    Programma p(amb.telva, amb.Argomento("LAVORO=prova1|"));
    HWND finestra = p.Principale();
    UGUALE(p.Testo(finestra), TitoloAtteso("Città di prova", lavoro));
    for (int k = 0; k < 5; ++k) UGUALE(p.Spuntato("OptElem(" + std::to_string(k) + ")"), k == 1);
    UGUALE(p.Testo("StringaSel"), "8,12");
    UGUALE(p.Testo("FunAttiva"), "");
    UGUALE(p.Abilitato("Risposta"), false);

    p.Premi("Ctrl+A");
    DIVENTA(p, p.Testo("FunAttiva"), "Aggiungi selezione");
    UGUALE(p.Testo("SottoFunAttiva"), "Selezione diretta");
    ScegliNome(p, "9");
    DIVENTA(p, p.Testo("StringaSel"), "8-9,12");
    p.Scrivi("Risposta", ",7"); // the text stays in the box, so this makes 9,7
    p.Premi("Invio");
    DIVENTA(p, p.Testo("StringaSel"), "7,7-9,12");

    p.Premi("Ctrl+G");
    UGUALE(p.AttendiFine(), 0U);
    UGUALE(LeggiByte(lavoro / "TelvaOut.txt").value_or("(no file)"), "7,7-9,12\r\n");
}

SCENARIO(uscita_senza_scrivere) {
    const auto lavoro = LavoroPiccolo(amb, "prova1");
    ScriviIngresso(lavoro, "Prova", "2", 0);
    Programma p(amb.telva, amb.Argomento("LAVORO=prova1"));
    p.Principale();
    UGUALE(p.Testo("StringaSel"), "2");
    p.Premi("Ctrl+E");
    UGUALE(p.AttendiFine(), 0U);
    VERIFICA(!LeggiByte(lavoro / "TelvaOut.txt"));
}

// Without |LAVORO= the job is that of the settings file; with it another one, in the very next
// start.
SCENARIO(altro_lavoro) {
    const auto impostato =
        LeggiByte(amb.dati / "impostazioni" / "lavoro").value_or("").substr(0, 6);
    const auto lavoro = amb.Lavori() / impostato, altro = LavoroPiccolo(amb, "Prova2");
    ScriviIngresso(lavoro, "Primo", "", 2);
    ScriviIngresso(altro, "Secondo", "0", 0);
    struct {
        const char *argomento;
        std::string titolo;
        const char *tipo, *uscita;
    } const avvii[] = {
        {"", TitoloAtteso("Primo", lavoro), "OptElem(2)", " \r\n"},
        {"lavoro=Prova2|resto", TitoloAtteso("Secondo", altro), "OptElem(0)", "1,1-4,20\r\n"},
    };
    for (const auto &a : avvii) {
        Programma p(amb.telva, amb.Argomento(a.argomento));
        UGUALE(p.Testo(p.Principale()), a.titolo);
        VERIFICA(p.Spuntato(a.tipo));
        p.Menu("Alt+F", "a");
        UGUALE(p.AttendiFine(), 0U);
    }
    UGUALE(LeggiByte(lavoro / "TelvaOut.txt").value_or("(no file)"), avvii[0].uscita);
    UGUALE(LeggiByte(altro / "TelvaOut.txt").value_or("(no file)"), avvii[1].uscita);
}

namespace {

RECT PostoDi(HWND finestra) {
    RECT posto{};
    GetWindowRect(finestra, &posto);
    return posto;
}

void Esci(Programma &p) {
    p.Premi("Ctrl+E");
    UGUALE(p.AttendiFine(), 0U);
}

void VerificaStessoPosto(HWND finestra, const RECT &atteso) {
    const RECT visto = PostoDi(finestra);
    UGUALE(visto.left, atteso.left);
    UGUALE(visto.top, atteso.top);
    UGUALE(visto.right, atteso.right);
    UGUALE(visto.bottom, atteso.bottom);
}

} // namespace

// Every run begins where the one before ended.
SCENARIO(posto_ricordato) {
    RECT scelto{};
    {
        Programma p(amb.telva, amb.Argomento());
        const HWND finestra = p.Principale();
        p.Dimensiona(finestra, 930, 720);
        SetWindowPos(finestra, nullptr, 61, 47, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        scelto = PostoDi(finestra);
        VERIFICA(!IsZoomed(finestra));
        Esci(p);
    }
    {
        Programma p(amb.telva, amb.Argomento(), true);
        const HWND finestra = p.Principale();
        VerificaStessoPosto(finestra, scelto);
        { // two at once can both be seen
            Programma altra(amb.telva, amb.Argomento(), true);
            const RECT posto = PostoDi(altra.Principale());
            VERIFICA(posto.left > scelto.left);
            VERIFICA(posto.top > scelto.top);
            Esci(altra);
        }
        ShowWindow(finestra, SW_MAXIMIZE);
        Esci(p);
    }
    Programma p(amb.telva, amb.Argomento(), true);
    const HWND finestra = p.Principale();
    VERIFICA(IsZoomed(finestra));
    ShowWindow(finestra, SW_RESTORE);
    VerificaStessoPosto(finestra, scelto);
    Esci(p);
}

// A place on no monitor is mended.
SCENARIO(posto_fuori_da_ogni_schermo) {
    const LONG sinistra = 30000, sopra = -20000, larghezza = 9000, altezza = 8000, massima = 0;
    const LONG lontano[] = {sinistra, sopra, larghezza, altezza, massima};
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Telva", L"Finestra", REG_BINARY, lontano,
                    sizeof lontano);
    Programma p(amb.telva, amb.Argomento(), true);
    const RECT posto = PostoDi(p.Principale());
    VERIFICA(posto.left >= 0);
    VERIFICA(posto.top >= 0);
    VERIFICA(posto.right <= GetSystemMetrics(SM_CXSCREEN));
    VERIFICA(posto.bottom <= GetSystemMetrics(SM_CYSCREEN));
    Esci(p);
}
