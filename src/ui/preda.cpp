#include "ui/preda.h"

#include "model/elementi.h"
#include "model/opzioni_cond.h"
#include "selection/selezione.h"
#include "selection/trappola.h"
#include "ui/controlli/FormTelva.h"
#include "ui/gesto.h"
#include "view/proiezione.h"

#include <optional>

namespace telva {
namespace {

// Where the pointer rests on the drawing: in drawing units as the event told it, and in pixels,
// which stay when the view moves under it.
struct PostoPuntatore {
    double x, y;
    double px, py;
};
std::optional<PostoPuntatore> puntatore;
EffettoClic effetto = EffettoClic::Nessuno;
ElementiPresi preda;

EffettoClic EffettoDelGesto() {
    if (InCorso(Gesto::Trascina)) return EffettoClic::Nessuno;
    if (InCorso(Gesto::SpostaArmato)) return EffettoClic::PuntoDaSpostare;
    if (InCorso(Gesto::SpostaAperto)) return EffettoClic::Destinazione;
    if (PrimoAngolo == 1) return EffettoClic::AngoloOpposto;
    if (InCorso(Gesto::ZoomArmato) || !InCorso(Gesto::Riposo)) return EffettoClic::Angolo;
    return SelezioneDirettaPronta() ? EffettoClic::Scelta : EffettoClic::Nessuno;
}

void TrovaElementi(double x, double y) {
    const std::int16_t nome = SelezioneDiretta(x, y);
    if (nome < 1) return;
    preda.tipo = FormTelva.TipoElemento();
    const Elementi &e = ElementiDi(preda.tipo);
    for (int i = 0; i < e.numero; ++i)
        if (e.nomi[i] == nome && e.Attivo(i)) preda.elementi.push_back(i);
}

// In the scale of the event, or in another that has come since.
void CercaSotto(const PostoPuntatore &p) {
    const RiquadroDisegno &d = FormTelva.Disegno;
    const bool stessa = d.XPixel(p.x) == p.px && d.YPixel(p.y) == p.py;
    TrovaElementi(stessa ? p.x : d.XEvento(d.XDaPixel(p.px)),
                  stessa ? p.y : d.YEvento(d.YDaPixel(p.py)));
    effetto = preda.elementi.empty() ? EffettoClic::ApreFinestra : EffettoClic::Elemento;
}

void Contorno(TipoElemento tipo, int parte, Sagoma &sagoma) {
    std::vector<int> nodi;
    OgniNodo(tipo, parte, [&](int nodo) {
        nodi.push_back(nodo);
        return true;
    });
    if (nodi.size() == 1)
        sagoma.cerchi.push_back({XNodo(nodi[0]), YNodo(nodi[0]),
                                 FormTelva.Disegno.PixelOpzione(OpzioneNumero(kOpzRaggioNodo))});
    const std::size_t lati = nodi.size() > 2 ? nodi.size() : nodi.size() - 1;
    for (std::size_t k = 0; k < lati; ++k) {
        const int a = nodi[k], z = nodi[(k + 1) % nodi.size()];
        sagoma.linee.push_back({XNodo(a), YNodo(a), XNodo(z), YNodo(z)});
    }
}

// Those that the click changes: what it has just marked is to be seen in its own colour.
void MostraPreda() {
    Sagoma sagoma;
    const Elementi &e = ElementiDi(preda.tipo);
    for (const int i : preda.elementi)
        if (CambiaColClic(i))
            e.OgniParte(i, [&](int parte) {
                Contorno(e.parti, parte, sagoma);
                return true;
            });
    FormTelva.Disegno.Anteprima = sagoma;
}

} // namespace

void PuntatoreSu(double x, double y) {
    const RiquadroDisegno &d = FormTelva.Disegno;
    puntatore = PostoPuntatore{x, y, d.XPixel(x), d.YPixel(y)};
}
void PuntatoreFuori() { puntatore.reset(); }

void CercaPreda() {
    preda.elementi.clear();
    effetto = Proiettata() ? EffettoDelGesto() : EffettoClic::Nessuno;
    if (effetto == EffettoClic::Scelta && puntatore) CercaSotto(*puntatore);
    MostraPreda();
}

bool CambiaColClic(int elemento) {
    return ElementiDi(preda.tipo).Selezionato(elemento) != (CodFunAttiva == kAggiungi);
}

EffettoClic ClicSulDisegno() { return effetto; }
const ElementiPresi &Preda() { return preda; }

} // namespace telva
