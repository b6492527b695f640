#include "ui/stato.h"

#include "model/elementi.h"
#include "model/scambio_cond.h"
#include "model/tabelle_cond.h"
#include "platform/mostrabile.h"
#include "platform/numeri.h"
#include "platform/testo.h"
#include "selection/schede_sel.h"
#include "selection/selezione.h"
#include "startup/basCommon_cond.h"
#include "ui/controlli/FormTelva.h"
#include "ui/preda.h"
#include "view/proiezione.h"
#include "view/visibile.h"

#include <algorithm>
#include <initializer_list>

namespace telva {
namespace {

// More than a row can hold, and less than would hold anybody up.
constexpr std::size_t kCaratteriElenco = 500;

// How a kind is spoken of.
struct Parole {
    const char *uno, *molti, *nessuno;
    const char *scelta;              // what direct pick waits for
    const char *unoSel, *moltiSel;   // selected
    const char *unoNasc, *moltiNasc; // hidden
    const char *richiesti;
    std::string (*dati)(int elemento); // what stands behind its name
};

std::string Scheda(const char *nome, int numero) {
    return numero > 0 ? std::string(", ") + nome + " " + TestoNumero(numero) : std::string();
}

std::string DatiNodo(int i) { return Scheda("vincolo", VincoloNodo[i]); }
std::string DatiAsta(int b) {
    return Scheda("sezione", SezioneAsta[b]) +
           Scheda("materiale", MaterialeSezione(SezioneAsta[b]));
}
std::string DatiGuscio(int s) {
    return Scheda("spessore", SpessoreGuscio[s]) +
           Scheda("materiale", MaterialeSpessore(SpessoreGuscio[s]));
}
std::string DatiElCont(int k) {
    const std::string nome = Mostrabile(Rifila(NomeElCont[k]), kCaratteriNome);
    return nome.empty() ? "" : " - " + nome;
}

constexpr Parole kParole[kTipiElemento] = {
    {"nodo", "nodi", "nessun nodo", "clic su un nodo, o ", "selezionato", "selezionati", "nascosto",
     "nascosti", "richiesti", DatiNodo},
    {"asta", "aste", "nessuna asta", "clic su un'asta, o ", "selezionata", "selezionate",
     "nascosta", "nascoste", "richieste", DatiAsta},
    {"guscio", "gusci", "nessun guscio", "clic su un guscio, o ", "selezionato", "selezionati",
     "nascosto", "nascosti", "richiesti", DatiGuscio},
    {"elemento continuo", "elementi continui", "nessun elemento continuo",
     "clic su un elemento continuo, o ", "selezionato", "selezionati", "nascosto", "nascosti",
     "richiesti", DatiElCont},
    {"parete", "pareti", "nessuna parete", "", "selezionata", "selezionate", "nascosta", "nascoste",
     "richieste", nullptr},
};

std::string Unisci(std::initializer_list<std::string> parti) {
    std::string testo;
    for (const std::string &parte : parti)
        if (!parte.empty()) testo += (testo.empty() ? "" : "; ") + parte;
    return testo;
}

std::string Conteggio() {
    const Elementi &e = ElementiDisegnatiDi(FormTelva.TipoElemento());
    int selezionati = 0, nascosti = 0;
    for (int i = 0; i < e.numero; ++i) {
        if (!e.Selezionato(i) || e.nomi[i] <= 0) continue;
        ++selezionati;
        if (!Disegnato(e, i)) ++nascosti;
    }
    const Parole &p = kParole[e.tipo];
    if (selezionati == 0) return std::string(p.nessuno) + " " + p.unoSel;
    std::string testo = TestoNumero(selezionati) + " " +
                        (selezionati == 1 ? std::string(p.uno) + " " + p.unoSel
                                          : std::string(p.molti) + " " + p.moltiSel);
    if (nascosti > 0)
        testo +=
            ", di cui " + TestoNumero(nascosti) + " " + (nascosti == 1 ? p.unoNasc : p.moltiNasc);
    return testo;
}

std::string Richiesta() {
    if (TipoRichiesto < 0 || TipoRichiesto == FormTelva.TipoElemento()) return {};
    const Parole &p = kParole[TipoRichiesto];
    return std::string(p.richiesti) + ": " + p.molti;
}

// At most kCaratteriElenco of a list, to the end of a whole item.
std::string Inizio(const std::string &elenco) {
    if (elenco.size() <= kCaratteriElenco) return elenco;
    return elenco.substr(0, elenco.rfind(',', kCaratteriElenco) + 1) + "…";
}

// What the pending property finds among the elements shown; or that it cannot be asked of this
// kind.
std::string Presenti(const SchedaProprieta &proprieta) {
    const int tipo = FormTelva.TipoElemento();
    if (const int rifiuto = proprieta.rifiuto[tipo]; rifiuto >= 0)
        return std::string(Rifila(Messaggi[rifiuto]));
    const std::vector<int> numeri = NumeriPresenti(proprieta, tipo);
    if (numeri.empty()) return std::string(proprieta.presenti) + ": -";
    if (proprieta.codice == kNome)
        return std::string(proprieta.presenti) + ": da " + TestoNumero(numeri.front()) + " a " +
               TestoNumero(numeri.back());
    return std::string(proprieta.presenti) + ": " + Inizio(FormattaNumeri(numeri));
}

std::string Descrizione(int tipo, int elemento) {
    const Parole &p = kParole[tipo];
    return std::string(p.uno) + " " + TestoNumero(ElementiDi(tipo).nomi[elemento]) +
           p.dati(elemento);
}

// An element that the click leaves as it is.
std::string Invariato(int tipo, int elemento) {
    if (CambiaColClic(elemento)) return {};
    return std::string(CodFunAttiva == kAggiungi ? ", già " : ", non ") + kParole[tipo].unoSel;
}

std::string Clic() {
    switch (ClicSulDisegno()) {
    case EffettoClic::Elemento:
        return "clic: " + Descrizione(Preda().tipo, Preda().elementi.front()) +
               Invariato(Preda().tipo, Preda().elementi.front());
    case EffettoClic::Scelta:
        return std::string(kParole[FormTelva.TipoElemento()].scelta) +
               "menu Selezioni; Esc termina";
    case EffettoClic::ApreFinestra: return "clic: apre una finestra";
    case EffettoClic::Angolo: return "clic: primo angolo";
    case EffettoClic::AngoloOpposto: return "clic: angolo opposto";
    case EffettoClic::PuntoDaSpostare: return "clic: punto da spostare";
    case EffettoClic::Destinazione: return "clic: dove portarlo";
    case EffettoClic::Nessuno: break;
    }
    return {};
}

} // namespace

RigheStato ComponiStato() {
    if (!Proiettata()) return {}; // no structure, nothing to tell of it
    const bool nulla = NessunElementoDisegnato();
    RigheStato r;
    r.evidenza =
        Unisci({nulla ? "nessun elemento mostrato: vedere filtri e intervalli" : "", Richiesta()});
    r.adesso = Unisci({VistaFiltrata() ? "vista filtrata" : "", Conteggio()});
    const SchedaProprieta *proprieta = ProprietaDi(CodSottoFun);
    r.poi = Unisci({Clic(), proprieta ? Presenti(*proprieta) : "",
                    CodFunAttiva == kNessunaFunzione ? "Ctrl+A aggiunge, Ctrl+T rimuove" : ""});
    return r;
}

void AggiornaStato() {
    CercaPreda();
    const RigheStato r = ComponiStato();
    FormTelva.LabStato.Evidenza = r.evidenza;
    const std::string prima = Unisci({r.evidenza, r.adesso});
    FormTelva.LabStato.Caption = r.poi.empty() ? prima : prima + "\r\n" + r.poi;
}

} // namespace telva
