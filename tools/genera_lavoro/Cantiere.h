// The building site: the raw elements of a building, by kind and place, before names, cards and
// colours are given. Coordinates are whole hundredths of a cm, so that equal positions are equal.
#pragma once

#include <array>
#include <compare>
#include <map>
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
};

struct Posizione {
    int X = 0, Y = 0, Z = 0;
    auto operator<=>(const Posizione &) const = default;
};

// A hidden element is in the tables and not drawn; a deleted one has no name.
enum class TipoAsta {
    Pilastro,
    TraveX,
    TraveY,
    Smusso,
    Secondaria,
    Controvento,
    Puntone,
    Arcareccio,
    Monaco,
    Cordolo,
    Palo,
    Mensola,
    Fittizia,
    Eliminata
};
enum class TipoGuscio {
    Solaio,
    Balcone,
    Nucleo,
    Parete,
    Falda,
    Lucernario,
    Copertina,
    Fittizio,
    Eliminato
};

// Where an element stands: storey, and main grid lines counted from 0 (-1 = on none of them).
struct Luogo {
    int Piano = 0, FiloX = -1, FiloY = -1;
};

struct AstaGrezza {
    int I = 0, J = 0;
    TipoAsta Tipo = TipoAsta::Pilastro;
    Luogo Dove;
};

struct GuscioGrezzo {
    std::array<int, 4> Nodi{}; // the fourth of a triangle is -1
    TipoGuscio Tipo = TipoGuscio::Solaio;
    Luogo Dove;
    bool Cavedio = false; // middle panel of a bay: can be left out as a service shaft
};

class Cantiere {
  public:
    Fila<Posizione> Nodi;
    Fila<AstaGrezza> Aste;
    Fila<GuscioGrezzo> Gusci;

    // Index of the node at this position, made when there is none.
    int Nodo(const Posizione &p);
    // Adds a bar between two positions.
    void Asta(TipoAsta tipo, const Posizione &i, const Posizione &j, Luogo dove);
    // Adds a shell with three or four corners, in order around its edge.
    void Guscio(TipoGuscio tipo, const Fila<Posizione> &angoli, Luogo dove, bool cavedio = false);

  private:
    std::map<Posizione, int> Indici;
};

} // namespace telva::generatore
