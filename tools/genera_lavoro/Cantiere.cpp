#include "Cantiere.h"

namespace telva::generatore {

int Cantiere::Nodo(const Posizione &p) {
    const auto [posto, nuovo] = Indici.try_emplace(p, static_cast<int>(Nodi.size()));
    if (nuovo) Nodi.push_back(p);
    return posto->second;
}

void Cantiere::Asta(TipoAsta tipo, const Posizione &i, const Posizione &j, Luogo dove) {
    const int nodoI = Nodo(i);
    const int nodoJ = Nodo(j);
    Aste.push_back({nodoI, nodoJ, tipo, dove});
}

void Cantiere::Guscio(TipoGuscio tipo, const std::vector<Posizione> &angoli, Luogo dove,
                      bool cavedio) {
    GuscioGrezzo guscio{{-1, -1, -1, -1}, tipo, dove, cavedio};
    for (std::size_t a = 0; a < angoli.size() && a < guscio.Nodi.size(); ++a)
        guscio.Nodi[a] = Nodo(angoli[a]);
    Gusci.push_back(guscio);
}

} // namespace telva::generatore
