#pragma once
// Thickness cards, section cards and continuous elements of the job.

#include "platform/tabella.h"

#include <cstdint>
#include <string>

namespace telva {

inline constexpr int kSchedeSpessore = 100, kSchedeSezione = 99; // by count; differ on purpose

extern std::int16_t NumSpessori;
extern Tabella<std::int16_t, 16001> MatSpessore; // card n at entry n-1
extern Tabella<double, 16001> ValSpessore;       // cm
extern std::int16_t NumSezioni;
extern Tabella<std::int16_t, 20001> MatSezione;

// Each reads its file of DirLavoro and returns the message to show, empty on success. A table over
// its capacity shows its own message and keeps the first entries. A malformed value in the
// continuous-element file is a Guasto.
std::string LeggiSpessori();
std::string LeggiSezioni();
std::string LeggiElCont();

// Material of a card; 0 for card 0 and for cards the table does not hold.
std::int16_t MaterialeSezione(int scheda);
std::int16_t MaterialeSpessore(int scheda);

void AzzeraTabelle();

} // namespace telva
