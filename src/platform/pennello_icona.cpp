#include "platform/pennello_icona.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>

namespace telva {

namespace {

constexpr int kCampioni = 8; // per pixel side: one mask bit each
constexpr std::uint32_t kCampioniPixel = kCampioni * kCampioni;

bool Dispari(double n) { return std::fmod(n, 2.0) != 0.0; }

double Quadrato(double d) { return d * d; }

bool VicinoSegmento(PuntoIcona p, PuntoIcona a, PuntoIcona b, double distanza) {
    const double dx = b.x - a.x, dy = b.y - a.y;
    const double lunghezza2 = dx * dx + dy * dy;
    double t = 0;
    if (lunghezza2 > 0)
        t = std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / lunghezza2, 0.0, 1.0);
    return Quadrato(p.x - a.x - t * dx) + Quadrato(p.y - a.y - t * dy) <= Quadrato(distanza);
}

bool DentroPoligono(PuntoIcona p, std::span<const PuntoIcona> punti) {
    bool dentro = false;
    PuntoIcona a = punti.back();
    for (const PuntoIcona b : punti) {
        if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x))
            dentro = !dentro;
        a = b;
    }
    return dentro;
}

} // namespace

double GrigliaIcona::Larghezza(double unita) const {
    const double linea = std::max(1.0, std::round(std::min(unita, 1.0) * scala_));
    if (!Dispari(std::round(unita))) return std::max(1.0, std::round(unita * scala_));
    return linea + 2 * std::max(0.0, std::round((unita * scala_ - linea) / 2));
}

double GrigliaIcona::Aggancia(double unita, double larghezza) const {
    const double mezzo = Dispari(std::round(larghezza)) ? kUnita / 2 - 0.5 : kUnita / 2;
    const double fase = Dispari(Larghezza(larghezza)) ? 0.5 : 0.0;
    const double centro = std::round(mezzo * scala_ - fase) + fase;
    return centro + std::round((unita - mezzo) * scala_);
}

PennelloIcona::PennelloIcona(int lato)
    : lato_(std::max(lato, 0)),
      pixel_(static_cast<std::size_t>(lato_) * static_cast<std::size_t>(lato_)),
      maschera_(pixel_.size()) {}

template <class Dentro>
void PennelloIcona::Segna(double x0, double y0, double x1, double y1, const Dentro &dentro) {
    const auto limita = [this](double v) {
        return static_cast<int>(std::clamp(v, 0.0, static_cast<double>(lato_)));
    };
    const int daX = limita(std::floor(x0)), aX = limita(std::ceil(x1));
    const int daY = limita(std::floor(y0)), aY = limita(std::ceil(y1));
    for (int y = daY; y < aY; ++y)
        for (int x = daX; x < aX; ++x) {
            std::uint64_t bit = 1, coperti = 0;
            for (int j = 0; j < kCampioni; ++j)
                for (int i = 0; i < kCampioni; ++i, bit <<= 1)
                    if (dentro(PuntoIcona{x + (i + 0.5) / kCampioni, y + (j + 0.5) / kCampioni}))
                        coperti |= bit;
            maschera_[static_cast<std::size_t>(y * lato_ + x)] |= coperti;
        }
}

void PennelloIcona::Poligono(std::span<const PuntoIcona> punti) {
    if (punti.size() < 3) return;
    const auto perX = [](PuntoIcona a, PuntoIcona b) { return a.x < b.x; };
    const auto perY = [](PuntoIcona a, PuntoIcona b) { return a.y < b.y; };
    const auto [sinistra, destra] = std::minmax_element(punti.begin(), punti.end(), perX);
    const auto [alto, basso] = std::minmax_element(punti.begin(), punti.end(), perY);
    Segna(sinistra->x, alto->y, destra->x, basso->y,
          [punti](PuntoIcona p) { return DentroPoligono(p, punti); });
}

void PennelloIcona::Spezzata(std::span<const PuntoIcona> punti, double larghezza) {
    const double r = larghezza / 2;
    for (std::size_t k = 0; k < punti.size(); ++k) {
        if (k + 1 == punti.size() && k > 0) break;
        const PuntoIcona a = punti[k], b = punti[std::min(k + 1, punti.size() - 1)];
        Segna(std::min(a.x, b.x) - r, std::min(a.y, b.y) - r, std::max(a.x, b.x) + r,
              std::max(a.y, b.y) + r, [=](PuntoIcona p) { return VicinoSegmento(p, a, b, r); });
    }
}

void PennelloIcona::Arco(PuntoIcona centro, double raggio, double da, double a, double larghezza) {
    constexpr double kGradi = 180 / std::numbers::pi;
    const double fuori = raggio + larghezza / 2, interno = std::max(0.0, raggio - larghezza / 2);
    Segna(centro.x - fuori, centro.y - fuori, centro.x + fuori, centro.y + fuori,
          [=](PuntoIcona p) {
              const double dx = p.x - centro.x, dy = p.y - centro.y, d2 = dx * dx + dy * dy;
              if (d2 > fuori * fuori || d2 < interno * interno) return false;
              const double giro = std::fmod(std::atan2(dy, dx) * kGradi - da, 360.0);
              return (giro < 0 ? giro + 360 : giro) <= a - da;
          });
    for (const double capo : {da / kGradi, a / kGradi}) {
        const PuntoIcona p{centro.x + raggio * std::cos(capo), centro.y + raggio * std::sin(capo)};
        Spezzata({&p, 1}, larghezza);
    }
}

void PennelloIcona::Stendi(std::uint32_t colore) { Componi(colore, false); }

void PennelloIcona::Sottrai() { Componi(0xFF000000u, true); }

// Source over destination, both premultiplied; equal rounding keeps every channel within its alpha.
void PennelloIcona::Componi(std::uint32_t colore, bool togli) {
    for (std::size_t k = 0; k < pixel_.size(); ++k) {
        const auto coperti = static_cast<std::uint32_t>(std::popcount(maschera_[k]));
        maschera_[k] = 0;
        if (coperti == 0) continue;
        const std::uint32_t alfa = ((colore >> 24) * coperti + kCampioniPixel / 2) / kCampioniPixel;
        std::uint32_t risultato = 0;
        for (const int posto : {0, 8, 16, 24}) {
            const std::uint32_t sotto = (pixel_[k] >> posto) & 0xFFu;
            const std::uint32_t sopra = togli ? 0u : posto == 24 ? 255u : (colore >> posto) & 0xFFu;
            risultato |= (sopra * alfa + sotto * (255u - alfa) + 127u) / 255u << posto;
        }
        pixel_[k] = risultato;
    }
}

} // namespace telva
