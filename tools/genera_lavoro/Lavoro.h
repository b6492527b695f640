// One job as data, table by table in file order: what the generator builds and the writer writes.
#pragma once

#include "Tipi.h"

#include <array>
#include <compare>
#include <string>
#include <vector>

namespace telva::generatore {

// A vector counted in whole numbers, as the tables of a job are; every index is checked.
template <class T>
class Fila : public std::vector<T> {
  public:
    using std::vector<T>::vector;
    T &operator[](int i) { return this->at(static_cast<std::size_t>(i)); }
    const T &operator[](int i) const { return this->at(static_cast<std::size_t>(i)); }
    int Quanti() const { return static_cast<int>(this->size()); }
    void Aggiungi(const Fila &altri) { this->insert(this->end(), altri.begin(), altri.end()); }
    // Takes away those from the given place on.
    Fila StaccaDa(int primo) {
        Fila staccati(this->begin() + primo, this->end());
        this->erase(this->begin() + primo, this->end());
        return staccati;
    }
};

// Lengths are whole hundredths of a cm, so that equal positions are equal and survive text exactly.
struct Posizione {
    int X = 0, Y = 0, Z = 0;
    auto operator<=>(const Posizione &) const = default;
};

// Where a bar stands: storey, and main grid lines counted from 0 (-1 = on none of them).
struct Luogo {
    int Piano = 0, FiloX = -1, FiloY = -1;
};

// An element with the name 0 is absent.
struct Nodo {
    int Punto;
    TipoNodo Tipo;
    int Nome = 1;
};
struct Asta {
    int I, J; // nodes
    TipoAsta Tipo;
    Luogo Dove;
    int Nome = 1;
};
struct Guscio {
    std::array<int, 4> Nodi; // the fourth of a triangle is -1
    TipoGuscio Tipo;
    int Piano;
    int Nome = 1;
};
// A continuous element; its name is the number of its card.
struct ElCont {
    std::string Testo; // UTF-8
    Fila<int> Aste;    // places in the table of bars
    int Nome = 1;
};

// How many property cards there are, and texts at the end of the structure.
struct Schede {
    int Spessori = 0, Sezioni = 0, Testi = 0;
};

struct Lavoro {
    std::string Titolo; // UTF-8
    Schede Quante;
    Fila<Posizione> Punti{};
    Fila<Nodo> Nodi{};
    Fila<Asta> Aste{};
    Fila<Guscio> Gusci{};
    Fila<ElCont> ElementiContinui{};
};

} // namespace telva::generatore
