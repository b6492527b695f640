#pragma once
// The element kinds: what the tables hold of each, and what an element of each is made of. Whatever
// goes by kind asks here.

#include "model/struttura.h"

#include <cstdint>

namespace telva {

// As the side bar and the exchange files number them.
enum TipoElemento { kNodiTipo = 0, kAsteTipo, kGusciTipo, kElContTipo, kParetiTipo };
inline constexpr int kTipiElemento = 5;

// One kind. Nodes, bars and shells are each their own single part; the parts of a continuous
// element are its bars, and it has only what all of them have. Walls have no tables: none counts.
struct Elementi {
    TipoElemento tipo;
    TipoElemento parti;                      // kind of the parts
    const std::int16_t &numero;              // how many
    VistaTabella<const std::int16_t> nomi;   // by element
    VistaTabella<std::int16_t> selezionati;  // by element
    VistaTabella<std::int16_t> attivi;       // by part
    VistaTabella<const std::int16_t> colori; // by part

    // True when `prova(parte)` holds for every part of element i; so for one without parts. A name
    // that no bar has stands as it is among the bars of a continuous element: where it is no place
    // of the table either, nothing holds for the element, which is neither selectable nor drawn.
    template <class Prova>
    bool OgniParte(int i, Prova prova) const {
        if (tipo != kElContTipo) return prova(i);
        for (int j = 0; j < NumAsteElCont[i]; ++j) {
            const int asta = AsteElCont(i, j);
            if (asta < 0 || asta >= kAste || !prova(asta)) return false;
        }
        return true;
    }
    bool Intero(int i) const {
        return OgniParte(i, [](int) { return true; });
    }
    bool Attivo(int i) const {
        return OgniParte(i, [this](int parte) { return attivi[parte] == 1; });
    }
    bool Selezionato(int i) const { return selezionati[i] == 1; }
};

// The descriptor of a kind 0..4.
const Elementi &ElementiDi(int tipo);

// The descriptor of what stands in the picture for a kind: walls are drawn from the shells, and
// what is marked under their name are shells.
inline const Elementi &ElementiDisegnatiDi(int tipo) {
    return ElementiDi(tipo == kParetiTipo ? kGusciTipo : tipo);
}

// True when `prova(nodo)` holds for every node on which a part stands: the node itself, both ends
// of a bar, the corners of a shell.
template <class Prova>
bool OgniNodo(TipoElemento tipo, int parte, Prova prova) {
    switch (tipo) {
    case kNodiTipo: return prova(parte);
    case kAsteTipo: return prova(NodoIAsta[parte]) && prova(NodoJAsta[parte]);
    case kGusciTipo:
        for (int c = 0; c < NumeroAngoli(parte); ++c)
            if (!prova(NodiGuscio[parte][static_cast<std::size_t>(c)])) return false;
        return true;
    default: return true;
    }
}

// A set of nodes, and which elements lie wholly inside it.
class NodiDentro {
  public:
    // The nodes for which `prova(nodo)` holds. Bars may name a node that the file does not hold: it
    // stands at point 0, as everywhere.
    template <class Prova>
    void Calcola(Prova prova) {
        for (int i = 0; i < kNodi; ++i) dentro_[i] = prova(i);
    }
    bool Contiene(const Elementi &e, int i) const {
        return e.OgniParte(i, [&](int parte) {
            return OgniNodo(e.parti, parte, [this](int nodo) { return dentro_[nodo]; });
        });
    }

  private:
    Tabella<bool, kNodi> dentro_{"NomeNodo"};
};

} // namespace telva
