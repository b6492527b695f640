#pragma once
// Reader of the structure file and of the bar envelope file.

#include <cstdint>

namespace telva {

// Reads DirLavoro\STRUTTUR.STR and DirLavoro\Ingombri.tmp into the structure tables. `ok` is 1 on
// success; 0 when the structure file cannot be opened (nothing is shown: the caller reports it) or
// a node name is above 32000 (shown here). A header of an old version shows its message and ends
// the program. A count, index or number outside its table or field, or a file that ends before the
// entries it announces, is a Guasto with file and line. Envelope failures only clear the envelopes.
void LeggiStruttura(std::int16_t &ok);

// Turns the bar names of the continuous elements into bar places: the first bar of that name. A
// name that no bar has stays as it is, and later users take it for a place.
void ConvertiAsteElCont();

} // namespace telva
