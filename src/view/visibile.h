#pragma once
// What of the structure is shown: active elements, and those that are drawn.

#include "model/elementi.h"

namespace telva {

// Active flags of all elements, from the coordinate intervals and the side bar's check boxes. In
// place of an interval that is no number the last one taken over counts.
void CalcolaAttivi();

// Drawn: has a name, a visible colour and is active; a thin shell may be hidden by the options.
bool NodoDisegnato(int nodo);
bool AstaDisegnata(int asta);
bool GuscioDisegnato(int guscio);
// The same by kind; a continuous element is seen as soon as one of its bars is.
bool Disegnato(const Elementi &e, int elemento);
// Nothing of the structure is drawn.
bool NessunElementoDisegnato();

// True while something may be hidden: a box of the side bar is not ticked, or a coordinate interval
// does not hold the whole structure.
bool VistaFiltrata();

} // namespace telva
