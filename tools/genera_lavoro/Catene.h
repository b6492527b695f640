// Continuous elements: chains of bars along the grid lines and up the columns.
#pragma once

#include "Lavoro.h"

namespace telva::generatore {

// The chains of a building in their natural number when quante is 0; otherwise exactly that many
// (more than the natural ones), with long grillages of as many bars as fit and spans, which overlap
// the others. One chain is always empty.
Fila<ElCont> Catene(const Fila<Asta> &aste, int quante);

} // namespace telva::generatore
