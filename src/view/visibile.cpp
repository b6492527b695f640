#include "view/visibile.h"

#include "model/elementi.h"
#include "model/opzioni_cond.h"
#include "model/tabelle_cond.h"
#include "ui/controlli/FormTelva.h"
#include "view/colori.h"

namespace telva {
namespace {

// Coordinate intervals of the side bar: whole numbers, so half a unit belongs to either end. The
// small tolerance covers the sums' own rounding.
struct Intervallo {
    double minimo, massimo;
    explicit Intervallo(Schiera<CasellaNumero, 2> &campi) {
        for (CasellaNumero &casella : campi) casella.Accogli();
        minimo = campi[0].Valore() - 0.5 - 1e-6;
        massimo = campi[1].Valore() + 0.5 + 1e-6;
    }
    bool Comprende(double valore) const { return valore >= minimo && valore <= massimo; }
};

const NodiDentro &NodiNegliIntervalli() {
    static NodiDentro nodi;
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

bool Disegnato(const Elementi &e, int i) {
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

bool NodoDisegnato(int i) { return Disegnato(ElementiDi(kNodiTipo), i); }
bool AstaDisegnata(int b) { return Disegnato(ElementiDi(kAsteTipo), b); }
bool GuscioDisegnato(int s) { return Disegnato(ElementiDi(kGusciTipo), s) && !GuscioSottile(s); }

} // namespace telva
