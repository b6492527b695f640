#include "view/retini.h"

#include "model/struttura.h"
#include "ui/controlli/FormTelva.h"
#include "view/proiezione.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace telva {
namespace {

// A family of parallel lines a*x + b*y = n*passo, in whole pixels, so that neighbouring shells of
// one type join up. `punti` draws every second pixel group only.
struct Famiglia {
    int a, b, passo;
    bool punti;
};

struct Retino {
    int numero;
    Famiglia famiglie[2];
};

constexpr std::array<Retino, 9> kRetini = {{
    {0, {}},
    {1, {{0, 1, 8, false}, {}}},                     // horizontal
    {1, {{1, 0, 8, false}, {}}},                     // vertical
    {1, {{1, 1, 12, false}, {}}},                    // diagonal upwards to the right
    {1, {{1, -1, 12, false}, {}}},                   // diagonal downwards to the right
    {2, {{0, 1, 8, false}, {1, 0, 8, false}}},       // upright cross
    {2, {{1, 1, 12, false}, {1, -1, 12, false}}},    // diagonal cross
    {1, {{0, 1, 3, false}, {}}},                     // dense
    {1, {{0, 1, 6, true}, {}}},                      // dotted
}};

constexpr int kLatoMinimo = 12; // pixels; below this a hatch would only fill the shell

struct Poligono {
    std::array<Pixel, 4> vertici;
    std::size_t numero = 0;
};

// Where the line a*x + b*y = c enters and leaves the polygon. A polygon whose sides cross (a warped
// shell seen from the edge) may be met four times: consecutive pairs are inside.
std::size_t Incontri(const Poligono &p, const Famiglia &f, int c, std::array<Pixel, 4> &punti) {
    std::size_t quanti = 0;
    const auto valore = [&](const Pixel &v) {
        return std::int64_t{f.a} * v.x + std::int64_t{f.b} * v.y - c;
    };
    for (std::size_t k = 0; k < p.numero; ++k) {
        const Pixel &da = p.vertici[k], &a = p.vertici[(k + 1) % p.numero];
        const std::int64_t v0 = valore(da), v1 = valore(a);
        if ((v0 < 0) == (v1 < 0)) continue;
        const double t = static_cast<double>(v0) / static_cast<double>(v0 - v1);
        punti[quanti++] = {static_cast<int>(std::lround(da.x + t * (a.x - da.x))),
                           static_cast<int>(std::lround(da.y + t * (a.y - da.y)))};
    }
    // At most four points: exchanging neighbours is all the sorting they need.
    const auto prima = [&](const Pixel &u, const Pixel &v) {
        return f.b != 0 ? u.x < v.x : u.y < v.y;
    };
    for (std::size_t giro = 1; giro < quanti; ++giro)
        for (std::size_t k = 0; k + giro < quanti; ++k)
            if (prima(punti[k + 1], punti[k])) std::swap(punti[k], punti[k + 1]);
    return quanti;
}

void DisegnaFamiglia(Superficie &s, const Poligono &p, const Famiglia &f, std::uint32_t rgb) {
    // Only lines that meet both the polygon and the picture.
    std::int64_t minimo = INT64_MAX, massimo = INT64_MIN;
    for (std::size_t k = 0; k < p.numero; ++k) {
        const std::int64_t v = std::int64_t{f.a} * p.vertici[k].x + std::int64_t{f.b} * p.vertici[k].y;
        minimo = std::min(minimo, v);
        massimo = std::max(massimo, v);
    }
    const std::int64_t l = s.Larghezza(), h = s.Altezza();
    minimo = std::max<std::int64_t>(minimo, std::min<std::int64_t>(0, f.b * h));
    massimo = std::min<std::int64_t>(massimo, f.a * l + std::max<std::int64_t>(0, f.b * h));
    std::int64_t c = minimo - minimo % f.passo;
    if (c < minimo) c += f.passo;
    std::array<Pixel, 4> punti;
    for (; c <= massimo; c += f.passo) {
        const std::size_t quanti = Incontri(p, f, static_cast<int>(c), punti);
        for (std::size_t k = 0; k + 1 < quanti; k += 2) {
            if (!f.punti) {
                s.Linea(punti[k], punti[k + 1], rgb);
                continue;
            }
            // Dots on a fixed grid of the picture, each second row shifted.
            const int passo = f.passo;
            const int fase = c / passo % 2 == 0 ? 0 : passo / 2;
            const int da = std::max(punti[k].x, 0), a = std::min(punti[k + 1].x, s.Larghezza() - 1);
            int x = da + ((fase - da) % passo + passo) % passo;
            for (; x <= a; x += passo) s.Linea({x, punti[k].y}, {x + 1, punti[k].y}, rgb);
        }
    }
}

} // namespace

void DisegnaRetino(int guscio, std::uint32_t colore) {
    const int tipo = TrattGuscio[guscio];
    if (tipo < 1 || tipo > 8) return;
    RiquadroDisegno &d = FormTelva.Disegno;
    Poligono p;
    p.numero = static_cast<std::size_t>(NumeroAngoli(guscio));
    bool fuori = false;
    int minX = INT32_MAX, maxX = INT32_MIN, minY = INT32_MAX, maxY = INT32_MIN;
    for (std::size_t c = 0; c < p.numero; ++c) {
        const int nodo = NodiGuscio[guscio][c];
        const Pixel v = p.vertici[c] = d.InPixel(XNodo(nodo), YNodo(nodo), fuori);
        minX = std::min(minX, v.x), maxX = std::max(maxX, v.x);
        minY = std::min(minY, v.y), maxY = std::max(maxY, v.y);
    }
    Superficie &s = d.Immagine();
    if (fuori || std::min(maxX - minX, maxY - minY) < kLatoMinimo || maxX < 0 || maxY < 0 ||
        minX >= s.Larghezza() || minY >= s.Altezza())
        return;
    const Retino &retino = kRetini[static_cast<std::size_t>(tipo)];
    for (int k = 0; k < retino.numero; ++k)
        DisegnaFamiglia(s, p, retino.famiglie[k], APixelRGB(colore));
}

} // namespace telva
