#pragma once
// What the pointer on the drawing is doing: one gesture in each of three layers, all entered
// through one procedure, which alone writes the names below, the rubber bands and the pointer's
// shape (AzzeraInput too gives the shape back).

#include <cstdint>

namespace telva {

// A left click goes to the gesture of the view, when one is armed or open, else to that of the
// selection, which stays as it is underneath: after a zoom the awaited window is still awaited. A
// two-click pan whose second click has not moved lets the click through. The drag of the middle
// button runs over all of them and changes none.
enum class Strato { Selezione, Vista, TastoCentrale };

enum class Gesto {
    // Selezione
    Riposo,
    FinestraAttesa,   // the first corner of a selection window
    FinestraAperta,   // the second
    AutomaticaAttesa, // a window that a pick without a hit has opened: after it the pick goes on
    AutomaticaAperta,
    // Vista
    VistaFerma,
    ZoomArmato,
    ZoomAperto,
    SpostaArmato,
    SpostaAperto,
    // TastoCentrale
    TastoLibero,
    Trascina
};

extern std::int16_t PrimoAngolo;        // 1 = first corner placed, second awaited
extern std::int16_t SpostaInCorso;      // 1 = first point of a two-click pan placed
extern std::int16_t ModoZoom;           // 1 from the command Zoom until its rectangle is complete
extern std::int16_t ModoSposta;         // 1 from the command Sposta until the pan is complete
extern std::int16_t FinestraAutomatica; // 1 = the window was opened by a pick that hit nothing

// Makes it the gesture of its layer. Where the rubber bands stand is set before.
void Entra(Gesto gesto);

// True while it is the gesture of its layer.
bool InCorso(Gesto gesto);

// The gesture of a layer.
Gesto GestoIn(Strato strato);

// Every layer at rest, the rubber bands hidden: for commands that begin something else.
void FinisciGesti();

} // namespace telva
