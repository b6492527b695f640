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

std::array<bool, kNodi> nodoDentro;

bool Dentro(int nodo) {
    if (nodo < 0 || nodo >= kNodi) GuastoIndice("NomeNodo", nodo, kNodi - 1);
    return nodoDentro[static_cast<std::size_t>(nodo)];
}
bool AstaDentro(int b) { return AttAsta[b] == 1 && Dentro(NodoIAsta[b]) && Dentro(NodoJAsta[b]); }

bool GuscioDentro(int s) {
    const auto &n = NodiGuscio[s];
    return AttGuscio[s] == 1 && Dentro(n[0]) && Dentro(n[1]) && Dentro(n[2]) &&
           (n[3] < 0 || Dentro(n[3]));
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
    for (int i = 0; i < kNodi; ++i)
        nodoDentro[static_cast<std::size_t>(i)] = r.Contiene(XNodo(i), YNodo(i));
    switch (FormTelva.TipoElemento()) {
    case kNodiTipo:
        Segna(SelNodo.Dati(), NumNodi, [](int i) { return AttNodo[i] == 1 && Dentro(i); });
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
