#pragma once
// Labels of the elements, in the options' text size, distance and colour.

#include <string>

namespace telva {

// Label texts as the options' parts switch them; empty when no part is on.
std::string EtichettaNodo(int nodo);
std::string EtichettaAsta(int asta);
std::string EtichettaGuscio(int guscio);
std::string EtichettaElCont(int elemento);

// Draws name labels, then shells', bars' and nodes' labels.
void DisegnaEtichette();

} // namespace telva
