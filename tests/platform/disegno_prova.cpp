#include "platform/disegno.h"
#include <gtest/gtest.h>
using namespace telva;

TEST(RiquadroDisegno, ScalaPenneLontanezzeEdElastici) {
    Modulo modulo{"prova"};
    RiquadroDisegno d{&modulo, "Disegno"}; // 100 x 50 pixels of 2 units
    d.Width = 1500, d.Height = 750;
    d.Scale(-10, 30, 190, -70);
    const Superficie &s = d.Immagine();
    const auto traccia = [&](double x1, double y1, double x2, double y2, int penna, Tratteggio t) {
        d.Cls(), d.DrawWidth = penna, d.Line(x1, y1, x2, y2, 0x0000FF, t);
        return std::count(s.Riga(0), s.Riga(50), 0xFF0000u); // the surface has 0x00RRGGBB
    };
    EXPECT_EQ(traccia(-1e15, 0, 1e15, 0, 1, {}), 100);
    EXPECT_EQ(traccia(4, 1e15, 4, -1e15, 4, {}), 4 * 50);
    EXPECT_EQ(traccia(-1e12, -1e12, 1e12, 1e12, 1, {}), 21); // from (-10,-10) to (30,30)
    EXPECT_EQ(traccia(0, 0, 38, 0, 1, {1, 2}), 10);
    EXPECT_EQ(traccia(0, 0, 0, 0, 0, {}), 1);
    d.Circle(50, 0, 20, 0x00FF00);
    EXPECT_EQ(s.Leggi(20, 15) + s.Leggi(40, 15) - s.Leggi(30, 15) - s.Leggi(41, 15), 2 * 0x00FF00u);
    Superficie composta, prima = s;
    d.Shape.Left = 20, d.Shape.Top = 20, d.Shape.Width = 100, d.Shape.Height = 40;
    d.LineSposta.X1 = 0, d.LineSposta.Y1 = -50, d.LineSposta.X2 = 30, d.LineSposta.Y2 = -50;
    d.Shape.Visible = d.LineSposta.Visible = true;
    for (const Pixel p : {Pixel{15, 5}, {65, 5}, {65, 25}, {15, 25}, {44, 25}, {5, 40}, {20, 40}}) {
        d.ComponiElastici(composta, {0, p.y - 4, 100, 9});
        EXPECT_NE(composta.Leggi(p.x, 4), prima.Leggi(p.x, p.y)) << p.x;
        EXPECT_EQ(composta.Leggi(99, 8), prima.Leggi(99, p.y + 4)) << p.x;
    }
    EXPECT_TRUE(std::equal(prima.Riga(0), prima.Riga(50), s.Riga(0)));
}
