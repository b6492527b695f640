#pragma once
// The stroke font: glyphs as independent segments in a cell of 99 x 69 font units, baseline at 30.

#include "platform/tabella.h"

#include <array>
#include <cstdint>
#include <string>

namespace telva {

inline constexpr int kPuntiCarattere = 101; // stored points of a glyph, of which 100 are used

extern Tabella<std::string, 256> CarFont;    // the character a line declared
extern Tabella<std::int16_t, 256> NumPtFont; // end points of the glyph, -1 = no glyph
extern Tabella2<std::int16_t, 256, kPuntiCarattere> FontX, FontY; // (code, point)
extern std::int16_t SpazioFont; // narrowing of the glyphs, percent

extern int RevisioneFont; // grows whenever the tables change

// Reads font.001 from DirProgra, or from DirRoot when it is not there. A missing or broken file
// shows its message; the glyphs read so far stay.
void LeggiFont();

void AzzeraFont();

} // namespace telva
