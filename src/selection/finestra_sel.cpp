#include "selection/finestra_sel.h"

#include "model/struttura.h"
#include "selection/selezione.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/proiezione.h"

#include <array>
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

Tabella<bool, kNodi> nodoDentro{"NomeNodo"};

bool AstaDentro(int b) {
    return AttAsta[b] == 1 && nodoDentro[NodoIAsta[b]] && nodoDentro[NodoJAsta[b]];
}

bool GuscioDentro(int s) {
    const auto &n = NodiGuscio[s];
    return AttGuscio[s] == 1 && nodoDentro[n[0]] && nodoDentro[n[1]] && nodoDentro[n[2]] &&
           (n[3] < 0 || nodoDentro[n[3]]);
}

bool ElContDentro(int k) {
    for (int j = 0; j < NumAsteElCont[k]; ++j)
        if (!AstaDentro(AstaElCont(k, j))) return false;
    return true;
}

template <class Prova>
void Segna(std::int16_t *flag, int numero, Prova prova) {
    const std::int16_t valore = NuovoFlag();
    for (int i = 0; i < numero; ++i)
        if (prova(i)) flag[i] = valore;
}

} // namespace

void SelezionaFinestra(double left, double top, double width, double height) {
    const Riquadro r{left, top, left + width, top - height, std::abs(width), std::abs(height)};
    for (int i = 0; i < kNodi; ++i) nodoDentro[i] = r.Contiene(XNodo(i), YNodo(i));
    switch (FormTelva.TipoElemento()) {
    case kNodiTipo:
        Segna(SelNodo.Dati(), NumNodi, [](int i) { return AttNodo[i] == 1 && nodoDentro[i]; });
        break;
    case kAsteTipo: Segna(SelAsta.Dati(), NumAste, AstaDentro); break;
    case kGusciTipo: Segna(SelGuscio.Dati(), NumGusci, GuscioDentro); break;
    case kElContTipo: Segna(SelElCont.Dati(), NumElCont, ElContDentro); break;
    default: break;
    }
    DisegnaStruttura();
    AggiornaSelezione();
}

} // namespace telva
