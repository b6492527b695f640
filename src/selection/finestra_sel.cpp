#include "selection/finestra_sel.h"

#include "ui/controlli/FormTelva.h"
#include "view/proiezione.h"

#include <cmath>

namespace telva {
namespace {

constexpr double kMargine = 1; // drawing units: what stands on an edge counts as inside

struct Riquadro {
    double x0, y0, x1, y1, larghezza, altezza;

    bool Contiene(double px, double py) const {
        return !(
            std::abs(px - x0) - larghezza > kMargine || std::abs(py - y0) - altezza > kMargine ||
            std::abs(px - x1) - larghezza > kMargine || std::abs(py - y1) - altezza > kMargine);
    }
};

} // namespace

void SelezionaFinestra(double left, double top, double width, double height, Segno segno) {
    const Riquadro r{left, top, left + width, top - height, std::abs(width), std::abs(height)};
    static NodiDentro nodi;
    nodi.Calcola([&](int i) { return r.Contiene(XNodo(i), YNodo(i)); });
    const Elementi &e = ElementiDi(FormTelva.TipoElemento());
    Segna(e, segno, [&](int i) { return nodi.Contiene(e, i); });
    MostraSelezione();
}

} // namespace telva
