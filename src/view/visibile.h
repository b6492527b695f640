#pragma once
// What of the structure is shown: active elements, and those that are drawn.

namespace telva {

// Active flags of all elements, from the coordinate intervals and the side bar's check boxes. In
// place of an interval that is no number the last one taken over counts.
void CalcolaAttivi();

// Drawn: has a name, a visible colour and is active; a thin shell may be hidden by the options.
bool NodoDisegnato(int nodo);
bool AstaDisegnata(int asta);
bool GuscioDisegnato(int guscio);

} // namespace telva
