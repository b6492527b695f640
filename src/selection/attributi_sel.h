#pragma once
// Selection by the display attributes that the structure carries.

#include <cstdint>

namespace telva {

// Codes that match any value.
inline constexpr std::int16_t kOgniColore = 10, kOgniPunto = 8, kOgniLinea = 5, kOgniTratto = 9;

// Each ends the pending sub-function, marks the active elements of the chosen kind whose attribute
// is `codice`, redraws, shows the list and leaves direct pick as the sub-function.
void SelezionaPerColore(std::int16_t codice);
void SelezionaPerTipoPunto(std::int16_t codice);
void SelezionaPerTipoLinea(std::int16_t codice);
void SelezionaPerTratteggio(std::int16_t codice);

} // namespace telva
