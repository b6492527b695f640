#pragma once
// Painting of the whole structure on Disegno.

#include "model/struttura.h"

namespace telva {

inline constexpr int kColoreNascosto = 10; // this colour code and those above hide an element

// Drawn: has a name, a visible colour and is active; a thin shell may be hidden by the options.
bool NodoDisegnato(int nodo);
bool AstaDisegnata(int asta);
bool GuscioDisegnato(int guscio);

// Clears the picture and paints axes, bars, shells, nodes and labels, in this order.
void DisegnaStruttura();

} // namespace telva
