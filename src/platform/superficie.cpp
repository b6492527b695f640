#include "platform/superficie.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace telva {
namespace {

// Rounds towards minus infinity; b > 0.
constexpr std::int64_t DivBasso(std::int64_t a, std::int64_t b) {
    const std::int64_t q = a / b;
    return q * b > a ? q - 1 : q;
}
constexpr std::int64_t DivAlto(std::int64_t a, std::int64_t b) { return -DivBasso(-a, b); }

// Horizontal run of pixels whose centres lie within `raggio` of the centre, at distance dy.
double MezzaCorda(double raggio, double dy) {
    const double q = raggio * raggio - dy * dy;
    return q < 0 ? -1 : std::sqrt(q);
}

} // namespace

const std::uint32_t *Superficie::Riga(int y) const {
    return pixel_.data() + static_cast<std::ptrdiff_t>(y) * larghezza_;
}
std::uint32_t *Superficie::Riga(int y) {
    return pixel_.data() + static_cast<std::ptrdiff_t>(y) * larghezza_;
}

void Superficie::Ridimensiona(int larghezza, int altezza) {
    larghezza_ = std::max(larghezza, 1);
    altezza_ = std::max(altezza, 1);
    const auto pixel = static_cast<std::size_t>(larghezza_) * static_cast<std::size_t>(altezza_);
    if (pixel > pixel_.capacity()) std::vector<std::uint32_t>().swap(pixel_); // never two at a time
    pixel_.resize(pixel);
}

void Superficie::Riempi(std::uint32_t colore) { std::fill(pixel_.begin(), pixel_.end(), colore); }

void Superficie::CopiaRighe(const Superficie &altra, int daRiga, int righe) {
    larghezza_ = altra.larghezza_;
    altezza_ = righe;
    pixel_.assign(altra.Riga(daRiga), altra.Riga(daRiga + righe));
}

void Superficie::Orizzontale(std::int64_t xDa, std::int64_t xA, int y, std::uint32_t colore) {
    xDa = std::max<std::int64_t>(xDa, 0);
    xA = std::min<std::int64_t>(xA, larghezza_ - 1);
    if (xDa > xA || y < 0 || y >= altezza_) return;
    std::uint32_t *riga = Riga(y);
    std::fill(riga + xDa, riga + xA + 1, colore);
}

// Walks the line along its longer direction: step i = 0..maggiore stands at
// minor coordinate floor((2*minore*i + maggiore) / (2*maggiore)). Which steps fall inside the
// surface is solved beforehand, so the loop itself tests nothing. Calls scrivi(offset, step).
template <class Scrivi>
void Superficie::Percorri(Pixel a, Pixel b, Scrivi scrivi) const {
    const bool ripida = std::abs(std::int64_t{b.y} - a.y) > std::abs(std::int64_t{b.x} - a.x);
    // From here on u is the longer direction and v the other one.
    std::int64_t u0 = ripida ? a.y : a.x, v0 = ripida ? a.x : a.y;
    std::int64_t u1 = ripida ? b.y : b.x, v1 = ripida ? b.x : b.y;
    if (u1 < u0) {
        std::swap(u0, u1);
        std::swap(v0, v1);
    }
    const std::int64_t uFine = (ripida ? altezza_ : larghezza_) - 1;
    const std::int64_t vFine = (ripida ? larghezza_ : altezza_) - 1;
    if (u1 < 0 || u0 > uFine || std::max(v0, v1) < 0 || std::min(v0, v1) > vFine) return;
    const std::int64_t maggiore = u1 - u0;
    const std::int64_t minore = std::abs(v1 - v0);
    const std::int64_t segno = v1 < v0 ? -1 : 1;
    // Clip: steps da..fino with u inside, then with v inside (v moves monotonously).
    std::int64_t da = std::max<std::int64_t>(0, -u0);
    std::int64_t fino = std::min(maggiore, uFine - u0);
    if (minore > 0) {
        const std::int64_t vEntra = segno > 0 ? -v0 : v0 - vFine; // advance at which v gets inside
        const std::int64_t vEsce = segno > 0 ? vFine - v0 : v0;   // last advance still inside
        if (vEntra > 0) da = std::max(da, DivAlto((2 * vEntra - 1) * maggiore, 2 * minore));
        if (vEsce < minore)
            fino = std::min(fino, DivAlto((2 * vEsce + 1) * maggiore, 2 * minore) - 1);
    }
    if (da > fino) return;
    const std::int64_t avanzo = 2 * minore * da + maggiore;
    const std::int64_t fatti = maggiore > 0 ? avanzo / (2 * maggiore) : 0;
    std::int64_t errore = maggiore > 0 ? avanzo - fatti * 2 * maggiore : 0;
    const std::int64_t u = u0 + da;
    const std::int64_t v = v0 + segno * fatti;
    std::ptrdiff_t posto =
        static_cast<std::ptrdiff_t>(ripida ? u * larghezza_ + v : v * larghezza_ + u);
    const std::ptrdiff_t passoU = ripida ? larghezza_ : 1;
    const std::ptrdiff_t passoV =
        static_cast<std::ptrdiff_t>(segno) * (ripida ? 1 : static_cast<std::ptrdiff_t>(larghezza_));
    for (std::int64_t i = da;; ++i) {
        scrivi(posto, i);
        if (i == fino) break;
        posto += passoU;
        errore += 2 * minore;
        if (errore >= 2 * maggiore) {
            errore -= 2 * maggiore;
            posto += passoV;
        }
    }
}

void Superficie::Linea(Pixel a, Pixel b, std::uint32_t colore) {
    if (a.y == b.y) {
        Orizzontale(std::min(a.x, b.x), std::max(a.x, b.x), a.y, colore);
        return;
    }
    std::uint32_t *pixel = pixel_.data();
    Percorri(a, b, [=](std::ptrdiff_t posto, std::int64_t) { pixel[posto] = colore; });
}

void Superficie::LineaTratteggiata(Pixel a, Pixel b, std::uint32_t colore, Tratteggio t) {
    std::uint32_t *pixel = pixel_.data();
    const std::int64_t periodo = t.periodo;
    Percorri(a, b, [=](std::ptrdiff_t posto, std::int64_t passo) {
        if ((t.bit >> (passo % periodo)) & 1u) pixel[posto] = colore;
    });
}

void Tratti::Aggiungi(Punto p) {
    const bool primo = punti.empty();
    minX = primo ? p.x : std::min(minX, p.x);
    maxX = primo ? p.x : std::max(maxX, p.x);
    minY = primo ? p.y : std::min(minY, p.y);
    maxY = primo ? p.y : std::max(maxY, p.y);
    punti.push_back(p);
}

void Tratti::Aggiungi(double x1, double y1, double x2, double y2) {
    if (punti.empty() || punti.back().x != x1 || punti.back().y != y1) Aggiungi({x1, y1, true});
    Aggiungi({x2, y2, false});
}

void Superficie::LineeTratti(const Tratti &t, double x, double y, std::uint32_t colore) {
    const auto pixel = [](double v) { return static_cast<int>(std::floor(v + 0.5)); };
    Pixel da{};
    for (const Tratti::Punto &punto : t.punti) {
        const Pixel a{pixel(x + punto.x), pixel(y + punto.y)};
        if (!punto.inizio) Linea(da, a, colore);
        da = a;
    }
}

void Timbro::Riempi(const Tratti &t, double x, double y) {
    pixel.clear();
    if (t.punti.empty()) return;
    const auto basso = [](double v) { return static_cast<int>(std::floor(v)) - 1; };
    const Pixel angolo{basso(t.minX + x), basso(t.minY + y)};
    Superficie foglio;
    foglio.Ridimensiona(basso(t.maxX + x) + 4 - angolo.x, basso(t.maxY + y) + 4 - angolo.y);
    foglio.Riempi(0);
    foglio.LineeTratti(t, x - angolo.x, y - angolo.y, 1);
    for (int py = 0; py < foglio.Altezza(); ++py)
        for (int px = 0; px < foglio.Larghezza(); ++px)
            if (foglio.Leggi(px, py) != 0) pixel.push_back({px + angolo.x, py + angolo.y});
    minimo = angolo;
    massimo = {angolo.x + foglio.Larghezza() - 1, angolo.y + foglio.Altezza() - 1};
}

void Superficie::Timbra(const Timbro &t, Pixel o, std::uint32_t colore) {
    const bool dentro = o.x + t.minimo.x >= 0 && o.y + t.minimo.y >= 0 &&
                        o.x + t.massimo.x < larghezza_ && o.y + t.massimo.y < altezza_;
    if (dentro) {
        std::uint32_t *origine = Riga(o.y) + o.x;
        const std::ptrdiff_t riga = larghezza_;
        for (const Pixel &p : t.pixel) origine[p.y * riga + p.x] = colore;
        return;
    }
    for (const Pixel &p : t.pixel) {
        const int x = o.x + p.x, y = o.y + p.y;
        if (x >= 0 && y >= 0 && x < larghezza_ && y < altezza_) Riga(y)[x] = colore;
    }
}

const std::vector<Superficie::Tratto> &Superficie::Disco(int larghezza) {
    auto &disco = dischi_[static_cast<std::size_t>(larghezza)];
    if (disco.empty()) {
        // An even pen has no middle pixel: its centre lies half a pixel up and left.
        const double centro = larghezza % 2 == 0 ? -0.5 : 0;
        const double raggio = larghezza / 2.0;
        for (int y = -larghezza; y <= larghezza; ++y) {
            const double corda = MezzaCorda(raggio, y - centro);
            if (corda < 0) continue;
            disco.push_back({y, static_cast<int>(std::ceil(centro - corda)),
                             static_cast<int>(std::floor(centro + corda))});
        }
    }
    return disco;
}

const std::vector<Superficie::Tratto> &Superficie::Anello(int raggio, int larghezza) {
    if (raggio == raggioAnello_ && larghezza == pennaAnello_) return anello_;
    raggioAnello_ = raggio;
    pennaAnello_ = larghezza;
    anello_.clear();
    const double fuori = raggio + larghezza / 2.0 - 1e-3; // or an even pen would be one too wide
    const double dentro = raggio - larghezza / 2.0;
    const int limite = static_cast<int>(std::ceil(fuori));
    for (int y = -limite; y <= limite; ++y) {
        const int corda = static_cast<int>(std::floor(MezzaCorda(fuori, y)));
        if (corda < 0) continue;
        const int buco = dentro > 0 ? static_cast<int>(std::ceil(MezzaCorda(dentro, y))) : -1;
        if (buco <= 0) { // the hole begins beyond the middle, or there is none
            anello_.push_back({y, -corda, corda});
        } else {
            anello_.push_back({y, -corda, -std::min(buco, corda)});
            anello_.push_back({y, std::min(buco, corda), corda});
        }
    }
    return anello_;
}

void Superficie::TimbraForma(const std::vector<Tratto> &forma, Pixel c, std::uint32_t colore) {
    for (const Tratto &t : forma)
        Orizzontale(std::int64_t{c.x} + t.xDa, std::int64_t{c.x} + t.xA, c.y + t.y, colore);
}

void Superficie::Cerchio(Pixel c, int raggio, int larghezza, std::uint32_t colore) {
    raggio = std::clamp(raggio, 0, kRaggioMassimo);
    larghezza = std::clamp(larghezza, 1, kPennaMassima);
    const int ingombro = raggio + larghezza;
    if (c.x < -ingombro || c.y < -ingombro || c.x > larghezza_ + ingombro ||
        c.y > altezza_ + ingombro)
        return;
    TimbraForma(raggio == 0 ? Disco(larghezza) : Anello(raggio, larghezza), c, colore);
}

// The band between two discs is convex: every row of it is one run, whose ends are the outermost
// of the two discs and of the two long edges that touch both.
void Superficie::LineaLarga(Pixel a, Pixel b, int larghezza, std::uint32_t colore) {
    larghezza = std::clamp(larghezza, 1, kPennaMassima);
    const std::vector<Tratto> &disco = Disco(larghezza);
    if (a == b) {
        if (a.x >= -larghezza && a.x <= larghezza_ + larghezza) TimbraForma(disco, a, colore);
        return;
    }
    if (a.y > b.y) std::swap(a, b);
    const double centro = larghezza % 2 == 0 ? -0.5 : 0;
    const double dx = static_cast<double>(b.x) - a.x, dy = static_cast<double>(b.y) - a.y;
    const double k = larghezza / 2.0 / std::sqrt(dx * dx + dy * dy);
    const double nx = dy * k, ny = -dx * k; // to the right of the way down from a to b
    const int yDisco = disco.front().y;
    const auto quanti = static_cast<std::int64_t>(disco.size());
    const std::int64_t yDa = std::max<std::int64_t>(std::int64_t{a.y} + yDisco, 0);
    const std::int64_t yA = std::min<std::int64_t>(b.y + yDisco + quanti - 1, altezza_ - 1);
    const double pendenza = dy > 0 ? dx / dy : 0;
    const double sinistraDa = a.y + centro - ny, sinistraA = b.y + centro - ny;
    const double destraDa = a.y + centro + ny, destraA = b.y + centro + ny;
    for (std::int64_t y = yDa; y <= yA; ++y) {
        std::int64_t xDa = INT64_MAX, xA = INT64_MIN;
        for (const Pixel &p : {a, b}) {
            const std::int64_t i = y - p.y - yDisco;
            if (i < 0 || i >= quanti) continue;
            const Tratto &t = disco[static_cast<std::size_t>(i)];
            xDa = std::min<std::int64_t>(xDa, std::int64_t{p.x} + t.xDa);
            xA = std::max<std::int64_t>(xA, std::int64_t{p.x} + t.xA);
        }
        const auto yy = static_cast<double>(y);
        if (dy > 0 && yy >= sinistraDa && yy <= sinistraA)
            xDa = std::min(xDa, static_cast<std::int64_t>(
                                    std::ceil(a.x + centro - nx + (yy - sinistraDa) * pendenza)));
        if (dy > 0 && yy >= destraDa && yy <= destraA)
            xA = std::max(xA, static_cast<std::int64_t>(
                                  std::floor(a.x + centro + nx + (yy - destraDa) * pendenza)));
        Orizzontale(xDa, xA, static_cast<int>(y), colore);
    }
}

} // namespace telva
