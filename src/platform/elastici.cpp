// What is shown over the picture of the picture box: rubber bands and the outline of the next
// click.
#include "platform/disegno.h"
#include "platform/interi.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace telva {
namespace {

// Light over dark, to be seen on every colour of the drawing.
constexpr std::uint32_t kChiaro = 0xFFFFFF;
constexpr std::uint32_t kScuro = 0x202020;
constexpr int kBordo = 2;                // pixels of dark on either side, at 100 %
constexpr std::size_t kZoneMassime = 16; // each costs a call of the system
constexpr int kPezzo = 64; // pixels: zones of this length follow a slanting line closely

// A segment cut to where a pen of this reach can light a pixel of the picture; false when nowhere.
bool Ritaglia(double (&p)[4], double portata, int larghezza, int altezza) {
    double da = 0, a = 1;
    const double d[2] = {p[2] - p[0], p[3] - p[1]};
    const double massimo[2] = {larghezza + portata, altezza + portata};
    for (int asse = 0; asse < 2; ++asse) {
        const double prima = -portata - p[asse], dopo = massimo[asse] - p[asse];
        if (d[asse] == 0) {
            if (prima > 0 || dopo < 0) return false;
            continue;
        }
        da = std::max(da, std::min(prima / d[asse], dopo / d[asse]));
        a = std::min(a, std::max(prima / d[asse], dopo / d[asse]));
    }
    if (da > a) return false;
    const double x = p[0], y = p[1];
    p[0] = x + da * d[0];
    p[1] = y + da * d[1];
    p[2] = x + a * d[0];
    p[3] = y + a * d[1];
    return true;
}

// Each zone with its neighbour in one: strokes that follow one another lie close together.
std::vector<ZonaPixel> ADue(const std::vector<ZonaPixel> &zone) {
    std::vector<ZonaPixel> unite;
    for (std::size_t k = 0; k < zone.size(); k += 2) {
        const ZonaPixel &a = zone[k], &b = zone[std::min(k + 1, zone.size() - 1)];
        const int x = std::min(a.x, b.x), y = std::min(a.y, b.y);
        unite.push_back({x, y, std::max(a.x + a.larghezza, b.x + b.larghezza) - x,
                         std::max(a.y + a.altezza, b.y + b.altezza) - y});
    }
    return unite;
}

} // namespace

// One stroke of what is shown over the picture: a segment, or a circle around `a`.
struct RiquadroDisegno::TrattoElastico {
    Pixel a = {}, b = {};
    int spessore = 1, bordo = kBordo; // of the light line, and of the dark on either side
    Trattini tratti = {};             // of the light line; the band is dark all along
    int raggio = -1;                  // of a circle

    int Portata() const { return spessore / 2 + bordo + 1 + std::max(raggio, 0); }

    // False only when none of its pixels lies there.
    bool Tocca(const ZonaPixel &z) const {
        const auto [x0, x1] = std::minmax(a.x, b.x);
        const auto [y0, y1] = std::minmax(a.y, b.y);
        const int portata = Portata();
        return x1 + portata >= z.x && x0 - portata < z.x + z.larghezza && y1 + portata >= z.y &&
               y0 - portata < z.y + z.altezza;
    }
    void DisegnaScuro(Superficie &s, Pixel origine) const {
        const int penna = spessore + 2 * bordo;
        const Pixel da{a.x - origine.x, a.y - origine.y}, fino{b.x - origine.x, b.y - origine.y};
        raggio < 0 ? s.LineaLarga(da, fino, penna, kScuro) : s.Cerchio(da, raggio, penna, kScuro);
    }
    void DisegnaChiaro(Superficie &s, Pixel origine) const {
        const Pixel da{a.x - origine.x, a.y - origine.y}, fino{b.x - origine.x, b.y - origine.y};
        if (raggio >= 0) return s.Cerchio(da, raggio, spessore, kChiaro);
        if (tratti.periodo == 1 && spessore > 1) return s.LineaLarga(da, fino, spessore, kChiaro);
        const bool ripida = std::abs(b.y - a.y) > std::abs(b.x - a.x);
        for (int k = 0; k < spessore; ++k) { // side by side, in the middle
            const int kx = ripida ? k - spessore / 2 : 0, ky = ripida ? 0 : k - spessore / 2;
            s.LineaATrattini({da.x + kx, da.y + ky}, {fino.x + kx, fino.y + ky}, kChiaro, tratti);
        }
    }
    // The zones along it, inside a picture of this size.
    void Zone(int larghezza, int altezza, std::vector<ZonaPixel> &zone) const {
        const Pixel fine = raggio < 0 ? b : a;
        double p[4] = {double(a.x), double(a.y), double(fine.x), double(fine.y)};
        const int portata = Portata();
        if (!Ritaglia(p, portata, larghezza, altezza)) return;
        const double lungo = std::max(std::abs(p[2] - p[0]), std::abs(p[3] - p[1]));
        const double corto = std::min(std::abs(p[2] - p[0]), std::abs(p[3] - p[1]));
        const int pezzi = corto < 1 ? 1 : 1 + static_cast<int>(lungo / kPezzo);
        for (int k = 0; k < pezzi; ++k) {
            const auto punto = [&](int asse, int n) {
                return p[asse] + (p[asse + 2] - p[asse]) * n / pezzi;
            };
            const auto [x0, x1] = std::minmax({punto(0, k), punto(0, k + 1)});
            const auto [y0, y1] = std::minmax({punto(1, k), punto(1, k + 1)});
            const int sinistra = std::max(InteroBasso(x0) - portata, 0);
            const int alto = std::max(InteroBasso(y0) - portata, 0);
            const int destra = std::min(InteroAlto(x1) + portata + 1, larghezza);
            const int basso = std::min(InteroAlto(y1) + portata + 1, altezza);
            if (sinistra < destra && alto < basso)
                zone.push_back({sinistra, alto, destra - sinistra, basso - alto});
        }
    }
};

std::vector<std::vector<RiquadroDisegno::TrattoElastico>> RiquadroDisegno::TrattiElastici() const {
    std::vector<std::vector<TrattoElastico>> tratti(3);
    const int spessore = PennaOpzione(1), bordo = PennaOpzione(kBordo);
    const Trattini trattini = Trattini{0xFF, 12}.Ingrandito(PixelOpzione(1));
    const auto linea = [&](std::size_t dove, double x1, double y1, double x2, double y2,
                           TrattoElastico t) {
        if (EstremiInPixel(x1, y1, x2, y2, t.a, t.b)) tratti[dove].push_back(t);
    };
    const TrattoElastico piena{.spessore = 2 * spessore, .bordo = bordo};
    for (const Sagoma::Linea &l : Anteprima().linee) linea(0, l.x1, l.y1, l.x2, l.y2, piena);
    for (const Sagoma::Cerchio &c : Anteprima().cerchi) {
        bool fuori = false;
        const Pixel centro = InPixel(c.x, c.y, fuori);
        const double raggio = std::clamp(c.raggio, 0.0, double{Superficie::kRaggioMassimo});
        if (!fuori)
            tratti[0].push_back({.a = centro,
                                 .b = centro,
                                 .spessore = 2 * spessore,
                                 .bordo = bordo,
                                 .raggio = InteroVicino(raggio)});
    }
    if (Shape.Visible) {
        const TrattoElastico lato{.spessore = spessore, .bordo = bordo, .tratti = trattini};
        const double x1 = Shape.Left, x2 = x1 + Shape.Width, y1 = Shape.Top, y2 = y1 - Shape.Height;
        linea(1, x1, y1, x2, y1, lato);
        linea(1, x2, y1, x2, y2, lato);
        linea(1, x2, y2, x1, y2, lato);
        linea(1, x1, y2, x1, y1, lato);
    }
    if (LineSposta.Visible)
        linea(2, LineSposta.X1, LineSposta.Y1, LineSposta.X2, LineSposta.Y2,
              {.spessore = 2 * spessore, .bordo = bordo, .tratti = trattini});
    return tratti;
}

bool RiquadroDisegno::ElasticiVisibili() const {
    return Shape.Visible || LineSposta.Visible || !Anteprima().Vuota();
}

std::vector<ZonaPixel> RiquadroDisegno::ZoneElastici() const {
    std::vector<ZonaPixel> zone;
    for (const auto &cosa : TrattiElastici())
        for (const TrattoElastico &t : cosa)
            t.Zone(superficie_.Larghezza(), superficie_.Altezza(), zone);
    while (zone.size() > kZoneMassime) zone = ADue(zone);
    return zone;
}

void RiquadroDisegno::ComponiElastici(std::span<const ZonaPixel> zone,
                                      const MostraParte &mostra) const {
    const auto tratti = TrattiElastici();
    std::vector<const TrattoElastico *> qui; // a chain has hundreds of strokes, and of zones
    for (const ZonaPixel &zona : zone) {
        parte_.CopiaZona(superficie_, zona);
        for (const auto &cosa : tratti) {
            qui.clear();
            for (const TrattoElastico &t : cosa)
                if (t.Tocca(zona)) qui.push_back(&t);
            for (const TrattoElastico *t : qui) t->DisegnaScuro(parte_, {zona.x, zona.y});
            for (const TrattoElastico *t : qui) t->DisegnaChiaro(parte_, {zona.x, zona.y});
        }
        mostra(parte_, zona);
    }
}

} // namespace telva
