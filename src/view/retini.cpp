#include "view/retini.h"

#include "model/struttura.h"
#include "platform/interi.h"
#include "ui/controlli/FormTelva.h"
#include "view/proiezione.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace telva {
namespace {

// Wide steps: bars and labels have to stay readable through several shells.
constexpr std::array<Retino, 9> kNormali = {{
    {0, {}},
    {1, {{0, 1, 16}}},              // horizontal
    {1, {{1, 0, 16}}},              // vertical
    {1, {{1, 1, 24}}},              // diagonal upwards to the right
    {1, {{1, -1, 24}}},             // diagonal downwards to the right
    {2, {{0, 1, 24}, {1, 0, 24}}},  // upright cross
    {2, {{1, 1, 36}, {1, -1, 36}}}, // diagonal cross
    {1, {{0, 1, 6}}},               // dense
    {1, {{0, 1, 8, 12}}},           // dotted
}};

bool HaRetino(int tipo) { return tipo > 0 && tipo < static_cast<int>(kNormali.size()); }

constexpr double kLatoMinimo = 12; // pixels at 100 %

Fascio Ingrandito(const Fascio &f, double quanto, int penna) {
    const auto pixel = [=](int n) { return std::max(InteroVicino(n * quanto), 1); };
    const int punti = f.punti == 0 ? 0 : pixel(f.punti);
    return {f.a, f.b, pixel(f.passo), punti, penna, std::max(pixel(f.punto), penna)};
}

// Corners within +-2^28, so that the values of a family's lines there, and their differences, keep
// within 32 bits.
struct Poligono {
    std::array<Pixel, 4> vertici;
    std::size_t numero = 0;
    std::array<int, 4> valori{}; // a*x + b*y of the family at hand
};

// Where the line a*x + b*y = c enters and leaves the polygon, as places along x (along y for
// upright lines), in order. A polygon whose sides cross (a warped shell seen from the edge) may be
// met four times: consecutive pairs are inside.
std::size_t Incontri(const Poligono &p, const Fascio &f, int c, std::array<double, 4> &posti) {
    std::size_t quanti = 0;
    for (std::size_t k = 0; k < p.numero; ++k) {
        const std::size_t dopo = k + 1 < p.numero ? k + 1 : 0;
        const Pixel &da = p.vertici[k], &a = p.vertici[dopo];
        const int v0 = p.valori[k] - c, v1 = p.valori[dopo] - c;
        if ((v0 < 0) == (v1 < 0)) continue;
        const double t = static_cast<double>(v0) / static_cast<double>(v0 - v1);
        posti[quanti++] = f.b != 0 ? da.x + t * (a.x - da.x) : da.y + t * (a.y - da.y);
    }
    // At most four: exchanging neighbours is all the sorting they need.
    for (std::size_t giro = 1; giro < quanti; ++giro)
        for (std::size_t k = 0; k + giro < quanti; ++k)
            if (posti[k + 1] < posti[k]) std::swap(posti[k], posti[k + 1]);
    return quanti;
}

// The pixels da..a of the line a*x + b*y = c, along x or, for upright lines, along y.
void DisegnaTratto(Superficie &s, const Fascio &f, int c, int da, int a, std::uint32_t rgb) {
    const auto linea = [&](Pixel p, Pixel q) { s.Traccia(p, q, f.penna, rgb); };
    if (f.b == 0) return linea({c, da}, {c, a});
    const auto y = [&](int x) { return (c - f.a * x) * f.b; }; // b is 1 or -1
    if (f.punti == 0) return linea({da, y(da)}, {a, y(a)});
    const int fase = c / f.passo % 2 == 0 ? 0 : f.punti / 2;
    const int prima = f.penna / 2, dopo = f.punto - 1 - (f.penna - 1) / 2; // the pen has round ends
    for (int x = da + ((fase - da) % f.punti + f.punti) % f.punti; x + f.punto - 1 <= a;
         x += f.punti)
        linea({x + prima, c}, {x + dopo, c});
}

void DisegnaFascio(Superficie &s, Poligono &p, const Fascio &f, std::uint32_t rgb) {
    // Only lines that meet both the polygon and the picture.
    int minimo = INT32_MAX, massimo = INT32_MIN;
    for (std::size_t k = 0; k < p.numero; ++k) {
        const int v = p.valori[k] = f.a * p.vertici[k].x + f.b * p.vertici[k].y;
        minimo = std::min(minimo, v);
        massimo = std::max(massimo, v);
    }
    const int l = s.Larghezza(), h = s.Altezza();
    minimo = std::max(minimo, std::min(0, f.b * h));
    massimo = std::min(massimo, f.a * l + std::max(0, f.b * h));
    const int resto = (minimo % f.passo + f.passo) % f.passo;
    std::array<double, 4> posti{};
    for (int c = resto == 0 ? minimo : minimo + f.passo - resto; c <= massimo; c += f.passo) {
        const std::size_t quanti = Incontri(p, f, c, posti);
        for (std::size_t k = 0; k + 1 < quanti; k += 2) {
            // Cut to the picture too: dots are counted out one by one.
            const int da = std::max(InteroAlto(posti[k]), 0);
            const int a = std::min(InteroBasso(posti[k + 1]), std::max(l, h));
            if (da <= a) DisegnaTratto(s, f, c, da, a, rgb);
        }
    }
}

} // namespace

Retini::Retini(double quanto, int penna) : latoMinimo_(kLatoMinimo * quanto), retini_(kNormali) {
    for (Retino &retino : retini_)
        for (int k = 0; k < retino.numero; ++k)
            retino.fasci[k] = Ingrandito(retino.fasci[k], quanto, penna);
}

void Retini::Riempi(Superficie &s, std::span<const Pixel> angoli, int tipo,
                    std::uint32_t rgb) const {
    if (!HaRetino(tipo)) return;
    Poligono p;
    p.numero = std::min(angoli.size(), p.vertici.size());
    std::copy_n(angoli.begin(), p.numero, p.vertici.begin());
    const Retino &retino = retini_[static_cast<std::size_t>(tipo)];
    for (int k = 0; k < retino.numero; ++k) DisegnaFascio(s, p, retino.fasci[k], rgb);
}

void Retini::Disegna(int guscio, std::uint32_t colore, const PostiNodi &posti) const {
    const int tipo = TrattGuscio[guscio];
    if (!HaRetino(tipo)) return;
    std::array<Pixel, 4> angoli;
    const auto quanti = static_cast<std::size_t>(NumeroAngoli(guscio));
    int minX = INT32_MAX, maxX = INT32_MIN, minY = INT32_MAX, maxY = INT32_MIN;
    for (std::size_t c = 0; c < quanti; ++c) {
        const std::optional<Pixel> posto = posti.InPixel(NodiGuscio[guscio][c]);
        if (!posto) return;
        const Pixel v = angoli[c] = *posto;
        minX = std::min(minX, v.x), maxX = std::max(maxX, v.x);
        minY = std::min(minY, v.y), maxY = std::max(maxY, v.y);
    }
    Superficie &s = FormTelva.Disegno.Immagine();
    if (std::min(maxX - minX, maxY - minY) < latoMinimo_ || maxX < 0 || maxY < 0 ||
        minX >= s.Larghezza() || minY >= s.Altezza())
        return;
    Riempi(s, std::span(angoli).first(quanti), tipo, APixelRGB(colore));
}

} // namespace telva
