#pragma once
// The classic number rules, each in this one place. None of them looks at the locale.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace telva {

// Leading numeric prefix of the text (sign, digits, point, exponent E or D); blanks and tabs are
// ignored, reading stops at the first character that cannot continue a number, no number gives 0.
// Beyond the range of a double: the largest finite value of that sign.
double ValoreNumerico(std::string_view testo);

// The whole text, blanks around it aside, as a number; nothing when it is anything else
// (also for "nan", "inf" and values beyond the range of a double).
std::optional<double> NumeroStretto(std::string_view testo);

// The same with points for the commas: the number pad of an Italian keyboard has no point.
std::string ConPunto(std::string_view testo);

// Nearest integer, halves to the even one.
double ArrotondaPari(double valore);

// Integer part towards minus infinity.
double ParteIntera(double valore);

// The value as a 16-bit integer, when it fits.
std::optional<std::int16_t> Intero16(double valore);

// Plain decimal form, shortest that reads back the same: 1, 0, 12.5 (no exponent, no "-0").
std::string TestoNumero(double valore);
std::string TestoNumero(int valore);

} // namespace telva
