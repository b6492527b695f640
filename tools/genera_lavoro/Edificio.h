// Geometry of the buildings: frame, floors, bracings, lift cores and pitched roof on a grid.
#pragma once

#include "Casuale.h"
#include "Lavoro.h"

#include <map>
#include <optional>

namespace telva::generatore {

// A fine grid line, through the corners of the floor panels.
struct Linea {
    int Quota, Filo, Campata; // Filo: number of the main line, -1 between two of them
};

// All grid lines of one direction, ascending.
struct Asse {
    Fila<Linea> Linee{};
    Fila<int> Fili{}; // the main ones (columns stand where they cross)

    // Of bays with so many floor panels each.
    Asse(const Fila<int> &campate, const Fila<int> &campi, int inizio = 0);
    int Quota(int filo) const { return Linee[Fili[filo]].Quota; }
    int Fine() const { return Linee.back().Quota; }
};

struct Maglia {
    Asse X, Y;                         // panels: last bay of X = first of Y (chamfer)
    Fila<int> Quote{};                 // of the levels, ascending; level 0 is the foundation
    Fila<std::array<int, 2>> Nuclei{}; // bays taken by a lift core
    int AltezzaColmo = 0;              // ridge above the last level
    bool Dettagli = false; // lift tower outside, balconies, shear wall, all secondary beams
};

// A handsome small building of five storeys.
Maglia MagliaCampione();

// How many bays and storeys.
struct Dimensioni {
    int X, Y, Piani;
};

// A regular large building around the origin, with panels of a third of the span.
Maglia MagliaGrande(const Dimensioni &dimensioni, Casuale &caso);

using Posto = std::optional<Posizione>; // nothing: cut away from the building

// The elements of a building; the tables of nodes are not yet those of the file.
class Edificio {
  public:
    Fila<Posizione> Nodi;
    Fila<Asta> Aste;
    Fila<Guscio> Gusci;
    // What a large building may have besides or lack, between nodes that stand anyway:
    Fila<Asta> Secondarie; // beams inside the floor panels
    Fila<Guscio> Tramezzi; // partition panels between two floors
    Fila<int> Cavedi;      // middle panels of bays, which can be left out as service shafts

    // Adds a bar, when both of its ends stand.
    void Metti(const TipoAsta &tipo, const Posto &i, const Posto &j, Luogo dove) {
        if (!i || !j) return;
        const int nodoI = IndiceNodo(*i), nodoJ = IndiceNodo(*j);
        Aste.push_back({nodoI, nodoJ, tipo, dove});
    }

    // Adds a shell, when at least three of its corners stand; they go round its edge.
    void Metti(const TipoGuscio &tipo, const Fila<Posto> &angoli, int piano) {
        Guscio guscio{{-1, -1, -1, -1}, tipo, piano};
        auto nodo = guscio.Nodi.begin();
        for (const Posto &angolo : angoli)
            if (angolo) *nodo++ = IndiceNodo(*angolo);
        if (guscio.Nodi[2] >= 0) Gusci.push_back(guscio);
    }

  private:
    // Index of the node at this position, made when there is none.
    int IndiceNodo(const Posizione &p) {
        const auto [posto, nuovo] = indici_.try_emplace(p, Nodi.Quanti());
        if (nuovo) Nodi.push_back(p);
        return posto->second;
    }

    std::map<Posizione, int> indici_;
};

Edificio Costruisci(const Maglia &maglia);

} // namespace telva::generatore
