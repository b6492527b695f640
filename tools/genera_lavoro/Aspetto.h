// What each kind of element carries: colour, types and property cards.
#pragma once

#include "Cantiere.h"
#include "Lavoro.h"

#include <vector>

namespace telva::generatore {

inline constexpr int SpessoriCampione = 8;
inline constexpr int SezioniCampione = 14;

// Fills everything but nodes, name and envelope of the bar; cards stay within numSezioni.
Asta AspettoAsta(const AstaGrezza &grezza, int numSezioni);

// Fills everything but nodes and name of the shell; cards stay within numSpessori.
Guscio AspettoGuscio(const GuscioGrezzo &grezzo, int numSpessori);

// Point type, colour and constraint card of every node of the site, in its order.
Fila<Nodo> AspettoNodi(const Cantiere &cantiere);

std::vector<SchedaSpessore> SchedeSpessore(int quante);
std::vector<SchedaSezione> SchedeSezione(int quante);

} // namespace telva::generatore
