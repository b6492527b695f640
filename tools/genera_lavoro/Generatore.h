// Generates the complete model of a job: a plausible building of any size up to the full capacity
// of every table. The same parameters give the same model on every platform.
#pragma once

#include "Lavoro.h"

#include <cstdint>
#include <string>

namespace telva::generatore {

// Smallest and largest number of elements (nodes + bars + shells) that can be asked for.
inline constexpr int MinElementi = 2500;
inline constexpr int MaxElementi = MaxNodi + MaxAste + MaxGusci;

enum class Taglia { Campione, Decimo, Terzo, Piena, Numero };

enum class Nomi {
    Misti,  // mostly ascending in file order, with gaps and blocks out of order
    Inversi // strictly descending in file order: the worst case for whoever sorts them
};

struct Parametri {
    std::uint64_t Seme = 1;
    Taglia Misura = Taglia::Campione;
    int NumElementi = 0; // only with Taglia::Numero: MinElementi..MaxElementi
    Nomi Ordine = Nomi::Misti;
    int Tipo = 1;          // kind asked for in TelvaIn.txt, 0..4
    std::string Selezione; // incoming selection string
    std::string Titolo;    // UTF-8; empty = a title that tells the size
};

// Builds the model. Throws std::invalid_argument when a parameter is out of its range.
Lavoro Genera(const Parametri &parametri);

} // namespace telva::generatore
