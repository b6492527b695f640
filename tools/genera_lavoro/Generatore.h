// Generates the complete model of a job: a plausible building, small or up to the full capacity of
// every table. The same model on every platform.
#pragma once

#include "Lavoro.h"

namespace telva::generatore {

enum class Taglia { Campione, Decimo, Terzo, Piena };

enum class Nomi {
    Misti,  // mostly ascending in file order, with gaps and blocks out of order
    Inversi // strictly descending in file order: the worst case for whoever sorts them
};

Lavoro Genera(Taglia taglia, Nomi ordine = Nomi::Misti);

} // namespace telva::generatore
