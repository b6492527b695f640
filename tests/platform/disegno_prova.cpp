#include "platform/disegno.h"
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>

namespace telva::prove {
namespace {

constexpr std::uint32_t kRosso = 0x0000FF, kRossoPixel = 0xFF0000; // 0x00BBGGRR, 0x00RRGGBB

// 100 x 50 pixels of 2 units, from (-10, 30) above to (190, -70) below.
struct RiquadroProva : ::testing::Test {
    Modulo modulo{"prova"};
    RiquadroDisegno d{&modulo, "Disegno"};

    RiquadroProva() {
        d.Width = 1500;
        d.Height = 750;
        d.Scale(-10, 30, 190, -70);
        d.Cls();
    }
    std::ptrdiff_t Accesi() const {
        return std::count(d.Immagine().Riga(0), d.Immagine().Riga(50), kRossoPixel);
    }
};

} // namespace

TEST_F(RiquadroProva, DiUnaLineaSmisurataSiVedeCioCheCadeNelRiquadro) {
    struct Caso {
        const char *che;
        double x1, y1, x2, y2;
        std::ptrdiff_t accesi;
        int penna = 1;
    };
    const double nan = std::nan("");
    const Caso casi[] = {
        {.che = "pen 0 is 1", .x1 = 0, .y1 = 0, .x2 = 8, .y2 = 0, .accesi = 5, .penna = 0},
        {.che = "level", .x1 = -1e15, .y1 = 0, .x2 = 1e15, .y2 = 0, .accesi = 100},
        {.che = "wide", .x1 = 4, .y1 = 1e15, .x2 = 4, .y2 = -1e15, .accesi = 4 * 50, .penna = 4},
        {.che = "slanting", .x1 = -1e12, .y1 = -1e12, .x2 = 1e12, .y2 = 1e12, .accesi = 21},
        {.che = "to the left", .x1 = -1e12, .y1 = -1e12, .x2 = -1e12, .y2 = 1e12, .accesi = 0},
        {.che = "above", .x1 = -1e12, .y1 = 1e11, .x2 = 1e12, .y2 = 1e11, .accesi = 0},
        {.che = "no number", .x1 = 0, .y1 = 0, .x2 = nan, .y2 = 0, .accesi = 0}};
    for (const Caso &c : casi) {
        d.Cls();
        d.DrawWidth = c.penna;
        d.Line(c.x1, c.y1, c.x2, c.y2, kRosso);
        EXPECT_EQ(Accesi(), c.accesi) << c.che;
    }
}

TEST_F(RiquadroProva, UnaLineaDaLontanissimoPassaDovePasserebbe) {
    struct Caso {
        const char *che;
        double x0, y0, dx, dy; // through (x0, y0)
    };
    for (const Caso &c : {Caso{.che = "flat", .x0 = 50, .y0 = -20, .dx = 1e10, .dy = 2e9},
                          {.che = "flat and falling", .x0 = 90, .y0 = 0, .dx = 1e10, .dy = -2e9},
                          {.che = "the other way", .x0 = 90, .y0 = 0, .dx = -1e10, .dy = 2e9}}) {
        d.Cls();
        d.Line(c.x0 - c.dx, c.y0 - c.dy, c.x0 + 2 * c.dx, c.y0 + 2 * c.dy, kRosso);
        for (int x = 0; x < 100; ++x) {
            const double y = d.YPixel(c.y0 + (d.XDaPixel(x) - c.x0) * c.dy / c.dx);
            for (int py = 0; py < 50; ++py) {
                const bool acceso = d.Immagine().Leggi(x, py) == kRossoPixel;
                const double oltre = std::abs(py - y) - 0.5;
                EXPECT_TRUE(std::abs(oltre) < 0.01 || acceso == (oltre < 0))
                    << c.che << ": (" << x << "," << py << ")";
            }
        }
    }
}

TEST_F(RiquadroProva, IlDisegnoTrattenutoSiFaUnaVoltaSolaAllaFine) {
    int fatti = 0;
    d.Ridisegna = [&] { ++fatti; };
    EXPECT_FALSE(d.Rimandata()) << "nothing holds it back";
    d.Trattieni();
    d.Rilascia();
    EXPECT_EQ(fatti, 0) << "none was asked for";
    d.Trattieni();
    d.Trattieni();
    EXPECT_TRUE(d.Rimandata());
    EXPECT_TRUE(d.Rimandata());
    d.Rilascia();
    EXPECT_EQ(fatti, 0) << "the outer one still holds it";
    EXPECT_TRUE(d.Rimandata());
    d.Rilascia();
    EXPECT_EQ(fatti, 1);
    d.Trattieni();
    d.Rilascia();
    EXPECT_EQ(fatti, 1) << "it is owed no more";
}

} // namespace telva::prove
