#include "Cantiere.h"

#include <algorithm>

namespace telva::generatore {

int Cantiere::Nodo(const Posizione &p) {
    const auto [posto, nuovo] = Indici.try_emplace(p, Nodi.Quanti());
    if (nuovo) Nodi.push_back(p);
    return posto->second;
}

void Cantiere::Asta(TipoAsta tipo, const Posizione &i, const Posizione &j, Luogo dove) {
    const int nodoI = Nodo(i), nodoJ = Nodo(j);
    Aste.push_back({nodoI, nodoJ, tipo, dove});
}

void Cantiere::Guscio(TipoGuscio tipo, const Fila<Posizione> &angoli, Luogo dove, bool cavedio) {
    GuscioGrezzo guscio{{-1, -1, -1, -1}, tipo, dove, cavedio};
    std::transform(angoli.begin(), angoli.end(), guscio.Nodi.begin(),
                   [this](const Posizione &p) { return Nodo(p); });
    Gusci.push_back(guscio);
}

} // namespace telva::generatore
