// Geometry of the buildings: frame, floors, bracings, lift cores and pitched roof on a grid.
#pragma once

#include "Cantiere.h"
#include "Casuale.h"

namespace telva::generatore {

// The grid of a building. Lengths are hundredths of a cm, lines and levels ascend.
struct Maglia {
    Fila<int> FiliX, FiliY;            // main grid lines (columns stand where they cross)
    Fila<int> SuddX, SuddY;            // floor panels per bay; last of X = first of Y (chamfer)
    Fila<int> Quote;                   // level 0 is the foundation
    Fila<std::array<int, 2>> Nuclei{}; // bays taken by a lift core
    int AltezzaColmo = 0;              // ridge above the last level
    int Sporto = 0;                    // eaves beyond the outer lines
    bool Dettagli = false; // lift tower outside, balconies, shear wall, all secondary beams
};

// A handsome small building of five storeys; the seed moves spans and heights a little.
Maglia MagliaCampione(Casuale &caso);

// A regular large building around the origin, with panels of a third of the span.
Maglia MagliaGrande(int campateX, int campateY, int piani, Casuale &caso);

struct AstaCandidata {
    TipoAsta Tipo = TipoAsta::Secondaria;
    Posizione I, J;
    Luogo Dove;
};

struct Edificio {
    Cantiere Elementi;
    // Bars that may be added between nodes that already stand: secondary beams first, then bracings
    // of the inner frames.
    Fila<AstaCandidata> Aggiungibili;
    // Partition panels between two floors, between nodes that already stand.
    Fila<Fila<Posizione>> Tramezzi;
};

Edificio Costruisci(const Maglia &maglia);

} // namespace telva::generatore
