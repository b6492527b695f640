#pragma once
// Selection by the display attributes that the structure carries.

#include "selection/selezione.h"
#include "view/colori.h"

#include <cstdint>

namespace telva {

// Codes that match any value; for colours it is kOgniColore.
inline constexpr std::int16_t kOgniPunto = 8, kOgniLinea = 5, kOgniRetino = 9;

// Each ends the pending sub-function, marks the active elements of the chosen kind whose attribute
// is `codice`, redraws, shows the list and leaves direct pick as the sub-function.
void SelezionaPerColore(std::int16_t codice, Segno segno);
void SelezionaPerTipoPunto(std::int16_t codice, Segno segno);
void SelezionaPerTipoLinea(std::int16_t codice, Segno segno);
void SelezionaPerTratteggio(std::int16_t codice, Segno segno);

} // namespace telva
