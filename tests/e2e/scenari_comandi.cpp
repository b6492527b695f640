// Commands by each of their doors (menu, tool bar, keys), submenus, answer box, and what is grey.
#include "Sessione.h"
#include "ui/comandi.h"

using namespace telva::prove;

namespace {

enum class Porta { Bottone, Menu, Tasti, TastiNellaRisposta };

// A command by the tip of its button, and the menu it stands in.
struct Comando {
    const telva::Comando *riga, *menu;
};
Comando ConSuggerimento(const std::string &suggerimento) {
    Comando comando{};
    for (const telva::Comando &c : telva::TabellaComandi()) {
        if (c.livello == 0) comando.menu = &c;
        comando.riga = &c;
        if (c.suggerimento && c.suggerimento == suggerimento) return comando;
    }
    Fallisci("no command '" + suggerimento + "'");
}

// The keys act from the answer box too, and not on its text.
void Esegui(Sessione &s, const Comando &comando, Porta porta) {
    const auto [riga, menu] = comando;
    const std::string tasti = std::string("Ctrl+") + riga->scorciatoia;
    switch (porta) {
    case Porta::Bottone: return s.PremiBottone(riga->suggerimento);
    case Porta::Menu: return s.Scegli(SenzaSegno(menu->didascalia), SenzaSegno(riga->didascalia));
    case Porta::Tasti: return s.Premi(tasti);
    case Porta::TastiNellaRisposta:
        s.Premi("Ctrl+A");
        s.ChiediNomi();
        s.Riscrivi("Risposta", "5");
        return s.Premi(tasti);
    }
}

std::vector<Porta> Porte(const Comando &comando) {
    if (!comando.riga->scorciatoia) return {Porta::Bottone, Porta::Menu};
    return {Porta::Bottone, Porta::Menu, Porta::Tasti, Porta::TastiNellaRisposta};
}

const std::string kTutte = "7,7-9,12,14"; // the bars

// What stands once a command has run that began with all bars selected, to add some.
const struct {
    std::string comando, funzione = "Aggiungi selezione", sottoFunzione = "Selezione diretta",
                         lista = kTutte;
} kComandi[] = {
    {.comando = "Zoom", .sottoFunzione = "Zoom"},
    {.comando = "Aggiungi selezione"},
    {.comando = "Rimuovi selezione", .funzione = "Rimuovi selezione"},
    {.comando = "Rimuovi tutto", .lista = ""},
    {.comando = "Inverti selezione", .sottoFunzione = "", .lista = ""},
};

} // namespace

SCENARIO(comandi_per_ogni_porta) {
    Sessione s(amb);
    for (const auto &caso : kComandi) {
        const Comando comando = ConSuggerimento(caso.comando);
        s.BottoneSuggerisce(caso.comando, caso.comando);
        for (const Porta porta : Porte(comando)) {
            s.Premi("Ctrl+A");
            s.Scegli("Selezioni", "Tutto");
            s.ListaDiventa(kTutte);
            Esegui(s, comando, porta);
            s.FunzioneDiventa(caso.funzione);
            s.SottoFunzioneDiventa(caso.sottoFunzione);
            s.ListaDiventa(caso.lista);
            s.Premi("Esc");
            s.FunzioneDiventa("");
        }
    }
}

SCENARIO(comandi_che_finiscono) {
    const struct {
        std::string comando, file;
    } uscite[] = {{.comando = "Aggiorna ed esci", .file = "9,14\r\n"},
                  {.comando = "Esci", .file = "(no file)"}};
    for (const auto &uscita : uscite)
        for (const Porta porta : Porte(ConSuggerimento(uscita.comando))) {
            Sessione s(amb, Genere::Aste, "9,14");
            Esegui(s, ConSuggerimento(uscita.comando), porta);
            UGUALE(s.AttendiFine(), 0U);
            UGUALE(Scritto(s.lavoro), uscita.file);
        }
    Sessione s(amb);
    s.Premi("Alt+F4");
    UGUALE(s.AttendiFine(), 0U);
}

// A submenu, items by their access key and by their place, and the answer box.
SCENARIO(comandi_di_selezione) {
    Sessione s(amb);
    const struct {
        Genere genere;
        std::string voce, sotto{}, risposta{}, lista;
    } casi[] = {
        {.genere = Genere::Nodi, .voce = "Tutto", .lista = "1,1-4,20"},
        {.genere = Genere::Gusci, .voce = "Tipo tratteggio", .sotto = "8", .lista = "38"},
        {.genere = Genere::Aste, .voce = "Colore", .sotto = "Arancione", .lista = "9,12"},
        {.genere = Genere::Aste, .voce = "Nome elemento", .risposta = "1-3-9", .lista = "7,7-9"},
        {.genere = Genere::Aste, .voce = "Orientamento", .risposta = "1", .lista = "7,7-8"}};
    for (const auto &caso : casi) {
        s.Scegli(caso.genere);
        s.Premi("Ctrl+A");
        s.Scegli("Operazioni", "Rimuovi tutto");
        s.ListaDiventa("");
        s.Scegli("Selezioni", caso.voce, caso.sotto);
        if (!caso.risposta.empty()) s.Invia("Risposta", caso.risposta);
        s.ListaDiventa(caso.lista);
    }
    s.TestoDiventa("Domanda", "Inserire i numeri delle schede di orientamento e premere INVIO");
    s.Digita("7"); // the box has kept text and focus
    s.TestoDiventa("Risposta", "17");
    s.Invia("Risposta", "0-20000");
    ChiudiRiquadro(s, {.titolo = "ERRORE",
                       .testo = " La stringa di selezione comprende troppi elementi ",
                       .icona = "avviso"});
}

// A grey command runs nothing: seen once a later command has had its effect. A grey submenu does
// not open: two Escapes close what is open of menu and submenu, and one that opened would want one
// more.
SCENARIO(comandi_spenti) {
    Sessione s(amb);
    const auto siApre = [&s](const std::string &voce) {
        s.Premi("Ctrl+A");
        s.Scegli("Selezioni", voce);
        s.Premi("Ctrl+Z");
        s.SottoFunzioneDiventa("Zoom");
        return s.Abilitato("Risposta");
    };
    UGUALE(siApre("Materiale"), true);
    UGUALE(siApre("Vincolo"), false);
    s.Premi("Ctrl+A");
    s.Menu("Alt+S", "p Esc Esc"); // "Tipo punto"
    s.Premi("Esc");               // without a function every selection is grey
    s.FunzioneDiventa("");
    s.ChiediNomi();
    s.Premi("Ctrl+Z");
    s.SottoFunzioneDiventa("Zoom");
    UGUALE(s.Abilitato("Risposta"), false);
}

// Escape ends everything from wherever the focus is; with nothing pending, Enter selects nothing.
SCENARIO(esc_da_ogni_controllo) {
    Sessione s(amb, Genere::Aste, "8");
    for (const char *dove :
         {"Risposta", "Angolo(0)", "NodiAtt", "OptElem(1)", "TuttoX", "StringaSel", "Disegno"}) {
        s.Premi("Ctrl+A");
        s.ChiediNomi();
        s.Riscrivi("Risposta", "7");
        s.Clic(dove);
        s.Premi("Esc");
        s.NienteInCorso();
        s.TestoDiventa("Risposta", "");
        DIVENTA(s, s.Abilitato("Risposta"), false);
        s.Premi("Invio");
        s.ListaDiventa("8");
    }
}
