#include "view/salva_dis_cond.h"

#include "model/legfont_cond.h"
#include "platform/disegno.h"
#include "platform/messaggi.h"
#include "platform/testo.h"

#include <array>
#include <cmath>

namespace telva {

std::int32_t NumCoordDis;
Tabella<double, kCoordDis> CoordDisX{"CoordDisX"}, CoordDisY{"CoordDisY"};
std::int32_t NumElemDis;
Tabella<std::int32_t, kElemDis> ElemDisIni{"ElemDisIni"}, ElemDisFin{"ElemDisFin"};
Tabella<std::int16_t, kElemDis> ElemDisColore{"ElemDisColore"}, ElemDisTipo{"ElemDisTipo"};
std::int16_t ColoreDisCorrente, TipoDisCorrente;
double OffsetDisX, OffsetDisY;
std::string ModoDisTesto;
std::int32_t NumTestiDis;
Tabella<TestoDis, kTestiDis> TestiDis{"TestiDis"};

namespace {

constexpr double kVicino = 0.0001; // drawing coordinates closer than this are the same
constexpr std::int32_t kLimiteCoord = 50000, kLimiteElem = 50000, kLimiteTesti = 15000;
constexpr std::int32_t kRicerca = 30; // how far behind the last point sharing looks

constexpr double kLarghezzaCella = 99, kAltezzaCella = 69, kLineaBase = 30;

bool Vicini(double x1, double y1, double x2, double y2) {
    return std::abs(x1 - x2) < kVicino && std::abs(y1 - y2) < kVicino;
}

void Avverti(const char *testo) { MostraMessaggio(testo, Icona::Esclamazione, "Problema"); }

void RegistraTesto(std::string_view testo, double x, double y) {
    if (NumTestiDis >= kLimiteTesti) return;
    if (NumTestiDis == kLimiteTesti - 1) Avverti(" Numero eccessivo di testi ");
    TestiDis[NumTestiDis++] = {std::string(testo), x + OffsetDisX, y + OffsetDisY};
}

} // namespace

std::uint32_t ColoreRGB(std::int32_t codice) {
    static constexpr std::array<std::uint32_t, 10> kColori = {
        0x000000, 0xFFFFFF, 0xC00000, 0x0000FF, 0x00FF00,
        0x00FFFF, 0x008000, 0xFF00FF, 0xFAC5A0, 0x46A3FF};
    return codice >= 0 && codice < 10 ? kColori[static_cast<std::size_t>(codice)] : 0xFFFFFF;
}

std::int32_t AggiungiCoordinata(double x, double y) {
    for (std::int32_t i = NumCoordDis - 1; i >= 0 && i >= NumCoordDis - 1 - kRicerca; --i)
        if (Vicini(x, y, CoordDisX[i], CoordDisY[i])) return i;
    if (NumCoordDis == kLimiteCoord - 1) Avverti(" Numero eccessivo di coordinate ");
    if (NumCoordDis == kLimiteCoord) return -1;
    CoordDisX[NumCoordDis] = x;
    CoordDisY[NumCoordDis] = y;
    return NumCoordDis++;
}

void AggiungiElemento(double x1, double y1, double x2, double y2, std::int16_t colore) {
    if (NumElemDis == kLimiteElem - 1) Avverti(" Numero eccessivo di elementi di disegno ");
    if (NumElemDis == kLimiteElem) return;
    const std::int32_t posto = NumElemDis++;
    ElemDisIni[posto] = AggiungiCoordinata(x1, y1);
    ElemDisFin[posto] = AggiungiCoordinata(x2, y2);
    ElemDisTipo[posto] = TipoDisCorrente;
    ElemDisColore[posto] = colore;
    if (ElemDisFin[posto] < 0) --NumElemDis;
}

void DisLinea(double x1, double y1, double x2, double y2, std::optional<std::int16_t> colore,
              RiquadroDisegno *bersaglio) {
    if (Vicini(x1, y1, x2, y2)) return;
    if (bersaglio)
        bersaglio->Line(x1, y1, x2, y2, ColoreRGB(colore.value_or(0)));
    else
        AggiungiElemento(x1 + OffsetDisX, y1 + OffsetDisY, x2 + OffsetDisX, y2 + OffsetDisY,
                         colore.value_or(ColoreDisCorrente));
}

void DisTesto(std::string_view testo, double x, double y, std::int16_t angolo, double base,
              double altezza, std::optional<std::int16_t> colore, RiquadroDisegno *bersaglio) {
    if (base == 0 || altezza == 0) return;
    if (ModoDisTesto == "gendis") {
        RegistraTesto(testo, x, y);
        return;
    }
    const double teta = angolo * 4 * std::atan(1.0) / 180;
    const double ct = std::cos(teta), st = std::sin(teta);
    const double sx = (1 - SpazioFont / 100.0) * base / kLarghezzaCella;
    const double sy = altezza / kAltezzaCella;
    double avanzamento = -base;
    for (std::size_t posto = 0; posto < testo.size();) {
        const int codice = CodiceAnsi(ProssimoCarattere(testo, posto));
        if (codice < 0) return; // no character of the font's code page
        avanzamento += base;
        const double ox = x + avanzamento * ct, oy = y + avanzamento * st;
        for (int j = 0; j + 1 < NumPtFont[codice]; j += 2) {
            const double gx1 = FontX(codice, j) * sx, gy1 = (FontY(codice, j) - kLineaBase) * sy;
            const double gx2 = FontX(codice, j + 1) * sx,
                         gy2 = (FontY(codice, j + 1) - kLineaBase) * sy;
            DisLinea(ox + gx1 * ct - gy1 * st, oy + gx1 * st + gy1 * ct, ox + gx2 * ct - gy2 * st,
                     oy + gx2 * st + gy2 * ct, colore, bersaglio);
        }
    }
}

void AzzeraDisegno() {
    NumCoordDis = NumElemDis = NumTestiDis = 0;
    ColoreDisCorrente = TipoDisCorrente = 0;
    OffsetDisX = OffsetDisY = 0;
    ModoDisTesto.clear();
}

} // namespace telva
