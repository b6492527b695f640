#include "view/assi.h"

#include "model/opzioni_cond.h"
#include "ui/controlli/FormTelva.h"
#include "view/colori.h"
#include "view/proiezione.h"
#include "view/salva_dis_cond.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace telva {
namespace {

constexpr double kMarginePixel = 8;     // at 100 %
constexpr double kStaccoLettera = 1.15; // letters stand a little beyond the end of their axis

} // namespace

void DisegnaAssi() {
    RiquadroDisegno &d = FormTelva.Disegno;
    const double unita = d.UnitaPerPixel() * d.PixelOpzione(1);
    const double lunghezza = std::abs(OpzInt[kOpzLunghezzaAssi] * unita);
    const double lettera = std::abs(OpzInt[kOpzLettereAssi] * unita);
    const Direzione *assi[3] = {&DirAsseX, &DirAsseY, &DirAsseZ};
    if (lunghezza == 0) return;
    double sinistra = 0, basso = 0;
    for (const Direzione *a : assi) {
        sinistra = std::min(sinistra, a->x * lunghezza * kStaccoLettera);
        basso = std::min(basso, a->y * lunghezza * kStaccoLettera);
    }
    const double bordo = kMarginePixel * unita + lettera;
    const double ox = d.ScaleLeft - sinistra + bordo;
    const double oy = d.ScaleTop + d.ScaleHeight - basso + bordo;
    const std::int16_t colore = CodiceDaNumero(OpzInt[kOpzColoreAssi]);
    d.DrawWidth = d.PennaOpzione(1);
    static constexpr const char *kLettere[3] = {"X", "Y", "Z"};
    for (int k = 0; k < 3; ++k) {
        const double fx = assi[k]->x * lunghezza, fy = assi[k]->y * lunghezza;
        d.Line(ox, oy, ox + fx, oy + fy, ColoreRGB(colore));
        const double lx = ox + fx * kStaccoLettera, ly = oy + fy * kStaccoLettera;
        DisTesto(kLettere[k], lx - lettera / 2, ly - lettera / 2, 0, lettera, lettera, colore, &d);
    }
}

} // namespace telva
