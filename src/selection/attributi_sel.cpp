#include "selection/attributi_sel.h"

#include "ui/controlli/FormTelva.h"

namespace telva {
namespace {

using Valori = VistaTabella<const std::int16_t>;

// An attribute: its table by element kind (of the parts; empty where it marks nothing), and the
// code that matches any value.
struct Attributo {
    Valori nodi = {}, aste = {}, gusci = {}, elCont = {};
    std::int16_t ogni = 0;

    Valori Di(TipoElemento tipo) const {
        const Valori tabelle[] = {nodi, aste, gusci, elCont};
        return tabelle[tipo];
    }
};

void Seleziona(const Attributo &a, std::int16_t codice, Segno segno) {
    AzzeraInput();
    const int tipo = FormTelva.TipoElemento();
    const Elementi &e = ElementiDisegnatiDi(tipo); // walls have no attributes of their own
    if (const Valori valori = a.Di(e.tipo); !valori.Vuota())
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
    Seleziona({.nodi = ColNodo,
               .aste = ColAsta,
               .gusci = ColGuscio,
               .elCont = ColAsta,
               .ogni = kOgniColore},
              codice, segno);
}

void SelezionaPerTipoPunto(std::int16_t codice, Segno segno) {
    Seleziona({.nodi = TipoPtNodo, .ogni = kOgniPunto}, codice, segno);
}

void SelezionaPerTipoLinea(std::int16_t codice, Segno segno) {
    Seleziona({.aste = TipoLinAsta, .elCont = TipoLinAsta, .ogni = kOgniLinea}, codice, segno);
}

void SelezionaPerTratteggio(std::int16_t codice, Segno segno) {
    Seleziona({.gusci = TrattGuscio, .ogni = kOgniRetino}, codice, segno);
}

} // namespace telva
