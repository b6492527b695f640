#include "platform/superficie.h"

#include "platform/interi.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstddef>
#include <emmintrin.h>

namespace telva {
namespace {

// Rounds towards minus infinity; b > 0.
template <class Intero>
constexpr Intero DivBasso(Intero a, Intero b) {
    const Intero q = a / b;
    return q * b > a ? q - 1 : q;
}
template <class Intero>
constexpr Intero DivAlto(Intero a, Intero b) {
    return -DivBasso<Intero>(-a, b);
}

// Horizontal run of pixels whose centres lie within `raggio` of the centre, at distance dy.
double MezzaCorda(double raggio, double dy) {
    const double q = raggio * raggio - dy * dy;
    return q < 0 ? -1 : std::sqrt(q);
}

} // namespace

const std::uint32_t *Superficie::Riga(int y) const {
    return pixel_.data() + static_cast<std::ptrdiff_t>(y) * larghezza_;
}
std::uint32_t *Superficie::Scrivibile(int y) {
    return pixel_.data() + static_cast<std::ptrdiff_t>(y) * larghezza_;
}

void Superficie::Ridimensiona(int larghezza, int altezza) {
    larghezza_ = std::max(larghezza, 1);
    altezza_ = std::max(altezza, 1);
    const auto pixel = static_cast<std::size_t>(larghezza_) * static_cast<std::size_t>(altezza_);
    if (pixel > pixel_.capacity()) std::vector<std::uint32_t>().swap(pixel_); // never two at a time
    pixel_.resize(pixel);
}

void Superficie::Riempi(std::uint32_t colore) {
    ++giro_;
    std::fill(pixel_.begin(), pixel_.end(), colore);
}

void Superficie::CopiaZona(const Superficie &altra, const ZonaPixel &zona) {
    ++giro_;
    larghezza_ = zona.larghezza;
    altezza_ = zona.altezza;
    pixel_.clear();
    for (int y = zona.y; y < zona.y + zona.altezza; ++y) {
        const std::uint32_t *da = altra.Riga(y) + zona.x;
        pixel_.insert(pixel_.end(), da, da + zona.larghezza);
    }
}

// A run of pixels that lies inside the surface. Four at a time: wide pens are made of millions of
// runs of a few pixels each.
void Superficie::Stendi(std::uint32_t *da, std::ptrdiff_t quanti, std::uint32_t colore) {
    if (quanti < 4) {
        for (std::ptrdiff_t k = 0; k < quanti; ++k) da[k] = colore;
        return;
    }
    // Said in so many words: a copy of 16 bytes becomes four stores in a 32-bit program.
    const auto quattro = [c = _mm_set1_epi32(static_cast<int>(colore))](std::uint32_t *p) {
        _mm_storeu_si128(reinterpret_cast<__m128i *>(p), c);
    };
    for (std::ptrdiff_t k = 0; k + 4 < quanti; k += 4) quattro(da + k);
    quattro(da + quanti - 4); // the rest, over what is there already
}

void Superficie::Orizzontale(int xDa, int xA, int y, std::uint32_t colore) {
    if (y < 0 || y >= altezza_) return;
    xDa = std::max(xDa, 0);
    xA = std::min(xA, larghezza_ - 1);
    if (xDa <= xA) Stendi(Scrivibile(y) + xDa, xA - xDa + 1, colore);
}

namespace {

// A line along its longer direction u: step i = 0..maggiore stands at minor coordinate
// v0 + segno * floor((2*minore*i + maggiore) / (2*maggiore)).
struct Percorso {
    int u0, v0, maggiore, minore, segno;
    // The steps inside the surface; how far v has advanced at the first of them, and what is left
    // of the division there.
    int da, fino, fatti, resto;
};

// Cuts the steps to u in 0..uFine, v in 0..vFine, solved in whole numbers (v moves monotonously).
// False when none is left. `Intero` holds the product of two sizes.
template <class Intero>
bool Taglia(Percorso &p, Intero uFine, Intero vFine) {
    const Intero u0 = p.u0, v0 = p.v0, maggiore = p.maggiore, minore = p.minore;
    Intero da = std::max<Intero>(0, -u0);
    Intero fino = std::min(maggiore, uFine - u0);
    if (minore > 0) {
        const Intero vEntra = p.segno > 0 ? -v0 : v0 - vFine; // advance at which v gets inside
        const Intero vEsce = p.segno > 0 ? vFine - v0 : v0;   // last advance still inside
        if (vEntra > 0) da = std::max(da, DivAlto((2 * vEntra - 1) * maggiore, 2 * minore));
        if (vEsce < minore)
            fino = std::min(fino, DivAlto((2 * vEsce + 1) * maggiore, 2 * minore) - 1);
    }
    if (da > fino) return false;
    const Intero avanzo = 2 * minore * da + maggiore;
    const Intero fatti = maggiore > 0 ? avanzo / (2 * maggiore) : 0;
    p.da = static_cast<int>(da);
    p.fino = static_cast<int>(fino);
    p.fatti = static_cast<int>(fatti);
    p.resto = maggiore > 0 ? static_cast<int>(avanzo - fatti * 2 * maggiore) : 0;
    return true;
}

} // namespace

// Which steps of the line fall inside the surface is solved beforehand, so the loop itself tests
// nothing. Calls scrivi(pixel, step).
template <class Scrivi>
void Superficie::Percorri(Pixel a, Pixel b, Scrivi scrivi) {
    const bool ripida = std::abs(b.y - a.y) > std::abs(b.x - a.x);
    int u0 = ripida ? a.y : a.x, v0 = ripida ? a.x : a.y;
    int u1 = ripida ? b.y : b.x, v1 = ripida ? b.x : b.y;
    if (u1 < u0) {
        std::swap(u0, u1);
        std::swap(v0, v1);
    }
    const int uFine = (ripida ? altezza_ : larghezza_) - 1;
    const int vFine = (ripida ? larghezza_ : altezza_) - 1;
    const int vMinimo = std::min(v0, v1), vMassimo = std::max(v0, v1);
    if (u1 < 0 || u0 > uFine || vMassimo < 0 || vMinimo > vFine) return;
    Percorso p{u0, v0, u1 - u0, vMassimo - vMinimo, v1 < v0 ? -1 : 1, 0, u1 - u0, 0, u1 - u0};
    if (u0 < 0 || u1 > uFine || vMinimo < 0 || vMassimo > vFine) {
        // Divisions of 64 bits only for ends far away: 32-bit programs pay dearly for them.
        constexpr int kLontano = 1 << 13;
        const bool vicina = u0 > -kLontano && u1 < kLontano && vMinimo > -kLontano &&
                            vMassimo < kLontano && std::max(uFine, vFine) < kLontano;
        if (!(vicina ? Taglia<std::int32_t>(p, uFine, vFine)
                     : Taglia<std::int64_t>(p, uFine, vFine)))
            return;
    }
    const std::ptrdiff_t passoU = ripida ? larghezza_ : 1;
    const std::ptrdiff_t passoV = p.segno * (ripida ? 1 : std::ptrdiff_t{larghezza_});
    std::uint32_t *pixel = pixel_.data() + (p.u0 + p.da) * passoU +
                           (p.v0 + p.segno * p.fatti) * (ripida ? 1 : std::ptrdiff_t{larghezza_});
    const int piu = 2 * p.minore, meno = 2 * p.maggiore;
    int errore = p.resto - meno; // below 0 until v advances
    // Few variables, and counted downwards: 32-bit programs have no registers to spare.
    for (int restano = p.fino - p.da;; --restano) {
        scrivi(pixel, p.fino - restano);
        if (restano == 0) break;
        pixel += passoU;
        errore += piu;
        if (errore >= 0) {
            errore -= meno;
            pixel += passoV;
        }
    }
}

void Superficie::Linea(Pixel a, Pixel b, std::uint32_t colore) {
    Intingi(colore);
    if (a.y == b.y) {
        Orizzontale(std::min(a.x, b.x), std::max(a.x, b.x), a.y, colore);
        return;
    }
    Percorri(a, b, [=](std::uint32_t *pixel, int) { *pixel = colore; });
}

Trattini Trattini::Ingrandito(double quanto) const {
    Trattini t;
    t.periodo = std::clamp(InteroVicino(periodo * quanto), 1, kPeriodoMassimo);
    for (int k = 0; k < t.periodo; ++k)
        t.bit[static_cast<std::size_t>(k)] = bit[static_cast<std::size_t>(k * periodo / t.periodo)];
    return t;
}

// The place in the pattern goes on by one: a division for each pixel would cost more.
void Superficie::LineaATrattini(Pixel a, Pixel b, std::uint32_t colore, const Trattini &t) {
    Intingi(colore);
    Percorri(a, b, [&t, colore, fase = -1](std::uint32_t *pixel, int passo) mutable {
        if (fase < 0) fase = passo % t.periodo;
        if (t.bit[static_cast<std::size_t>(fase)]) *pixel = colore;
        if (++fase == t.periodo) fase = 0;
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

void Superficie::LineeTratti(const Tratti &t, double x, double y, std::uint32_t colore, int penna) {
    Pixel da{};
    for (const Tratti::Punto &punto : t.punti) {
        const Pixel a{InteroVicino(x + punto.x), InteroVicino(y + punto.y)};
        if (!punto.inizio) Traccia(da, a, penna, colore);
        da = a;
    }
}

void Timbro::Riempi(const Tratti &t, double x, double y, int penna) {
    pixel.clear();
    if (t.punti.empty()) return;
    const int margine = penna / 2 + penna; // for the pen and an outline as wide
    const auto basso = [=](double v) { return InteroBasso(v) - margine; };
    const auto alto = [=](double v) { return InteroBasso(v) + 2 + margine; };
    const Pixel angolo{basso(t.minX + x), basso(t.minY + y)};
    Superficie foglio;
    foglio.Ridimensiona(alto(t.maxX + x) - angolo.x, alto(t.maxY + y) - angolo.y);
    foglio.Riempi(0);
    foglio.LineeTratti(t, x - angolo.x, y - angolo.y, 1, penna);
    for (int py = 0; py < foglio.Altezza(); ++py)
        for (int px = 0; px < foglio.Larghezza(); ++px)
            if (foglio.Leggi(px, py) != 0) pixel.push_back({px + angolo.x, py + angolo.y});
    minimo = angolo;
    massimo = {angolo.x + foglio.Larghezza() - 1, angolo.y + foglio.Altezza() - 1};
}

void Timbro::Contorna(const Timbro &altro, int spessore) {
    pixel.clear();
    minimo = altro.minimo; // it has a margin
    massimo = altro.massimo;
    Superficie foglio;
    foglio.Ridimensiona(massimo.x - minimo.x + 1, massimo.y - minimo.y + 1);
    foglio.Riempi(0);
    const auto segna = [&](const Pixel &p, int raggio, std::uint32_t valore) {
        for (int y = p.y - raggio; y <= p.y + raggio; ++y)
            for (int x = p.x - raggio; x <= p.x + raggio; ++x)
                foglio.Riga(y - minimo.y)[x - minimo.x] = valore;
    };
    for (const Pixel &p : altro.pixel) segna(p, spessore, 1);
    for (const Pixel &p : altro.pixel) segna(p, 0, 0);
    for (int y = 0; y < foglio.Altezza(); ++y)
        for (int x = 0; x < foglio.Larghezza(); ++x)
            if (foglio.Leggi(x, y) != 0) pixel.push_back({x + minimo.x, y + minimo.y});
}

void Superficie::Timbra(const Timbro &t, Pixel o, std::uint32_t colore) {
    Intingi(colore);
    const bool dentro = o.x + t.minimo.x >= 0 && o.y + t.minimo.y >= 0 &&
                        o.x + t.massimo.x < larghezza_ && o.y + t.massimo.y < altezza_;
    if (dentro) {
        std::uint32_t *origine = Scrivibile(o.y) + o.x;
        const std::ptrdiff_t riga = larghezza_;
        for (const Pixel &p : t.pixel) origine[p.y * riga + p.x] = colore;
        return;
    }
    for (const Pixel &p : t.pixel) {
        const int x = o.x + p.x, y = o.y + p.y;
        if (x >= 0 && y >= 0 && x < larghezza_ && y < altezza_) Scrivibile(y)[x] = colore;
    }
}

const std::vector<Superficie::Corsa> &Superficie::Disco(int larghezza) {
    auto &disco = dischi_[static_cast<std::size_t>(larghezza)];
    if (disco.empty()) {
        // An even pen has no middle pixel: its centre lies half a pixel up and left.
        const double centro = larghezza % 2 == 0 ? -0.5 : 0;
        const double raggio = larghezza / 2.0;
        for (int y = -larghezza; y <= larghezza; ++y) {
            const double corda = MezzaCorda(raggio, y - centro);
            if (corda < 0) continue;
            disco.push_back({y, InteroAlto(centro - corda), InteroBasso(centro + corda)});
        }
    }
    return disco;
}

const std::vector<Superficie::Corsa> &Superficie::Anello(int raggio, int larghezza) {
    if (raggio == raggioAnello_ && larghezza == pennaAnello_) return anello_;
    raggioAnello_ = raggio;
    pennaAnello_ = larghezza;
    anello_.clear();
    const double fuori = raggio + larghezza / 2.0 - 1e-3; // or an even pen would be one too wide
    const double dentro = raggio - larghezza / 2.0;
    const int limite = InteroAlto(fuori);
    for (int y = -limite; y <= limite; ++y) {
        const int corda = InteroBasso(MezzaCorda(fuori, y));
        if (corda < 0) continue;
        const int buco = dentro > 0 ? InteroAlto(MezzaCorda(dentro, y)) : -1;
        if (buco <= 0) { // the hole begins beyond the middle, or there is none
            anello_.push_back({y, -corda, corda});
        } else {
            anello_.push_back({y, -corda, -std::min(buco, corda)});
            anello_.push_back({y, std::min(buco, corda), corda});
        }
    }
    return anello_;
}

void Superficie::TimbraForma(const std::vector<Corsa> &forma, Pixel c, int ingombro,
                             std::uint32_t colore) {
    if (c.x >= ingombro && c.y >= ingombro && c.x + ingombro < larghezza_ &&
        c.y + ingombro < altezza_) {
        std::uint32_t *centro = Scrivibile(c.y) + c.x;
        for (const Corsa &t : forma)
            Stendi(centro + std::ptrdiff_t{t.y} * larghezza_ + t.xDa, t.xA - t.xDa + 1, colore);
        return;
    }
    for (const Corsa &t : forma) Orizzontale(c.x + t.xDa, c.x + t.xA, c.y + t.y, colore);
}

void Superficie::Cerchio(Pixel c, int raggio, int larghezza, std::uint32_t colore) {
    raggio = std::clamp(raggio, 0, kRaggioMassimo);
    larghezza = std::clamp(larghezza, 1, kPennaMassima);
    Intingi(colore);
    const int ingombro = raggio + larghezza;
    if (c.x < -ingombro || c.y < -ingombro || c.x > larghezza_ + ingombro ||
        c.y > altezza_ + ingombro)
        return;
    TimbraForma(raggio == 0 ? Disco(larghezza) : Anello(raggio, larghezza), c, ingombro, colore);
}

namespace {

// The two long edges of a wide line from a to b, which lies not above a.
class Fascia {
  public:
    Fascia(Pixel a, Pixel b, int larghezza) {
        const double centro = larghezza % 2 == 0 ? -0.5 : 0;
        const double dx = b.x - a.x, dy = b.y - a.y;
        const double k = larghezza / 2.0 / std::sqrt(dx * dx + dy * dy);
        const double nx = dy * k, ny = -dx * k; // to the right of the way down from a to b
        if (dy > 0) pendenza_ = dx / dy;
        sinistraDa_ = a.y + centro - ny;
        destraDa_ = a.y + centro + ny;
        if (dy > 0) sinistraA_ = b.y + centro - ny;
        if (dy > 0) destraA_ = b.y + centro + ny;
        sinistra_ = a.x + centro - nx;
        destra_ = a.x + centro + nx;
    }
    // Whether the row meets the edge, and in which pixel.
    bool ASinistra(int y) const { return y >= sinistraDa_ && y <= sinistraA_; }
    bool ADestra(int y) const { return y >= destraDa_ && y <= destraA_; }
    int Sinistra(int y) const { return AltoNeiLimiti(sinistra_ + (y - sinistraDa_) * pendenza_); }
    int Destra(int y) const { return BassoNeiLimiti(destra_ + (y - destraDa_) * pendenza_); }

  private:
    static constexpr double kMai = -1e300; // the ends of a level line's edges, which no row meets
    double sinistra_, destra_, pendenza_ = 0;
    double sinistraDa_, sinistraA_ = kMai, destraDa_, destraA_ = kMai;
};

} // namespace

void Superficie::Intingi(std::uint32_t colore) {
    if (colore == colore_) return;
    colore_ = colore;
    ++giro_;
}

// Neighbouring shells share a side, and often a bar with it. Remembers the line; the table forgets
// when another one takes its place. It is small, to stay in the cache: far ends are not remembered.
bool Superficie::GiaTracciata(Pixel a, Pixel b, int larghezza) {
    constexpr std::uint32_t kBitPosti = 14;
    constexpr int kLontano = 1 << 15;
    for (const int v : {a.x, a.y, b.x, b.y})
        if (v < -kLontano || v >= kLontano) return false;
    if (tracciate_.empty()) tracciate_.resize(std::size_t{1} << kBitPosti);
    const auto insieme = [](Pixel p) {
        return static_cast<std::uint32_t>(p.x & 0xFFFF) | static_cast<std::uint32_t>(p.y) << 16;
    };
    const std::uint32_t da = insieme(a), fino = insieme(b);
    const std::uint32_t chiave = (da * 0x9E3779B1u ^ fino) * 0x85EBCA6Bu;
    Tracciata &t = tracciate_[chiave >> (32 - kBitPosti)];
    if (t.giro == giro_ && t.da == da && t.fino == fino && t.larghezza == larghezza) return true;
    t = {da, fino, larghezza, giro_};
    return false;
}

bool Superficie::BandaInVista(Pixel a, Pixel b, int larghezza) const {
    return std::max(a.x, b.x) >= -larghezza && std::min(a.x, b.x) <= larghezza_ + larghezza &&
           std::max(a.y, b.y) >= -larghezza && std::min(a.y, b.y) <= altezza_ + larghezza;
}

// The band between two discs is convex: every row of it is one run, whose ends are the outermost
// of the two discs and of the two long edges that touch both. Rows between the discs have their
// ends on the edges alone. `a` lies not below `b`; calls riga(first x, last x, y) for the rows of
// the surface.
template <class Scrivi>
void Superficie::PercorriBanda(Pixel a, Pixel b, int larghezza, Scrivi riga) {
    const std::vector<Corsa> &disco = Disco(larghezza);
    const Fascia fascia(a, b, larghezza);
    const int sopra = disco.front().y, sotto = disco.back().y;
    const auto righe = [&](int da, int fino, auto fai) {
        fino = std::min(fino, altezza_ - 1);
        for (int y = std::max(da, 0); y <= fino; ++y) fai(y);
    };
    const auto capo = [&](int y) { // with a part of one disc or both
        int xDa = INT_MAX, xA = INT_MIN;
        const auto comprendi = [&](int x, int i) {
            if (i < 0 || i > sotto - sopra) return;
            const Corsa &t = disco[static_cast<std::size_t>(i)];
            xDa = std::min(xDa, x + t.xDa);
            xA = std::max(xA, x + t.xA);
        };
        comprendi(a.x, y - a.y - sopra);
        comprendi(b.x, y - b.y - sopra);
        if (fascia.ASinistra(y)) xDa = std::min(xDa, fascia.Sinistra(y));
        if (fascia.ADestra(y)) xA = std::max(xA, fascia.Destra(y));
        riga(xDa, xA, y);
    };
    const int finoA = std::min(a.y + sotto, b.y + sotto), daB = std::max(b.y + sopra, finoA + 1);
    righe(a.y + sopra, finoA, capo);
    righe(finoA + 1, daB - 1, [&](int y) { riga(fascia.Sinistra(y), fascia.Destra(y), y); });
    righe(daB, b.y + sotto, capo);
}

void Superficie::LineaLarga(Pixel a, Pixel b, int larghezza, std::uint32_t colore) {
    larghezza = std::clamp(larghezza, 1, kPennaMassima);
    if (!BandaInVista(a, b, larghezza)) return;
    Intingi(colore);
    if (a == b) {
        TimbraForma(Disco(larghezza), a, larghezza, colore);
        return;
    }
    if (a.y > b.y || (a.y == b.y && a.x > b.x)) std::swap(a, b);
    if (GiaTracciata(a, b, larghezza)) return;
    PercorriBanda(a, b, larghezza,
                  [&](int xDa, int xA, int y) { Orizzontale(xDa, xA, y, colore); });
}

// The wide line, cut straight across its longer direction where the pattern is dark: its long edges
// are those of the line without gaps. The round cap before the first pixel belongs to it.
void Superficie::LineaLargaATrattini(Pixel a, Pixel b, int larghezza, std::uint32_t colore,
                                     const Trattini &t) {
    larghezza = std::clamp(larghezza, 1, kPennaMassima);
    if (a == b) return LineaLarga(a, b, larghezza, colore);
    if (!BandaInVista(a, b, larghezza)) return;
    Intingi(colore);
    if (a.y > b.y || (a.y == b.y && a.x > b.x)) std::swap(a, b);
    const auto fase = [&t](int passo) { return std::max(passo, 0) % t.periodo; };
    if (b.y - a.y > std::abs(b.x - a.x)) {
        PercorriBanda(a, b, larghezza, [&](int xDa, int xA, int y) {
            if (t.bit[static_cast<std::size_t>(fase(y - a.y))]) Orizzontale(xDa, xA, y, colore);
        });
        return;
    }
    const int inizio = std::min(a.x, b.x);
    PercorriBanda(a, b, larghezza, [&](int xDa, int xA, int y) {
        xDa = std::max(xDa, 0);
        xA = std::min(xA, larghezza_ - 1);
        std::uint32_t *riga = Scrivibile(y);
        int f = fase(xDa - inizio);
        for (int x = xDa; x <= xA; ++x) {
            if (t.bit[static_cast<std::size_t>(f)]) riga[x] = colore;
            if (x >= inizio && ++f == t.periodo) f = 0;
        }
    });
}

} // namespace telva
