#include "modello/Modello.h"

#include "startup/basCommon_cond.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace telva::prove {
namespace {

constexpr int kEsclamazione = 1, kInformazione = 2;

// What each kind of element can be selected by.
const std::set<std::string> kAbilitate[] = {
    {"Finestra", "Colore", "TipoPunto", "SchVincolo", "Nome", "Tutto"},
    {"Finestra", "Colore", "TipoLinea", "Materiale", "SchSezione", "SchOrientamento", "SchSvincolo",
     "Nome", "Tutto"},
    {"Finestra", "Colore", "TipoTratt", "Materiale", "SchSpessore", "Nome", "Tutto"},
    {"Finestra", "Colore", "TipoLinea", "Materiale", "SchSezione", "SchOrientamento", "Nome",
     "Tutto"},
    {"Finestra", "Colore", "TipoPunto", "TipoLinea", "TipoTratt", "Materiale", "SchSezione",
     "SchSpessore", "SchOrientamento", "SchSvincolo", "SchVincolo", "Nome", "Tutto"}};

// The menus of display attributes: what their items end with ("TipoPt3", "TuttiPt"), the code of
// the first one and that which stands for all.
struct Attributi {
    const char *menu;
    std::string sigla;
    int primo, tutti;
};
const Attributi kAttributi[] = {
    {.menu = "Colore", .sigla = "Col", .primo = 1, .tutti = Modello::kOgniColore},
    {.menu = "TipoPunto", .sigla = "Pt", .primo = 0, .tutti = 8},
    {.menu = "TipoLinea", .sigla = "Ln", .primo = 0, .tutti = 5},
    {.menu = "TipoTratt", .sigla = "Tr", .primo = 1, .tutti = 9}};
const std::vector<std::string> kColori = {"Bianco",     "Blu",     "Rosso",   "Verde",    "Giallo",
                                          "VerdeScuro", "Magenta", "Azzurro", "Arancione"};

// How the kinds are spoken of.
struct Parole {
    std::string articolo, uno, molti;
    bool Femminile() const { return articolo == "le"; }
};
const Parole kParole[] = {
    {.articolo = "i", .uno = "nodo", .molti = "nodi"},
    {.articolo = "le", .uno = "asta", .molti = "aste"},
    {.articolo = "i", .uno = "guscio", .molti = "gusci"},
    {.articolo = "gli", .uno = "elemento continuo", .molti = "elementi continui"},
    {.articolo = "le", .uno = "parete", .molti = "pareti"}};

struct Proprieta {
    const char *voce;
    const char *titolo;
};
const Proprieta kProprieta[] = {{.voce = "Materiale", .titolo = "materiale"},
                                {.voce = "Nome", .titolo = "nome elemento"},
                                {.voce = "SchSezione", .titolo = "sezione"},
                                {.voce = "SchSpessore", .titolo = "spessore"},
                                {.voce = "SchOrientamento", .titolo = "orientamento"},
                                {.voce = "SchSvincolo", .titolo = "svincolo"},
                                {.voce = "SchVincolo", .titolo = "vincolo"}};

// Numbers of a list; what is wrong with it is said in `troppi` and `fuori`.
struct ElencoLetto {
    std::vector<int> numeri;
    bool troppi = false, fuori = false;
};

ElencoLetto LeggiElenco(const std::string &elenco, std::size_t capacita) {
    ElencoLetto letto;
    std::string pezzo;
    int da = 0;
    bool aperto = false; // a "-" waits for its end
    for (const char c : elenco + ",") {
        if (c != ' ' && c != ',' && c != '-') pezzo += c;
        if (c != ',' && c != '-') continue;
        const double v = std::floor(std::strtod(pezzo.c_str(), nullptr));
        if (v > 32767) {
            letto.fuori = true;
            return letto;
        }
        for (int n = aperto ? da : static_cast<int>(v); c == ',' && n <= v; ++n)
            letto.numeri.push_back(n);
        if (letto.numeri.size() > capacita) {
            letto.troppi = true;
            return letto;
        }
        aperto = c == '-';
        da = static_cast<int>(v);
        pezzo.clear();
    }
    return letto;
}

} // namespace

// --- the compact list

void Modello::AggiornaLista() {
    if (tipo == kPareti) return;
    std::vector<Elemento> ordinati = elementi[tipo];
    std::ranges::stable_sort(ordinati, {}, &Elemento::nome);
    std::string &lista = liste[tipo] = "";
    int inizio = 0, ultimo = 0;
    const auto nuovo = [&](int nome) { // closes the run and begins another
        if (inizio > 0) lista += (lista.empty() ? "" : ",") + std::to_string(inizio);
        if (inizio > 0 && ultimo > inizio) lista += "-" + std::to_string(ultimo);
        inizio = ultimo = nome;
    };
    for (const Elemento &e : ordinati) {
        // Not selected counts as a negative name; a name that is not positive stays as it is.
        const int nome = e.nome > 0 && !e.selezionato ? -e.nome : e.nome;
        const bool testa = &e == ordinati.data();
        if (testa && nome > 0) lista = std::to_string(nome); // the first one is written twice
        if (testa || (nome > 0 && nome != ultimo + 1))
            nuovo(nome);
        else if (nome > 0)
            (inizio < 1 ? inizio : ultimo) = nome;
    }
    nuovo(0);
}

// --- the line of state

std::string Modello::Adesso() const {
    const int segnati = tipo == kPareti ? kGusci : tipo;
    int selezionati = 0, nascosti = 0;
    for (const Elemento &e : elementi[segnati]) {
        if (!e.selezionato || e.nome <= 0) continue;
        ++selezionati;
        if (!Disegnato(e)) ++nascosti;
    }
    const auto &[articolo, uno, molti] = kParole[segnati];
    const bool femminile = kParole[segnati].Femminile();
    const std::string singolare = femminile ? "a" : "o", plurale = femminile ? "e" : "i";
    std::string testo = std::to_string(selezionati) + " " + molti + " selezionat" + plurale;
    if (selezionati == 1) testo = "1 " + uno + " selezionat" + singolare;
    if (selezionati == 0)
        testo = (femminile ? "nessuna " : "nessun ") + uno + " selezionat" + singolare;
    if (nascosti > 0)
        testo += ", di cui " + std::to_string(nascosti) + " nascost" +
                 (nascosti == 1 ? singolare : plurale);
    const bool tutti = nascosti_.empty() &&
                       std::ranges::all_of(elementi[kNodi], [&](auto &e) { return Dentro(e); });
    return tutti ? testo : "vista filtrata; " + testo;
}

std::string Modello::Evidenza() const {
    const auto disegnato = [&](const Elemento &e) { return Disegnato(e); };
    std::string testo = "nessun elemento mostrato: vedere filtri e intervalli";
    for (const int t : {kNodi, kAste, kGusci})
        if (std::ranges::any_of(elementi[t], disegnato)) testo = "";
    if (richiesto_ == tipo) return testo;
    const Parole &parole = kParole[richiesto_];
    const std::string accordo = parole.Femminile() ? "richieste: " : "richiesti: ";
    return testo + (testo.empty() ? "" : "; ") + accordo + parole.molti;
}

// --- functions

void Modello::AzzeraInput() {
    sotto = "";
    risposta = false;
    puntatore = Puntatore::Predefinito;
    sottoFunAttiva = domanda = testoRisposta = "";
}

void Modello::Annulla() {
    primoAngolo = spostaInCorso = modoZoom = modoSposta = lineaSposta = false;
}

void Modello::Interrompi() {
    funzione = kNiente;
    finestraAutomatica = false;
    abilitate.clear();
    Annulla();
    AzzeraInput();
}

void Modello::RimuoviTutto() {
    const Funzione vera = funzione;
    const std::string veraSotto = sotto;
    const bool chiede = risposta; // a list: it goes on
    const std::string prompt = domanda, scritto = testoRisposta;
    funzione = kRimuovere;
    Attributo("Colore", kOgniColore);
    funzione = vera;
    sotto = veraSotto;
    if (chiede) {
        risposta = true;
        domanda = prompt;
        testoRisposta = scritto;
    }
    sottoFunAttiva = "Selezione diretta"; // whatever the sub-function is
}

void Modello::Inverti() {
    Segna([](const Elemento &) { return true; },
          [](Elemento &e) { e.selezionato = !e.selezionato; });
    AggiornaLista();
}

// --- attributes and lists of properties

void Modello::Attributo(const std::string &menu, int codice) {
    const Attributi &famiglia = *std::ranges::find(kAttributi, menu, &Attributi::menu);
    AzzeraInput();
    const int vero = tipo;
    if (tipo == kPareti) tipo = kGusci; // walls are drawn from the shells
    const auto vale = [&](const Elemento &e) {
        return codice == famiglia.tutti || codice == (menu == "Colore" ? e.colore : e.tipo);
    };
    if (kAbilitate[tipo].contains(menu)) {
        Segna(vale, [&](Elemento &e) { e.selezionato = funzione == kAggiungere; });
        AggiornaLista(); // that of the shells, when walls were chosen
    }
    tipo = vero;
    AggiornaLista();
    sotto = "Diretta";
}

void Modello::Numeri(const std::string &proprieta, const std::string &elenco) {
    const bool nomi = proprieta == "Nome";
    const ElencoLetto letto = LeggiElenco(elenco, nomi ? 20000 : 100);
    if (letto.fuori)
        return Dice(" Numero fuori dai limiti ammessi (da -32768 a 32767) ", "ERRORE",
                    kEsclamazione);
    if (letto.troppi) return Dice(Messaggi[kMsgTroppiNumeri], "ERRORE", kEsclamazione);
    const bool suo = tipo == kContinui && nomi; // a continuous element's own number
    for (const int numero : letto.numeri) {
        const auto vale = [&](const Elemento &e) {
            return suo || (nomi ? e.nome : e.schede.at(proprieta)) == numero;
        };
        Segna(vale, [&](Elemento &e) {
            if (!suo || e.nome == numero) e.selezionato = funzione == kAggiungere;
        });
    }
    AggiornaLista();
}

void Modello::ChiediProprieta(const std::string &proprieta) {
    sotto = proprieta;
    risposta = true;
    const std::string titolo = std::ranges::find(kProprieta, sotto, &Proprieta::voce)->titolo;
    sottoFunAttiva = "Seleziona per " + titolo;
    domanda = "Inserire i " +
              (proprieta == "Nome" ? "nomi degli elementi" : "numeri delle schede di " + titolo) +
              " e premere INVIO";
}

void Modello::Elenco(const std::string &testo) {
    salta = !risposta;
    testoRisposta = testo;
    Invio();
}

void Modello::Invio() {
    const auto *proprieta = std::ranges::find(kProprieta, sotto, &Proprieta::voce);
    if (proprieta == std::end(kProprieta)) return; // nothing has been asked
    if (!kAbilitate[tipo].contains(proprieta->voce))
        return Dice(std::string(" La selezione per ") + proprieta->titolo +
                        " non è possibile per " + kParole[tipo].articolo + " " +
                        kParole[tipo].molti + " ",
                    "INFORMAZIONE", kInformazione);
    const bool perPareti = sotto == "Materiale" || sotto == "Nome";
    if (tipo == kPareti && !perPareti) return; // walls have no cards: nothing happens
    if (!testoRisposta.empty()) Numeri(sotto, testoRisposta);
}

// --- steps

void Modello::Tipo(int nuovo) {
    tipo = nuovo;
    if (funzione != kNiente) abilitate = kAbilitate[tipo];
}

void Modello::Trappola(const std::string &testo, bool applica) {
    if (!applica) return;
    trappola = std::abs(std::floor(std::strtod(testo.c_str(), nullptr)));
    if (trappola == 0) Dice(Messaggi[kMsgTrappolaNulla], "ATTENZIONE", kEsclamazione);
}

void Modello::VoceSelezioni(const std::string &menu, int codice) {
    salta = !abilitate.contains(menu);
    Annulla();
    AzzeraInput();
    finestraAutomatica = false;
    const auto *proprieta = std::ranges::find(kProprieta, menu, &Proprieta::voce);
    if (proprieta != std::end(kProprieta)) {
        ChiediProprieta(proprieta->voce);
    } else if (menu == "Finestra") {
        sotto = "Finestra";
        puntatore = Puntatore::Croce;
        Didascalia();
    } else {
        Attributo(menu == "Tutto" ? "Colore" : menu, menu == "Tutto" ? kOgniColore : codice);
    }
}

void Modello::ChiudiFinestra() {
    if (!primoAngolo || modoZoom) return;
    primoAngolo = false;
    puntatore = Puntatore::Croce; // it is awaited again
    RiprendiDiretta();
}

void Modello::Arma(const std::string &voce) {
    Annulla();
    const bool zooma = voce == "ZoomIn";
    (zooma ? modoZoom : modoSposta) = true;
    sottoFunAttiva = zooma ? "Zoom" : "Sposta";
    puntatore = zooma ? Puntatore::Croce : Puntatore::Ridimensiona;
}

void Modello::Menu(const std::string &voce) {
    for (const Attributi &a : kAttributi) {
        if (voce == a.menu) return; // only opens its own items
        if (voce == "Tutti" + a.sigla) return VoceSelezioni(a.menu, a.tutti);
        if (voce.starts_with("Tipo" + a.sigla))
            return VoceSelezioni(a.menu, a.primo + voce.back() - '1');
    }
    const auto colore = std::ranges::find(kColori, voce) - kColori.begin();
    if (colore < std::ssize(kColori)) return VoceSelezioni("Colore", 1 + static_cast<int>(colore));
    if (kAbilitate[kPareti].contains(voce)) return VoceSelezioni(voce, 0);
    salta = (voce == "Interrompi" && funzione == kNiente) || voce == "Trappola" || // not this way
            voce == "Salva" || voce == "Esci";
    if (voce == "Aggiungi" || voce == "Rimuovi") {
        Interrompi();
        funzione = voce == "Aggiungi" ? kAggiungere : kRimuovere;
        sotto = "Diretta";
        abilitate = kAbilitate[tipo];
        Didascalia();
    }
    if (voce == "RimTutto") RimuoviTutto();
    if (voce == "Inverti") Inverti();
    if (voce == "Interrompi") Interrompi();
    if (voce == "ZoomIn" || voce == "Sposta" || voce == "Rappresentazione") ChiudiFinestra();
    if (voce == "ZoomIn" || voce == "Sposta") Arma(voce);
    if (voce == "Ottimizza") Ottimizza();
    if (voce == "VisCoord") {
        coordinate = !coordinate;
        labCoord = "";
    }
    if (voce == "Ridis" || voce == "VisAssi") Ridisegna();
    if (voce == "BarraLat" || voce == "BarraIcone") {
        ControllaIntervalli();
        Adatta();
    }
}

} // namespace telva::prove
