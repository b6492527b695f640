#include "selection/attributi_sel.h"

#include "ui/controlli/FormTelva.h"

namespace telva {
namespace {

// An attribute: its table by element kind (of the parts; nullptr where it marks nothing), and the
// code that matches any value.
struct Attributo {
    const std::int16_t *nodi = nullptr, *aste = nullptr, *gusci = nullptr, *elCont = nullptr;
    std::int16_t ogni = 0;

    const std::int16_t *Valori(TipoElemento tipo) const {
        const std::int16_t *const tabelle[] = {nodi, aste, gusci, elCont};
        return tabelle[tipo];
    }
};

void Seleziona(const Attributo &a, std::int16_t codice, Segno segno) {
    AzzeraInput();
    const int tipo = FormTelva.TipoElemento();
    const Elementi &e = ElementiDisegnatiDi(tipo); // walls have no attributes of their own
    if (const std::int16_t *valori = a.Valori(e.tipo))
        Segna(e, segno, [&](int i) {
            return codice == a.ogni ||
                   e.OgniParte(i, [&](int parte) { return valori[parte] == codice; });
        });
    if (e.tipo != tipo) RicostruisciLista(e.tipo);
    MostraSelezione();
    CodSottoFun = kDiretta;
}

} // namespace

void SelezionaPerColore(std::int16_t codice, Segno segno) {
    Seleziona({.nodi = ColNodo.Dati(),
               .aste = ColAsta.Dati(),
               .gusci = ColGuscio.Dati(),
               .elCont = ColAsta.Dati(),
               .ogni = kOgniColore},
              codice, segno);
}

void SelezionaPerTipoPunto(std::int16_t codice, Segno segno) {
    Seleziona({.nodi = TipoPtNodo.Dati(), .ogni = kOgniPunto}, codice, segno);
}

void SelezionaPerTipoLinea(std::int16_t codice, Segno segno) {
    Seleziona({.aste = TipoLinAsta.Dati(), .elCont = TipoLinAsta.Dati(), .ogni = kOgniLinea},
              codice, segno);
}

void SelezionaPerTratteggio(std::int16_t codice, Segno segno) {
    Seleziona({.gusci = TrattGuscio.Dati(), .ogni = kOgniRetino}, codice, segno);
}

} // namespace telva
