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

TEST_F(RiquadroProva, LaScalaPortaLeUnitaNeiPixelEIndietro) {
    EXPECT_EQ(d.LarghezzaPixel(), 100);
    EXPECT_EQ(d.AltezzaPixel(), 50);
    EXPECT_EQ(d.UnitaPerPixel(), 2);
    EXPECT_EQ(d.XPixel(13), 11.5);
    EXPECT_EQ(d.YPixel(13), 8.5);
    EXPECT_EQ(d.XDaPixel(11.5), 13);
    EXPECT_EQ(d.YDaPixel(8.5), 13);
    bool fuori = false;
    EXPECT_EQ(d.InPixel(12.9, 12.9, fuori), (Pixel{11, 9}));
    EXPECT_EQ(d.InPixel(13, 13, fuori), (Pixel{12, 9})) << "a half goes up";
    EXPECT_FALSE(fuori);
    EXPECT_TRUE(d.ScalaImpostata());
}

TEST_F(RiquadroProva, UnaPosizioneLontanissimaSiFermaAlLimite) {
    constexpr int kLimite = 1 << 28;
    struct Caso {
        double x, y;
        Pixel atteso;
    };
    const double nan = std::nan("");
    for (const Caso &c : {Caso{.x = 1e300, .y = 0, .atteso = {kLimite, 15}},
                          {.x = -1e300, .y = 0, .atteso = {-kLimite, 15}},
                          {.x = 0, .y = 1e300, .atteso = {5, -kLimite}},
                          {.x = nan, .y = nan, .atteso = {kLimite, kLimite}}}) {
        bool fuori = false;
        EXPECT_EQ(d.InPixel(c.x, c.y, fuori), c.atteso) << "(" << c.x << "," << c.y << ")";
        EXPECT_TRUE(fuori) << "(" << c.x << "," << c.y << ")";
    }
}

TEST_F(RiquadroProva, UnaLineaAccendeIPixelDellaSuaPenna) {
    struct Caso {
        const char *che;
        double x1, y1, x2, y2;
        int penna = 1;
        Tratteggio tratto{};
        std::ptrdiff_t accesi;
    };
    for (const Caso &c :
         {Caso{.che = "a point", .x1 = 0, .y1 = 0, .x2 = 0, .y2 = 0, .accesi = 1},
          {.che = "pen 0 counts as 1", .x1 = 0, .y1 = 0, .x2 = 8, .y2 = 0, .penna = 0, .accesi = 5},
          {.che = "every second pixel",
          .x1 = 0,
          .y1 = 0,
          .x2 = 38,
          .y2 = 0,
          .tratto = {1, 2},
          .accesi = 10},
          {.che = "level, from beyond", .x1 = -1e15, .y1 = 0, .x2 = 1e15, .y2 = 0, .accesi = 100},
          {.che = "upright and wide, from beyond",
          .x1 = 4,
          .y1 = 1e15,
          .x2 = 4,
          .y2 = -1e15,
          .penna = 4,
          .accesi = 4 * 50},
          {.che = "from (-10,-10) to (30,30)",
          .x1 = -1e12,
          .y1 = -1e12,
          .x2 = 1e12,
          .y2 = 1e12,
          .accesi = 21},
          {.che = "beyond the left edge",
          .x1 = -1e12,
          .y1 = -1e12,
          .x2 = -1e12,
          .y2 = 1e12,
          .accesi = 0},
          {.che = "beyond the upper edge",
          .x1 = -1e12,
          .y1 = 1e11,
          .x2 = 1e12,
          .y2 = 1e11,
          .accesi = 0},
          {.che = "one end is no number",
          .x1 = 0,
          .y1 = 0,
          .x2 = std::nan(""),
          .y2 = 0,
          .accesi = 0}}) {
        d.Cls();
        d.DrawWidth = c.penna;
        d.Line(c.x1, c.y1, c.x2, c.y2, kRosso, c.tratto);
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
                if (std::abs(py - y) < 0.49) {
                    EXPECT_TRUE(acceso) << c.che << ": (" << x << "," << py << ")";
                } else if (std::abs(py - y) > 0.51) {
                    EXPECT_FALSE(acceso) << c.che << ": (" << x << "," << py << ")";
                }
            }
        }
    }
}

TEST_F(RiquadroProva, UnCerchioHaIlRaggioNelleUnitaDelDisegno) {
    d.Circle(50, 0, 20, kRosso);
    const Superficie &s = d.Immagine();
    EXPECT_EQ(s.Leggi(20, 15), kRossoPixel) << "left end";
    EXPECT_EQ(s.Leggi(40, 15), kRossoPixel) << "right end";
    EXPECT_EQ(s.Leggi(30, 5), kRossoPixel) << "top";
    EXPECT_EQ(s.Leggi(30, 15), 0u) << "centre";
    EXPECT_EQ(s.Leggi(41, 15), 0u) << "beyond";
}

TEST_F(RiquadroProva, UnCerchioLontanissimoNonSiVede) {
    d.Circle(1e300, 0, 20, kRosso);
    d.Circle(0, std::nan(""), 20, kRosso);
    EXPECT_EQ(Accesi(), 0);
}

// Glyphs of a wide pen or far from their place are drawn line by line.
TEST_F(RiquadroProva, ITrattiDiUnaLetteraConOgniPenna) {
    Tratti lettera;
    lettera.Aggiungi(0, 0, 8, -10);
    lettera.Aggiungi(8, -10, 3, 4);
    for (const int penna : {1, 3}) {
        d.Cls();
        d.DrawWidth = penna;
        d.LineeTratti(lettera, 50, 0, kRosso); // pixel (30, 15)
        const Superficie tracciata = d.Immagine();
        d.Cls();
        d.Line(50, 0, 66, 20, kRosso);
        d.Line(66, 20, 56, -8, kRosso);
        EXPECT_TRUE(std::equal(tracciata.Riga(0), tracciata.Riga(50), d.Immagine().Riga(0)))
            << "pen " << penna;
    }
}

TEST_F(RiquadroProva, IlFondoHaIlSuoColoreELaMisuraDelRiquadro) {
    d.BackColor = 0x102030;
    d.Width = 600;
    d.Cls();
    EXPECT_EQ(d.Immagine().Larghezza(), 40);
    EXPECT_EQ(d.Immagine().Altezza(), 50);
    EXPECT_EQ(d.Immagine().Leggi(39, 49), 0x302010u);
    EXPECT_EQ(d.UnitaPerPixel(), 5) << "the same units on fewer pixels";
}

struct ElasticiVisti : RiquadroProva {
    ElasticiVisti() {
        d.Shape.Left = 20; // pixels (15,5) to (65,25)
        d.Shape.Top = 20;
        d.Shape.Width = 100;
        d.Shape.Height = 40;
        d.LineSposta.X1 = 0; // pixels (5,40) to (20,40)
        d.LineSposta.Y1 = -50;
        d.LineSposta.X2 = 30;
        d.LineSposta.Y2 = -50;
    }
    // True when the rubber bands cover the pixel.
    bool Coperto(Pixel p) {
        Superficie composta;
        d.ComponiElastici(composta, {0, 0, 100, 50});
        return composta.Leggi(p.x, p.y) != d.Immagine().Leggi(p.x, p.y);
    }
};

TEST_F(ElasticiVisti, SiVedonoSoloDoveSono) {
    struct Caso {
        const char *dove;
        Pixel p;
        bool rettangolo, segmento;
    };
    for (const Caso &c :
         {Caso{.dove = "upper left corner", .p = {15, 5}, .rettangolo = true, .segmento = false},
          {.dove = "upper right corner", .p = {65, 5}, .rettangolo = true, .segmento = false},
          {.dove = "lower right corner", .p = {65, 25}, .rettangolo = true, .segmento = false},
          {.dove = "lower left corner", .p = {15, 25}, .rettangolo = true, .segmento = false},
          {.dove = "middle of the right side",
          .p = {65, 15},
          .rettangolo = true,
          .segmento = false},
          {.dove = "middle of the rectangle",
          .p = {40, 15},
          .rettangolo = false,
          .segmento = false},
          {.dove = "first end", .p = {5, 40}, .rettangolo = false, .segmento = true},
          {.dove = "second end", .p = {20, 40}, .rettangolo = false, .segmento = true},
          {.dove = "beyond the segment", .p = {26, 40}, .rettangolo = false, .segmento = false}}) {
        d.Shape.Visible = true;
        d.LineSposta.Visible = false;
        EXPECT_EQ(Coperto(c.p), c.rettangolo) << c.dove << " of the rectangle's picture";
        d.Shape.Visible = false;
        d.LineSposta.Visible = true;
        EXPECT_EQ(Coperto(c.p), c.segmento) << c.dove << " of the segment's picture";
    }
}

TEST_F(ElasticiVisti, NonRestanoNelDisegno) {
    const Superficie prima = d.Immagine();
    d.Shape.Visible = d.LineSposta.Visible = true;
    Superficie composta;
    d.ComponiElastici(composta, {0, 0, 100, 50});
    EXPECT_TRUE(std::equal(prima.Riga(0), prima.Riga(50), d.Immagine().Riga(0)));
}

} // namespace telva::prove
