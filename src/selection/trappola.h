#pragma once
// Direct pick: which element lies under the pick aperture. Coordinates are drawing units.

#include <cstdint>
#include <vector>

namespace telva {

extern double TrappolaDis; // the aperture in drawing units at the last search

// kOpzTrappola in drawing units of the present scale, into TrappolaDis.
void CalcolaTrappola();

// 1 when the element is within the aperture, else 0; `distanza` is set on a hit.
int PickNodo(int nodo, double x, double y, double &distanza);
int PickAsta(int asta, double x, double y, double &distanza);
// 1 when the point lies inside the shell or on its edge, else 0.
int PickGuscio(int guscio, double x, double y);

// At most kCandidati hits compete.
inline constexpr int kCandidati = 50;
struct Candidato {
    std::int16_t indice;
    double distanza;
};

// Name of the candidate that the running function would change and that lies nearest; the nearest
// when it would change none. `candidati` is in the order of the tables and not empty.
std::int16_t ScegliCandidato(std::vector<Candidato> candidati, int tipo);

// Name of the element of the chosen kind under the aperture; below 1 when there is none.
std::int16_t SelezioneDiretta(double x, double y);

// First active node within the aperture in the order of the table, -1 when there is none; also
// brings TrappolaDis up to date.
int NodoSottoPuntatore(double x, double y);

} // namespace telva
