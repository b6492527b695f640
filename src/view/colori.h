#pragma once
// The colours of the program: codes, as the structure file and the options hold them, values and
// names. A code from kColoreNascosto on hides its element; kOgniColore matches any colour.

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace telva {

enum CodiceColore : std::int16_t {
    kNero,
    kBianco,
    kBlu,
    kRosso,
    kVerde,
    kGiallo,
    kVerdeScuro,
    kMagenta,
    kAzzurro,
    kArancione,
    kNumeroColori,
    kColoreNascosto = kNumeroColori,
    kOgniColore = kNumeroColori
};

struct ColoreNoto {
    const char *nome;
    std::uint32_t rgb; // 0x00BBGGRR
};

// By colour code.
inline constexpr ColoreNoto kColori[kNumeroColori] = {
    {"Nero", 0x000000},    {"Bianco", 0xFFFFFF},   {"Blu", 0xC00000},         {"Rosso", 0x0000FF},
    {"Verde", 0x00FF00},   {"Giallo", 0x00FFFF},   {"Verde scuro", 0x008000}, {"Magenta", 0xFF00FF},
    {"Azzurro", 0xFAC5A0}, {"Arancione", 0x46A3FF}};

// What marks the selected elements, or the others.
inline constexpr std::uint32_t kColoreEvidenza = 0xFFFF00; // cyan

// Value of a colour code; white for a code that is none.
constexpr std::uint32_t ColoreRGB(std::int32_t codice) {
    return kColori[codice >= 0 && codice < kNumeroColori ? codice : kBianco].rgb;
}

// A number of the options as a colour code: its whole part; one that is no code gives none.
inline std::int16_t CodiceDaNumero(double numero) {
    return static_cast<std::int16_t>(std::clamp(std::trunc(numero), -1.0, double{kNumeroColori}));
}

} // namespace telva
