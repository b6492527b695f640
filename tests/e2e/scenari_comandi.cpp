// Every command by each of its doors (menu, tool bar, keys), and the selections they start.
#include "Sessione.h"

#include <array>
#include <cctype>
#include <utility>

using namespace telva::prove;

namespace {

enum class Porta { Bottone, Menu, Tasti, TastiNellaRisposta };

struct Comando {
    std::string suggerimento, menu, voce, tasti; // without keys: by menu and tool bar only
};

// The keys act from the answer box too, and not on its text.
void Esegui(Sessione &s, const Comando &comando, Porta porta) {
    switch (porta) {
    case Porta::Bottone: return s.PremiBottone(comando.suggerimento);
    case Porta::Menu: return s.Menu(comando.menu, comando.voce);
    case Porta::Tasti: return s.Premi(comando.tasti);
    case Porta::TastiNellaRisposta:
        s.Premi("Ctrl+A");
        s.ChiediNomi();
        s.Riscrivi("Risposta", "5");
        return s.Premi(comando.tasti);
    }
}

std::vector<Porta> Porte(const Comando &comando) {
    if (comando.tasti.empty()) return {Porta::Bottone, Porta::Menu};
    return {Porta::Bottone, Porta::Menu, Porta::Tasti, Porta::TastiNellaRisposta};
}

using Passi = void (*)(Sessione &);
void Nulla(Sessione &) {}

void NasconteIlNodo1(Sessione &s) { s.Riscrivi("IntX(0)", "300"); }
void IlNodo1Sparisce(Sessione &s) {
    s.NonSiVede(1);
    s.Riscrivi("IntX(0)", "0");
    s.Premi("Invio");
    s.SiVede(1);
}
void IngrandisceMolto(Sessione &s) {
    s.Rotella(9);
    s.NonSiVede(4);
}
void LaBarraLateraleVaEViene(Sessione &s) {
    const std::string bottone = "Attiva o disattiva la barra laterale";
    for (const char *nome : {"FrameSel", "FrameAtt", "OptElem(4)"}) s.Nascosto(nome);
    s.BottoneSuggerisce(bottone, "Aggiunge la barra laterale");
    s.Menu("Opzioni", "Barra laterale");
    for (const char *nome : {"FrameSel", "FrameAtt", "OptElem(4)"}) s.Visibile(nome);
    s.BottoneSuggerisce(bottone, "Toglie la barra laterale");
    s.Menu("Opzioni", "Barra laterale");
}

const struct {
    Comando comando;
    Passi prima, effetto;
} kComandi[] = {{.comando = {"Ottimizza", "Visualizza", "Ottimizza", "Ctrl+O"},
                 .prima = IngrandisceMolto,
                 .effetto = [](Sessione &s) { s.NodoStaIn(4, Nodo(4)); }},
                {.comando = {"Zoom", "Visualizza", "Zoom", "Ctrl+Z"},
                 .prima = Nulla,
                 .effetto = [](Sessione &s) { s.SottoFunzioneDiventa("Zoom"); }},
                {.comando = {"Sposta", "Visualizza", "Sposta", "Ctrl+S"},
                 .prima = Nulla,
                 .effetto = [](Sessione &s) { s.SottoFunzioneDiventa("Sposta"); }},
                {.comando = {"Ridisegna", "Visualizza", "Ridisegna", "Ctrl+R"},
                 .prima = NasconteIlNodo1,
                 .effetto = IlNodo1Sparisce},
                {.comando = {"Aggiungi selezione", "Operazioni", "Aggiungi", "Ctrl+A"},
                 .prima = Nulla,
                 .effetto =
                     [](Sessione &s) {
                         s.FunzioneDiventa("Aggiungi selezione");
                         s.SottoFunzioneDiventa("Selezione diretta");
                     }},
                {.comando = {"Rimuovi selezione", "Operazioni", "Rimuovi", "Ctrl+T"},
                 .prima = Nulla,
                 .effetto =
                     [](Sessione &s) {
                         s.FunzioneDiventa("Rimuovi selezione");
                         s.SottoFunzioneDiventa("Selezione diretta");
                     }},
                {.comando = {"Inverti selezione", "Operazioni", "Inverti selezione", ""},
                 .prima =
                     [](Sessione &s) {
                         s.Menu("Operazioni", "Rimuovi tutto");
                         s.ListaDiventa("");
                     },
                 .effetto = [](Sessione &s) { s.ListaDiventa("7,7-9,12,14"); }},
                {.comando = {"Rimuovi tutto", "Operazioni", "Rimuovi tutto", ""},
                 .prima = Nulla,
                 .effetto =
                     [](Sessione &s) {
                         s.ListaDiventa("");
                         s.SottoFunzioneDiventa("Selezione diretta");
                     }},
                {.comando = {"Interrompi", "Operazioni", "Interrompi", ""},
                 .prima =
                     [](Sessione &s) {
                         s.Premi("Ctrl+T");
                         s.FunzioneDiventa("Rimuovi selezione");
                     },
                 .effetto = [](Sessione &s) { s.NienteInCorso(); }}};

// How a property of an element kind answers: it starts, is refused and its command grey, or nothing
// happens.
enum class Esito { Parte, Rifiutata, Nulla };
constexpr auto P = Esito::Parte, R = Esito::Rifiutata, N = Esito::Nulla;

const struct {
    const char *voce;
    std::string nome;
    std::array<Esito, 5> esiti; // by element kind: nodes, bars, shells, continuous elements, walls
} kProprieta[] = {{.voce = "Materiale", .nome = "materiale", .esiti = {R, P, P, P, P}},
                  {.voce = "Nome elemento", .nome = "nome elemento", .esiti = {P, P, P, P, P}},
                  {.voce = "Sezione", .nome = "sezione", .esiti = {R, P, R, P, N}},
                  {.voce = "Spessore", .nome = "spessore", .esiti = {R, R, P, R, N}},
                  {.voce = "Orientamento", .nome = "orientamento", .esiti = {R, P, R, P, N}},
                  {.voce = "Svincolo", .nome = "svincolo", .esiti = {R, P, R, R, N}},
                  {.voce = "Vincolo", .nome = "vincolo", .esiti = {P, R, R, R, N}}};

std::string Domanda(const std::string &nome) {
    const std::string cosa =
        nome == "nome elemento" ? "i nomi degli elementi" : "i numeri delle schede di " + nome;
    return "Inserire " + cosa + " e premere INVIO";
}

} // namespace

SCENARIO(comandi_per_ogni_porta) {
    Sessione s(amb, Genere::Aste, "8");
    for (const auto &[comando, prima, effetto] : kComandi) {
        s.BottoneSuggerisce(comando.suggerimento, comando.suggerimento);
        for (const Porta porta : Porte(comando)) {
            prima(s);
            Esegui(s, comando, porta);
            effetto(s);
            s.Premi("Esc");
            s.NienteInCorso();
        }
    }
    const Comando barra{"Attiva o disattiva la barra laterale", "Opzioni", "Barra laterale", ""};
    s.BottoneSuggerisce(barra.suggerimento, barra.suggerimento);
    for (const Porta porta : Porte(barra)) {
        Esegui(s, barra, porta);
        LaBarraLateraleVaEViene(s);
        s.Menu("Opzioni", "Barra laterale");
        s.Visibile("FrameSel");
    }
}

SCENARIO(uscite_per_ogni_porta) {
    const struct {
        Comando comando;
        std::string file;
    } uscite[] = {
        {.comando = {"Aggiorna ed esci", "File", "Aggiorna ed Esci", "Ctrl+G"}, .file = "9,14\r\n"},
        {.comando = {"Esci", "File", "Esci", "Ctrl+E"}, .file = "-"}};
    for (const auto &uscita : uscite)
        for (const Porta porta : Porte(uscita.comando)) {
            Sessione s(amb, Genere::Aste, "9,14");
            Esegui(s, uscita.comando, porta);
            UGUALE(s.p.AttendiFine(), 0U);
            UGUALE(LeggiByte(s.lavoro / "TelvaOut.txt").value_or("-"), uscita.file);
        }
}

SCENARIO(selezioni_per_attributo) {
    Sessione s(amb);
    const struct {
        Genere genere;
        const char *voce, *sotto, *lista;
    } casi[] = {{Genere::Nodi, "Colore", "Bianco", "1,1"},
                {Genere::Nodi, "Colore", "Blu", "2"},
                {Genere::Nodi, "Colore", "Rosso", "3"},
                {Genere::Nodi, "Colore", "Magenta", "20"},
                {Genere::Nodi, "Colore", "Verde", "4"},
                {Genere::Nodi, "Colore", "Tutti", "1,1-4,20"},
                {Genere::Nodi, "Tutto", "", "1,1-4,20"},
                {Genere::Nodi, "Tipo punto", "1", "1,1,20"},
                {Genere::Nodi, "Tipo punto", "2", "2"},
                {Genere::Nodi, "Tipo punto", "3", "3"},
                {Genere::Nodi, "Tipo punto", "4", "4"},
                {Genere::Nodi, "Tipo punto", "Tutti", "1,1-4,20"},
                {Genere::Aste, "Colore", "Giallo", "14"},
                {Genere::Aste, "Colore", "Azzurro", "7,7-8"},
                {Genere::Aste, "Colore", "Arancione", "9,12"},
                {Genere::Aste, "Tipo linea", "1", "7,7"},
                {Genere::Aste, "Tipo linea", "2", "8"},
                {Genere::Aste, "Tipo linea", "3", "9"},
                {Genere::Aste, "Tipo linea", "4", "14"},
                {Genere::Aste, "Tipo linea", "5", "12"},
                {Genere::Aste, "Tipo linea", "Tutti", "7,7-9,12,14"},
                {Genere::Aste, "Tutto", "", "7,7-9,12,14"},
                {Genere::Gusci, "Colore", "Verde scuro", "31,31-38"},
                {Genere::Gusci, "Tipo tratteggio", "1", "31,31"},
                {Genere::Gusci, "Tipo tratteggio", "2", "32"},
                {Genere::Gusci, "Tipo tratteggio", "3", "33"},
                {Genere::Gusci, "Tipo tratteggio", "4", "34"},
                {Genere::Gusci, "Tipo tratteggio", "5", "35"},
                {Genere::Gusci, "Tipo tratteggio", "6", "36"},
                {Genere::Gusci, "Tipo tratteggio", "7", "37"},
                {Genere::Gusci, "Tipo tratteggio", "8", "38"},
                {Genere::Gusci, "Tipo tratteggio", "Tutti", "31,31-38"},
                {Genere::Gusci, "Tutto", "", "31,31-38"},
                {Genere::ElementiContinui, "Colore", "Azzurro", "101,101"},
                {Genere::ElementiContinui, "Colore", "Arancione", "102"},
                {Genere::ElementiContinui, "Colore", "Tutti", "101,101-103"},
                {Genere::ElementiContinui, "Tipo linea", "Tutti", "101,101-103"}};
    Genere scelto = Genere::Aste;
    s.Premi("Ctrl+A");
    for (const auto &caso : casi) {
        if (caso.genere != std::exchange(scelto, caso.genere)) s.Scegli(caso.genere);
        s.Menu("Operazioni", "Rimuovi tutto");
        s.ListaDiventa("");
        s.Menu("Selezioni", caso.voce, caso.sotto);
        s.SottoFunzioneDiventa("");
        s.ListaDiventa(caso.lista);
    }
}

SCENARIO(rimozioni_per_attributo) {
    Sessione s(amb, Genere::ElementiContinui);
    const auto tutto = [&](Genere genere, const std::string &lista) {
        s.Scegli(genere);
        s.Premi("Ctrl+A");
        s.Menu("Selezioni", "Tutto");
        s.ListaDiventa(lista);
    };
    tutto(Genere::Nodi, "1,1-4,20");
    tutto(Genere::Gusci, "31,31-38");
    tutto(Genere::ElementiContinui, "101,101-103");
    s.Premi("Ctrl+T");
    s.Menu("Selezioni", "Tipo linea", "Tutti");
    s.ListaDiventa("");
    s.Scegli(Genere::Nodi);
    s.ListaDiventa("1,1-4,20");
    s.Menu("Selezioni", "Colore", "Rosso");
    s.ListaDiventa("1,1-2,4,20");
    // Walls stand for the shells: the list of these follows, their own is never rebuilt.
    s.Scegli(Genere::Pareti);
    s.Menu("Selezioni", "Tipo tratteggio", "3");
    s.ListaDiventa("");
    s.Scegli(Genere::Gusci);
    s.ListaDiventa("31,31-32,34-38");
}

SCENARIO(selezioni_per_scheda) {
    Sessione s(amb);
    const struct {
        Genere genere;
        const char *nome, *tasti; // a first letter is enough where the others like it are grey
        const char *testo, *lista;
    } casi[] = {
        {Genere::Nodi, "vincolo", "v", "2,1", "1,1-2,4"},
        {Genere::Nodi, "nome elemento", "o", "20", "20"},
        {Genere::Aste, "materiale", "m", "5", "7,7,9"},
        {Genere::Aste, "materiale", "m", "6", "8,12,14"},
        {Genere::Aste, "sezione", "", "2-3", "8,12,14"},
        {Genere::Aste, "orientamento", "", "1", "7,7-8"},
        {Genere::Aste, "svincolo", "", "3", "8,12"},
        {Genere::Aste, "nome elemento", "o", "1-3-9", "7,7-9"},
        {Genere::Gusci, "materiale", "m", "5", "31,31,33,35,37"},
        {Genere::Gusci, "spessore", "s", "2", "32,34,36,38"},
        {Genere::Gusci, "nome elemento", "o", "33-33,x", "33"},
        {Genere::ElementiContinui, "materiale", "m", "5", "103"},
        {Genere::ElementiContinui, "sezione", "", "1", "103"},
        {Genere::ElementiContinui, "orientamento", "", "1,2", "101,101-102"},
        {Genere::ElementiContinui, "nome elemento", "o", "102", "102"},
        {Genere::Aste, "nome elemento", "o", "1-20000", "7,7-9,12,14"},
    };
    Genere scelto = Genere::Aste;
    s.Premi("Ctrl+A");
    for (const auto &caso : casi) {
        if (caso.genere != std::exchange(scelto, caso.genere)) s.Scegli(caso.genere);
        s.Menu("Operazioni", "Rimuovi tutto");
        s.ListaDiventa("");
        std::string voce = caso.nome;
        voce[0] = static_cast<char>(std::toupper(voce[0]));
        if (std::string(caso.tasti).empty())
            s.Menu("Selezioni", voce);
        else
            s.MenuConTasti("Alt+S", caso.tasti);
        s.SottoFunzioneDiventa(std::string("Seleziona per ") + caso.nome);
        s.TestoDiventa("Domanda", Domanda(caso.nome));
        s.Rispondi(caso.testo);
        s.ListaDiventa(caso.lista);
        s.TestoDiventa("Risposta", caso.testo);
    }
}

// Too much is refused whole, and the question stays.
SCENARIO(elenchi_troppo_lunghi) {
    Sessione s(amb);
    const RiquadroAtteso troppi{"ERRORE", " La stringa di selezione comprende troppi elementi ",
                                "avviso"};
    s.Premi("Ctrl+A");
    s.Menu("Selezioni", "Tutto");
    s.ListaDiventa("7,7-9,12,14");
    s.ChiediNomi();
    s.Rispondi("0-20000");
    s.ChiudiRiquadro(troppi);
    s.ListaDiventa("7,7-9,12,14");
    s.Premi("Ctrl+T");
    s.Menu("Selezioni", "Materiale");
    s.Rispondi("5,1-100");
    s.ChiudiRiquadro(troppi);
    s.ListaDiventa("7,7-9,12,14");
    s.Rispondi("32768");
    UGUALE(s.p.ChiudiRiquadro().titolo, "ERRORE");
    s.ListaDiventa("7,7-9,12,14");
    s.Digita("8"); // the box has kept text and focus
    s.TestoDiventa("Risposta", "327688");
    s.Rispondi("5,7-105");
    s.ListaDiventa("8,12,14");
}

// A grey command runs nothing: seen once a later command has had its effect.
SCENARIO(voci_spente) {
    Sessione s(amb);
    for (const auto &proprieta : kProprieta)
        for (const Genere genere :
             {Genere::Nodi, Genere::Aste, Genere::Gusci, Genere::ElementiContinui}) {
            s.Scegli(genere);
            s.Premi("Ctrl+A");
            s.Menu("Selezioni", proprieta.voce);
            s.Premi("Ctrl+Z");
            s.SottoFunzioneDiventa("Zoom");
            UGUALE(s.p.Abilitato("Risposta"),
                   proprieta.esiti[static_cast<std::size_t>(genere)] != Esito::Rifiutata);
        }
}

// A grey submenu does not open: two Escapes close what is open of menu and submenu, and one that
// opened would want one more.
SCENARIO(sottomenu_spenti) {
    Sessione s(amb);
    const struct {
        Genere genere;
        const char *linea, *punto, *tratteggio; // access keys of what must not open
    } casi[] = {{.genere = Genere::Nodi, .linea = "l", .punto = "", .tratteggio = "t"},
                {.genere = Genere::Aste, .linea = "", .punto = "p", .tratteggio = "t"},
                {.genere = Genere::Gusci, .linea = "l", .punto = "p", .tratteggio = ""},
                {.genere = Genere::ElementiContinui, .linea = "", .punto = "p", .tratteggio = "t"}};
    for (const auto &caso : casi)
        for (const std::string lettera : {caso.linea, caso.punto, caso.tratteggio}) {
            if (lettera.empty()) continue;
            s.Scegli(caso.genere);
            s.Premi("Ctrl+A");
            s.MenuConTasti("Alt+S", lettera + " Esc Esc");
        }
    // Without a function every selection is grey.
    s.Scegli(Genere::Aste);
    s.Premi("Esc");
    s.FunzioneDiventa("");
    s.Menu("Operazioni", "Inverti selezione");
    s.ListaDiventa("7,7-9,12,14");
    for (const char *voce : {"Finestra", "Materiale", "Sezione", "Orientamento", "Vincolo",
                             "Nome elemento", "Tutto"}) {
        s.Menu("Selezioni", voce);
        s.Menu("Operazioni", "Inverti selezione");
        s.ListaDiventa("");
        s.Menu("Operazioni", "Inverti selezione");
        s.ListaDiventa("7,7-9,12,14");
        s.SottoFunzioneDiventa("");
    }
}

// The element kind may change while a question stands.
SCENARIO(rifiuti) {
    Sessione s(amb);
    const char *const generi[] = {"i nodi", "le aste", "i gusci", "gli elementi continui"};
    for (const auto &proprieta : kProprieta) {
        std::size_t parte = 0;
        while (proprieta.esiti.at(parte) != Esito::Parte) ++parte;
        s.Scegli(static_cast<Genere>(parte));
        s.Premi("Ctrl+A");
        s.Menu("Selezioni", proprieta.voce);
        s.Riscrivi("Risposta", "99");
        for (std::size_t k = 0; k < proprieta.esiti.size(); ++k) {
            s.Scegli(static_cast<Genere>(k));
            s.Clic("Risposta");
            s.Premi("Invio");
            if (proprieta.esiti[k] == Esito::Rifiutata)
                s.ChiudiRiquadro({.titolo = "INFORMAZIONE",
                                  .testo = " La selezione per " + proprieta.nome +
                                           " non è possibile per " + generi[k] + " ",
                                  .icona = "informazione"});
            s.TestoDiventa("Risposta", "99");
            s.SottoFunzioneDiventa("Seleziona per " + proprieta.nome);
        }
    }
}

SCENARIO(spunte_e_filtri) {
    Sessione s(amb, Genere::Aste, "8");
    s.Fotografa("Disegno");
    for (const std::string spunta : {"NodiAtt", "AsteAtt", "GusciAtt", "ElSelez", "ElNonSelez"}) {
        s.Clic(spunta);
        s.FotoDiversa();
        s.Clic(spunta);
        s.FotoUguale();
    }
    s.Menu("Opzioni", "Visualizza Assi");
    s.FotoDiversa();
    s.Menu("Opzioni", "Visualizza Assi");
    s.FotoUguale();
    s.Riscrivi("Angolo(2)", "45");
    s.Premi("Invio");
    s.FotoDiversa();
    s.Riscrivi("Angolo(2)", "0");
    s.Premi("Invio");
    s.FotoUguale();
    s.Riscrivi("IntZ(1)", "299");
    s.Premi("Invio");
    s.NonSiVede(20);
    s.Clic("TuttoZ");
    s.TestoDiventa("IntZ(1)", "450");
    s.FotoUguale();
}

SCENARIO(coordinate_nascoste) {
    Sessione s(amb, Genere::Aste, "8");
    s.Menu("Opzioni", "Visualizza Coordinate");
    s.Nascosto("LabCoord");
    s.Punta(Nodo(20));
    s.Premi("Ctrl+Z"); // its effect comes after that of the move
    s.SottoFunzioneDiventa("Zoom");
    s.Premi("Esc");
    s.SottoFunzioneDiventa("");
    s.TestoDiventa("LabCoord", "");
    s.Menu("Opzioni", "Visualizza Coordinate");
    s.Visibile("LabCoord");
    s.Punta(Nodo(1));
    s.TestoDiventa("LabCoord", "0, 0, 0 [N1]");
}

// Escape ends everything from wherever the focus is; with nothing pending, Enter selects nothing.
SCENARIO(esc_da_ogni_controllo) {
    Sessione s(amb, Genere::Aste, "8");
    for (const char *dove : {"Risposta", "Angolo(0)", "IntX(1)", "NodiAtt", "OptElem(1)", "TuttoX",
                             "StringaSel", "Disegno"}) {
        s.Premi("Ctrl+A");
        s.ChiediNomi();
        s.Riscrivi("Risposta", "7");
        s.Clic(dove);
        s.Premi("Esc");
        s.NienteInCorso();
        s.TestoDiventa("Domanda", "");
        s.TestoDiventa("Risposta", "");
        s.Spento("Risposta");
        s.Premi("Invio");
        s.ListaDiventa("8");
    }
}

// A text that moves is painted whole again.
SCENARIO(barra_delle_icone) {
    Sessione s(amb);
    s.Premi("Ctrl+A");
    s.ChiediNomi();
    s.SottoFunzioneDiventa("Seleziona per nome elemento");
    s.Fotografa("Domanda");
    s.Menu("Opzioni", "Barra delle icone");
    s.Nascosto("Toolbar1");
    s.FotoUguale();
    s.Menu("Opzioni", "Barra delle icone");
    s.Visibile("Toolbar1");
    s.FotoUguale();
}
