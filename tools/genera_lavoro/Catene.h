// Continuous elements: chains of bars along the grid lines and up the columns.
#pragma once

#include "Cantiere.h"

#include <string>

namespace telva::generatore {

struct Catena {
    std::string Nome; // UTF-8
    Fila<int> Aste;   // bar indexes in file order, at most MaxAsteElCont
};

// The chains of a building in their natural number when quante is 0; otherwise exactly that many,
// with long grillages of as many bars as fit and single spans, which overlap the others.
// One chain is always empty.
Fila<Catena> Catene(const Fila<AstaGrezza> &aste, int quante);

} // namespace telva::generatore
