#include "selection/attributi_sel.h"

#include "model/struttura.h"
#include "selection/selezione.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"

namespace telva {
namespace {

// The attribute of a family by kind; nullptr where it marks nothing.
struct Famiglia {
    const std::int16_t *nodi = nullptr, *aste = nullptr, *gusci = nullptr;
    std::int16_t ogni = 0; // code that matches any value
};

void Segna(std::int16_t *flag, const std::int16_t *attivi, int numero, const std::int16_t *campo,
           std::int16_t codice, std::int16_t ogni) {
    if (!campo) return;
    const std::int16_t valore = NuovoFlag();
    for (int i = 0; i < numero; ++i)
        if (attivi[i] == 1 && (codice == ogni || campo[i] == codice)) flag[i] = valore;
}

void SegnaElCont(const std::int16_t *campo, std::int16_t codice, std::int16_t ogni) {
    if (!campo) return;
    for (int k = 0; k < NumElCont; ++k) {
        bool tutte = ElContAttivo(k);
        for (int j = 0; tutte && codice != ogni && j < NumAsteElCont[k]; ++j)
            tutte = campo[AstaElCont(k, j)] == codice;
        if (tutte) SelElCont[k] = NuovoFlag();
    }
}

void Seleziona(const Famiglia &f, std::int16_t codice) {
    AzzeraInput();
    switch (FormTelva.TipoElemento()) {
    case kNodiTipo: Segna(SelNodo.Dati(), AttNodo.Dati(), NumNodi, f.nodi, codice, f.ogni); break;
    case kAsteTipo: Segna(SelAsta.Dati(), AttAsta.Dati(), NumAste, f.aste, codice, f.ogni); break;
    case kElContTipo: SegnaElCont(f.aste, codice, f.ogni); break;
    default: // walls are drawn from the shells, and have no attributes of their own
        Segna(SelGuscio.Dati(), AttGuscio.Dati(), NumGusci, f.gusci, codice, f.ogni);
        break;
    }
    DisegnaStruttura();
    AggiornaSelezione();
    CodSottoFun = kDiretta;
}

} // namespace

void SelezionaPerColore(std::int16_t codice) {
    Seleziona({ColNodo.Dati(), ColAsta.Dati(), ColGuscio.Dati(), kOgniColore}, codice);
}

void SelezionaPerTipoPunto(std::int16_t codice) {
    Seleziona({.nodi = TipoPtNodo.Dati(), .ogni = kOgniPunto}, codice);
}

void SelezionaPerTipoLinea(std::int16_t codice) {
    Seleziona({.aste = TipoLinAsta.Dati(), .ogni = kOgniLinea}, codice);
}

void SelezionaPerTratteggio(std::int16_t codice) {
    Seleziona({.gusci = TrattGuscio.Dati(), .ogni = kOgniTratto}, codice);
}

} // namespace telva
