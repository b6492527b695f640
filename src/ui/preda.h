#pragma once
// What a left click at the place of the pointer would do, known before it is made: told in the line
// of state, and drawn over the picture when it is an element.

#include <vector>

namespace telva {

enum class EffettoClic {
    Nessuno,      // a click has no meaning
    Scelta,       // direct pick; the pointer is elsewhere
    Elemento,     // direct pick takes it
    ApreFinestra, // direct pick finds nothing there
    Angolo,       // the first one of a window, for selection or zoom
    AngoloOpposto,
    PuntoDaSpostare, // where a pan begins, and where it ends
    Destinazione
};

// The elements that a click would mark: those of the kind that bear the name under the pointer.
struct ElementiPresi {
    int tipo = 0;
    std::vector<int> elementi; // in the order of the table; empty: none
};

// Where the pointer rests on the drawing, in drawing units, as the click would tell it.
// PuntatoreFuori: it has left, or a key, a menu or another window has the word.
void PuntatoreSu(double x, double y);
void PuntatoreFuori();

// Works it all out anew, with the code of the click itself, and shows the elements.
void CercaPreda();

EffettoClic ClicSulDisegno();
const ElementiPresi &Preda();
// False for one of Preda's elements that is selected, or not, as the click would leave it.
bool CambiaColClic(int elemento);

} // namespace telva
