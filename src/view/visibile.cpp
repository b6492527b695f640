#include "view/visibile.h"

#include "model/elementi.h"
#include "model/opzioni_cond.h"
#include "model/tabelle_cond.h"
#include "ui/controlli/FormTelva.h"
#include "view/colori.h"
#include "view/proiezione.h"

namespace telva {
namespace {

// Coordinate intervals of the side bar: whole numbers, so half a unit belongs to either end. The
// small tolerance covers the sums' own rounding.
struct Intervallo {
    double minimo, massimo;
    explicit Intervallo(Schiera<CasellaNumero, 2> &campi)
        : minimo(campi[0].Valore() - 0.5 - 1e-6), massimo(campi[1].Valore() + 0.5 + 1e-6) {}
    bool Comprende(double valore) const { return valore >= minimo && valore <= massimo; }
};

const NodiDentro &NodiNegliIntervalli() {
    static NodiDentro nodi;
    for (auto *campi : {&FormTelva.IntX, &FormTelva.IntY, &FormTelva.IntZ})
        for (CasellaNumero &casella : *campi) casella.Accogli();
    const Intervallo x(FormTelva.IntX), y(FormTelva.IntY), z(FormTelva.IntZ);
    nodi.Calcola([&](int i) {
        const int p = PuntoNodo[i];
        return x.Comprende(PuntoX[p]) && y.Comprende(PuntoY[p]) && z.Comprende(PuntoZ[p]);
    });
    return nodi;
}

// The check boxes of the side bar.
struct Filtri {
    bool tipi[3] = {FormTelva.NodiAtt.Value, FormTelva.AsteAtt.Value, FormTelva.GusciAtt.Value};
    bool selezionati = FormTelva.ElSelez.Value;
    bool nonSelezionati = FormTelva.ElNonSelez.Value;
};

bool ParteDisegnata(const Elementi &e, int i) {
    return e.nomi[i] > 0 && e.colori[i] < kColoreNascosto && e.attivi[i] == 1;
}

bool GuscioSottile(int s) {
    const int scheda = SpessoreGuscio[s];
    return OpzioneAttiva(kOpzNascondiSottili) && scheda >= 1 && scheda <= NumSpessori &&
           ValSpessore[scheda - 1] < OpzioneNumero(kOpzSpessoreMinimo);
}

} // namespace

void CalcolaAttivi() {
    const NodiDentro &dentro = NodiNegliIntervalli();
    const Filtri filtri;
    for (const TipoElemento tipo : {kNodiTipo, kAsteTipo, kGusciTipo}) {
        const Elementi &e = ElementiDi(tipo);
        for (int i = 0; i < e.numero; ++i) {
            const bool stato = e.Selezionato(i) ? filtri.selezionati : filtri.nonSelezionati;
            e.attivi[i] = dentro.Contiene(e, i) && filtri.tipi[tipo] && stato ? 1 : 0;
        }
    }
}

bool NodoDisegnato(int i) { return ParteDisegnata(ElementiDi(kNodiTipo), i); }
bool AstaDisegnata(int b) { return ParteDisegnata(ElementiDi(kAsteTipo), b); }
bool GuscioDisegnato(int s) {
    return ParteDisegnata(ElementiDi(kGusciTipo), s) && !GuscioSottile(s);
}

bool Disegnato(const Elementi &e, int i) {
    static constexpr bool (*kDisegnata[])(int) = {NodoDisegnato, AstaDisegnata, GuscioDisegnato};
    const auto disegnata = kDisegnata[e.parti];
    return e.Intero(i) && !e.OgniParte(i, [=](int parte) { return !disegnata(parte); });
}

bool NessunElementoDisegnato() {
    for (const TipoElemento tipo : {kNodiTipo, kAsteTipo, kGusciTipo}) {
        const Elementi &e = ElementiDi(tipo);
        for (int i = 0; i < e.numero; ++i)
            if (Disegnato(e, i)) return false;
    }
    return true;
}

bool VistaFiltrata() {
    const ModuloTelva &f = FormTelva;
    for (const CasellaSpunta *c : {&f.NodiAtt, &f.AsteAtt, &f.GusciAtt, &f.ElSelez, &f.ElNonSelez})
        if (!c->Value) return true;
    Schiera<CasellaNumero, 2> *const campi[] = {&FormTelva.IntX, &FormTelva.IntY, &FormTelva.IntZ};
    for (int asse = 0; asse < 3; ++asse) {
        const Intervallo intervallo(*campi[asse]);
        const EstremiAsse estremi = EstremiModello(asse);
        if (!intervallo.Comprende(estremi.minimo) || !intervallo.Comprende(estremi.massimo))
            return true;
    }
    return false;
}

} // namespace telva
