#pragma once
// Drawing library: segments and texts, drawn on a target or, without one,
// recorded in the display list.

#include "platform/tabella.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace telva {

class RiquadroDisegno;

// Display list: shared points and the segments between them.
inline constexpr int kCoordDis = 50001, kElemDis = 50001, kTestiDis = 15000;
extern std::int32_t NumCoordDis;
extern Tabella<double, kCoordDis> CoordDisX, CoordDisY;
extern std::int32_t NumElemDis;
extern Tabella<std::int32_t, kElemDis> ElemDisIni, ElemDisFin;
extern Tabella<std::int16_t, kElemDis> ElemDisColore, ElemDisTipo;
extern std::int16_t ColoreDisCorrente, TipoDisCorrente;
extern double OffsetDisX, OffsetDisY;
// Texts are recorded instead of stroked while this is "gendis".
extern std::string ModoDisTesto;
struct TestoDis {
    std::string testo;
    double x = 0, y = 0;
};
extern std::vector<TestoDis> TestiDis; // at most kTestiDis

// Place of the point in the coordinate table, shared with one of the last 31 if it is there;
// -1 when the table is full.
std::int32_t AggiungiCoordinata(double x, double y);
// Records one segment; a full table drops it.
void AggiungiElemento(double x1, double y1, double x2, double y2, std::int16_t colore);

// Draws the segment on the target, or records it without one. A segment shorter than 0.0001 in
// both directions is left out.
void DisLinea(double x1, double y1, double x2, double y2, std::optional<std::int16_t> colore = {},
              RiquadroDisegno *bersaglio = nullptr);

// Draws a text with the stroke font: (x, y) is the left end of its baseline, `angolo` in degrees,
// `base` the advance of a character and `altezza` its height, in drawing units.
void DisTesto(std::string_view testo, double x, double y, std::int16_t angolo, double base,
              double altezza, std::optional<std::int16_t> colore = {},
              RiquadroDisegno *bersaglio = nullptr);

// DisTesto on a target, with a black outline as wide as its pen: it reads over anything.
void DisTestoContornato(std::string_view testo, double x, double y, std::int16_t angolo,
                        double base, double altezza, std::int16_t colore,
                        RiquadroDisegno &bersaglio);

void AzzeraDisegno();

} // namespace telva
