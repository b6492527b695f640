#pragma once
// The one loop that changes selection flags.

#include "model/elementi.h"

#include <cstdint>

namespace telva {

// What a marking writes.
enum class Segno { Tolto, Messo, Invertito };

// Marks every active element of the kind for which `prova(i)` holds; hidden ones keep their flag.
template <class Prova>
void Segna(const Elementi &e, Segno segno, Prova prova) {
    for (int i = 0; i < e.numero; ++i) {
        if (!e.Attivo(i) || !prova(i)) continue;
        const bool nuovo = segno == Segno::Invertito ? !e.Selezionato(i) : segno == Segno::Messo;
        e.selezionati[i] = nuovo ? 1 : 0;
    }
}

} // namespace telva
