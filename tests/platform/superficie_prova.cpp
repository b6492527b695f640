// Shapes drawn at random against the plain geometric definition of each of them.
#include "platform/superficie.h"
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <random>

namespace telva::prove {
namespace {

constexpr std::uint32_t kColore = 7;
constexpr int kMargine = 100; // around the part that is compared with the whole

enum class Genere { Linea, ATrattini, Larga, LargaATrattini, Cerchio, Timbro };
constexpr const char *kNomi[] = {"line",   "dashed line", "wide line", "wide dashed line",
                                 "circle", "stamp"};

struct Forma {
    Genere genere;
    Pixel a, b; // the ends; of a circle: its centre, twice
    int penna = 1, raggio = 0;
    Trattini trattini = {};

    void Disegna(Superficie &s, int margine = 0) const {
        const Pixel da{a.x + margine, a.y + margine}, fino{b.x + margine, b.y + margine};
        s.Riempi(0);
        switch (genere) {
        case Genere::Linea: s.Linea(da, fino, kColore); break;
        case Genere::ATrattini: s.LineaATrattini(da, fino, kColore, trattini); break;
        case Genere::Larga: s.LineaLarga(da, fino, penna, kColore); break;
        case Genere::LargaATrattini:
            s.LineaLargaATrattini(da, fino, penna, kColore, trattini);
            break;
        case Genere::Cerchio: s.Cerchio(da, raggio, penna, kColore); break;
        case Genere::Timbro: { // of a line from its origin
            Tratti tratto;
            tratto.Aggiungi(0, 0, b.x - a.x, b.y - a.y);
            Timbro timbro;
            timbro.Riempi(tratto, 0, 0);
            s.Timbra(timbro, da, kColore);
        }
        }
    }
    // How far the pixel lies beyond the shape's reach; negative inside.
    double Oltre(Pixel p) const {
        return genere == Genere::Linea     ? OltreLaLinea(p)
               : genere == Genere::Cerchio ? OltreIlCerchio(p)
                                           : OltreLaBanda(p);
    }

  private:
    // Seen from the middle of the line, where even far ends leave exact numbers.
    double MezzoX() const { return (double(a.x) + b.x) / 2; }
    double MezzoY() const { return (double(a.y) + b.y) / 2; }
    // Half a pixel across the longer direction, between the ends; doubled.
    double OltreLaLinea(Pixel p) const {
        const double dx = b.x - a.x, dy = b.y - a.y, qx = p.x - MezzoX(), qy = p.y - MezzoY();
        const bool lungoX = std::abs(dx) >= std::abs(dy);
        const double lungo = std::abs(lungoX ? dx : dy);
        if (2 * std::abs(lungoX ? qx : qy) > lungo) return 1;
        return 2 * std::abs(qx * dy - qy * dx) - lungo;
    }
    // The middle of an even pen lies half a pixel up and left.
    double OltreLaBanda(Pixel p) const {
        const double centro = penna % 2 == 0 ? -0.5 : 0;
        const double dx = b.x - a.x, dy = b.y - a.y, l2 = dx * dx + dy * dy;
        const double qx = p.x - MezzoX() - centro, qy = p.y - MezzoY() - centro;
        const double k = l2 > 0 ? std::clamp((qx * dx + qy * dy) / l2, -0.5, 0.5) : 0;
        return std::hypot(qx - k * dx, qy - k * dy) - penna / 2.0;
    }
    double OltreIlCerchio(Pixel p) const {
        return std::abs(std::hypot(p.x - a.x, p.y - a.y) - raggio) - penna / 2.0;
    }
};

std::ostream &operator<<(std::ostream &s, const Forma &f) {
    return s << kNomi[static_cast<int>(f.genere)] << " from (" << f.a.x << "," << f.a.y << ") to ("
             << f.b.x << "," << f.b.y << "), pen " << f.penna << ", radius " << f.raggio;
}

struct SuperficieProva : ::testing::Test {
    std::mt19937 sorte{1};

    int Fra(int da, int a) { return std::uniform_int_distribution(da, a)(sorte); }

    // Around or beside a surface of 40 pixels; now and then upright, level or a single point.
    Forma FormaACaso(Genere genere) {
        const Pixel a{Fra(-80, 120), Fra(-80, 120)};
        const bool livellata = Fra(0, 6) == 0, ritta = Fra(0, 6) == 0;
        Pixel b{ritta ? a.x : a.x + Fra(-120, 120), livellata ? a.y : a.y + Fra(-120, 120)};
        b = {std::clamp(b.x, -80, 120), std::clamp(b.y, -80, 120)};
        if (genere == Genere::Cerchio)
            return {.genere = genere,
                    .a = {a.x / 2, a.y / 2},
                    .b = {a.x / 2, a.y / 2},
                    .penna = Fra(1, 11),
                    .raggio = Fra(1, 25)};
        const Trattini t{static_cast<std::uint32_t>(sorte()), Fra(1, 32)};
        return {.genere = genere, .a = a, .b = b, .penna = Fra(2, 12), .trattini = t};
    }
    // Says which pixel of the surface is not as the rule wants it.
    template <class Regola>
    static ::testing::AssertionResult OgniPixel(const Superficie &s, const Forma &f,
                                                Regola giusto) {
        for (int y = 0; y < s.Altezza(); ++y)
            for (int x = 0; x < s.Larghezza(); ++x)
                if (const bool acceso = s.Leggi(x, y) == kColore; !giusto(Pixel{x, y}, acceso))
                    return ::testing::AssertionFailure()
                           << f << " on " << s.Larghezza() << " x " << s.Altezza() << ": pixel ("
                           << x << "," << y << ") is " << (acceso ? "lit" : "dark");
        return ::testing::AssertionSuccess();
    }
    static ::testing::AssertionResult SecondoDefinizione(const Superficie &s, const Forma &f) {
        return OgniPixel(s, f, [&](Pixel p, bool acceso) {
            return acceso ? f.Oltre(p) <= 1e-6 : f.Oltre(p) >= -1e-6;
        });
    }
};

} // namespace

TEST_F(SuperficieProva, UnaFormaRitagliataAccendeGliStessiPixelDiQuellaIntera) {
    Superficie parte, intera;
    intera.Ridimensiona(40 + 2 * kMargine, 40 + 2 * kMargine);
    for (const Genere genere : {Genere::Linea, Genere::ATrattini, Genere::Larga,
                                Genere::LargaATrattini, Genere::Cerchio, Genere::Timbro})
        for (int giro = 0; giro < 1000; ++giro) {
            const Forma f = FormaACaso(genere);
            parte.Ridimensiona(Fra(1, 40), Fra(1, 40));
            f.Disegna(parte);
            f.Disegna(intera, kMargine);
            ASSERT_TRUE(OgniPixel(parte, f, [&](Pixel p, bool acceso) {
                return acceso == (intera.Leggi(p.x + kMargine, p.y + kMargine) == kColore);
            }));
        }
}

TEST_F(SuperficieProva, OgniFormaCopreQuelCheDiceLaSuaDefinizione) {
    Superficie s;
    s.Ridimensiona(40, 33);
    for (const Genere genere : {Genere::Linea, Genere::Larga, Genere::Cerchio})
        for (int giro = 0; giro < 1500; ++giro) {
            Forma f = FormaACaso(genere);
            if (giro % 3 == 0 && genere != Genere::Cerchio) { // its ends far away
                const int lontano = 1 << Fra(6, 21);
                const int dx = Fra(-60, 60) * lontano, dy = Fra(-60, 60) * lontano;
                f.a = {Fra(0, 40) - dx, Fra(0, 33) - dy};
                f.b = {f.a.x + 2 * dx, f.a.y + 2 * dy};
            }
            f.Disegna(s);
            ASSERT_TRUE(SecondoDefinizione(s, f));
        }
}

// Equal wide lines in one colour are drawn once: whatever comes between has to make them again.
TEST_F(SuperficieProva, UnaLineaLargaRestaSopraCioCheEVenutoPrima) {
    constexpr std::uint32_t kAltro = 9;
    const Pixel a{10, 10}, b{30, 20}, mezzo{20, 15}, sopra{20, 0}, sotto{20, 29};
    const ZonaPixel tutto{0, 0, 40, 30};
    const Trattini continuo{1, 1};
    Superficie s, vuota;
    for (Superficie *superficie : {&s, &vuota}) {
        superficie->Ridimensiona(40, 30);
        superficie->Riempi(0);
    }
    const std::pair<const char *, std::function<void()>> inMezzo[] = {
        {"nothing", [] {}},
        {"the background", [&] { s.Riempi(0); }},
        {"a thin line", [&] { s.Linea(sopra, sotto, kAltro); }},
        {"a dashed line", [&] { s.LineaATrattini(sopra, sotto, kAltro, continuo); }},
        {"a wide dashed line", [&] { s.LineaLargaATrattini(sopra, sotto, 5, kAltro, continuo); }},
        {"a wide line", [&] { s.LineaLarga(sopra, sotto, 5, kAltro); }},
        {"a circle", [&] { s.Cerchio(mezzo, 0, 9, kAltro); }},
        {"another surface", [&] { s.CopiaZona(vuota, tutto); }}};
    for (const auto &[che, disegna] : inMezzo) {
        s.Riempi(0);
        s.LineaLarga(a, b, 4, kColore);
        disegna();
        s.LineaLarga(b, a, 4, kColore); // from the other end, as the neighbour's side
        EXPECT_EQ(s.Leggi(mezzo.x, mezzo.y), kColore) << "after " << che;
    }
}

} // namespace telva::prove
