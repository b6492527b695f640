// Brings a building to exact counts and adds what is in the tables but not in the picture.
#pragma once

#include "Edificio.h"

namespace telva::generatore {

struct Obiettivi {
    int Nodi = 0, Aste = 0, Gusci = 0; // exact counts wanted, absent ones included
};

// Elements outside the picture: absent (name 0) or hidden (colour 10 and above).
struct FuoriVista {
    int Nodi = 0;            // absent
    int Aste = 0, Gusci = 0; // absent and hidden by turns
};

// Adds piles, bars and panels until the building holds exactly the elements wanted, less those that
// will stay outside the picture. False when it is too large or too small for it.
bool Completa(Edificio &edificio, const Obiettivi &obiettivi, const FuoriVista &fuori);

// Adds absent and hidden bars and shells, spread over the file order.
void AggiungiFuoriVista(Edificio &edificio, const FuoriVista &fuori);

// Puts the extra items among the others at equal distances, both in their order.
template <class T>
Fila<T> Distribuisci(const Fila<T> &tutti, const Fila<T> &extra) {
    Fila<T> misti;
    const std::size_t passi = extra.size() + 1;
    std::size_t presi = 0;
    for (std::size_t e = 0; e < passi; ++e) {
        const std::size_t fino = tutti.size() * (e + 1) / passi;
        for (; presi < fino; ++presi) misti.push_back(tutti.at(presi));
        if (e < extra.size()) misti.push_back(extra.at(e));
    }
    return misti;
}

} // namespace telva::generatore
