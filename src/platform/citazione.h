#pragma once
// What a message quotes of texts and numbers that come from files and boxes: never more than a box
// can show.

#include <string>
#include <string_view>

namespace telva {

// At most 60 characters, the last one "…" when there were more; control characters are blanks.
std::string Cita(std::string_view testo);

// The same of a path, which may take 260 characters and loses some in its middle: drive and name
// of the file stay.
std::string CitaPercorso(std::string_view percorso);

// A number as TestoNumero gives it; beyond 1e15 its short form (1e+20).
std::string CitaNumero(double numero);

} // namespace telva
