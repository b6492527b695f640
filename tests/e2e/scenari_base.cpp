// Start, a selection by name, and the two ways out, as a caller and an engineer see them.
#include "LavoriProva.h"

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

// Every run begins where the one before ended; a place on no monitor is mended.
SCENARIO(posto_ricordato) {
    RECT prima{}, ora{};
    const auto stessa = [&] { return EqualRect(&prima, &ora) != 0; };
    for (int giro = 0; giro < 4; ++giro) {
        if (giro == 3) {
            const LONG lontano[] = {30000, -20000, 9000, 8000, 0};
            RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Telva", L"Finestra", REG_BINARY, lontano,
                            sizeof lontano);
        }
        Programma p(amb.telva, amb.Argomento(), giro > 0);
        const HWND f = p.Principale();
        if (giro == 0) {
            p.Dimensiona(f, 930, 720);
            SetWindowPos(f, nullptr, 61, 47, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
            GetWindowRect(f, &prima);
        }
        UGUALE(IsZoomed(f) != 0, giro == 2);
        if (giro == 1) { // two at once can both be seen
            Programma altra(amb.telva, amb.Argomento(), true);
            GetWindowRect(altra.Principale(), &ora);
            VERIFICA(ora.left > prima.left && ora.top > prima.top);
            altra.Premi("Ctrl+E"), UGUALE(altra.AttendiFine(), 0U);
        }
        if (giro == 1) ShowWindow(f, SW_MAXIMIZE);
        if (giro == 2) ShowWindow(f, SW_RESTORE);
        GetWindowRect(f, &ora);
        if (giro == 2) VERIFICA(stessa());
        if (giro == 3) {
            VERIFICA(ora.left >= 0 && ora.top >= 0 && ora.right <= GetSystemMetrics(SM_CXSCREEN));
            VERIFICA(ora.bottom <= GetSystemMetrics(SM_CYSCREEN) && !stessa());
        }
        p.Premi("Ctrl+E");
        UGUALE(p.AttendiFine(), 0U);
    }
}

SCENARIO(avvio_sbagliato) {
    const auto radice = fs::temp_directory_path() / "telva_avvio";
    std::wstring minuscola = radice.wstring();
    CharLowerBuffW(minuscola.data(), static_cast<DWORD>(minuscola.size()));
    const std::string dir = Utf8(minuscola);
    const std::string mancaArgomento = "Avvio del programma: argomento non presente";
    const std::string mancaDirlav =
        "Errore: file " + dir + "\\impostazioni\\dirlav errato o mancante";
    const std::string mancaLavoro =
        "Errore: file " + dir + "\\impostazioni\\lavoro errato o mancante";
    const std::string nonLavori =
        "Errore: il direttorio dei lavori deve terminare con < \\lavori >";
    const std::string argomento = "|diroot=" + Utf8(radice.wstring()) + "|";
    struct { // an empty file text means that there is no such file
        std::string argomento, dirlav, lavoro, testo, icona;
    } const casi[] = {
        {"", "", "", mancaArgomento, "errore"},
        {"   ", "", "", mancaArgomento, "errore"},
        {"|altro=1|", "", "", mancaArgomento, "errore"},
        {argomento, "", "dimo01\n", mancaDirlav, "avviso"},
        {argomento, "c:\\lav\n", "dimo01\n", mancaDirlav, "avviso"},
        {argomento, "c:\\x\\lavoro\\\n", "dimo01\n", nonLavori, "avviso"},
        {argomento, "c:\\x\\lavori\n", "", mancaLavoro, "avviso"},
        {argomento, "c:\\x\\lavori\\\n", "ab12c\n", mancaLavoro, "avviso"},
    };
    for (const auto &c : casi) {
        fs::remove_all(radice);
        if (!c.dirlav.empty()) ScriviFile(radice / "impostazioni" / "dirlav", c.dirlav);
        if (!c.lavoro.empty()) ScriviFile(radice / "impostazioni" / "lavoro", c.lavoro);
        Programma p(amb.telva, Largo(c.argomento));
        const auto r = p.ChiudiRiquadro();
        UGUALE(r.titolo, "ERRORE");
        UGUALE(r.testo, c.testo);
        UGUALE(r.icona, c.icona);
        VERIFICA(p.AttendiFine() <= 1U); // a crash has another code
    }
    fs::remove_all(radice);
}
