// What is shown over the picture: where it lights pixels, and that its zones hold them all.
#include "platform/disegno.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace telva::prove {

struct ElasticiProva : ::testing::Test {
    Modulo modulo{"prova"};
    RiquadroDisegno d{&modulo, "Disegno"};
    ElasticiProva() {
        d.Width = 4500; // 300 x 200 pixels, one unit each, y upwards from the lower edge
        d.Height = 3000;
        d.Scale(0, 200, 300, 0);
        d.BackColor = 0x808080;
        d.Cls();
    }
    Superficie Mostrata() {
        Superficie tutto;
        d.ComponiElastici(tutto, {0, 0, 300, 200});
        return tutto;
    }
    // Pixels that differ from the picture: inside the zones, and outside them.
    struct Conto {
        int dentro = 0, fuori = 0;
    };
    Conto Conta() {
        const std::vector<ZonaPixel> zone = d.ZoneElastici();
        const Superficie mostrata = Mostrata();
        Conto conto;
        for (int y = 0; y < 200; ++y)
            for (int x = 0; x < 300; ++x) {
                if (mostrata.Leggi(x, y) == d.Immagine().Leggi(x, y)) continue;
                const bool dentro = std::ranges::any_of(zone, [&](const ZonaPixel &z) {
                    return x >= z.x && x < z.x + z.larghezza && y >= z.y && y < z.y + z.altezza;
                });
                ++(dentro ? conto.dentro : conto.fuori);
            }
        return conto;
    }
    int PixelDelleZone() {
        int somma = 0;
        for (const ZonaPixel &z : d.ZoneElastici()) somma += z.larghezza * z.altezza;
        return somma;
    }
};

TEST_F(ElasticiProva, LeZoneTengonoOgniPixelCheCambia) {
    std::mt19937 sorte(1);
    const auto fra = [&](int da, int a) {
        return double(std::uniform_int_distribution(da, a)(sorte));
    };
    for (int giro = 0; giro < 300; ++giro) {
        modulo.dpi = giro % 3 == 0 ? 192 : 96;
        d.Width = 300 * 1440 / modulo.dpi;
        d.Height = 200 * 1440 / modulo.dpi;
        const int lontano = giro % 5 == 0 ? 1000000 : 400; // ends far outside, too
        Sagoma sagoma;
        sagoma.linee.push_back({fra(-lontano, lontano), fra(-lontano, lontano),
                                fra(-lontano, lontano), fra(-lontano, lontano)});
        sagoma.cerchi.push_back({fra(-20, 320), fra(-20, 220), fra(0, 30)});
        d.Anteprima = sagoma;
        d.Shape.Left = fra(-50, 300);
        d.Shape.Top = fra(0, 250);
        d.Shape.Width = fra(0, 400);
        d.Shape.Height = fra(0, 300);
        d.Shape.Visible = giro % 2 == 0;
        d.LineSposta.X1 = fra(-50, 350);
        d.LineSposta.Y1 = fra(-50, 250);
        d.LineSposta.X2 = fra(-50, 350);
        d.LineSposta.Y2 = fra(-50, 250);
        d.LineSposta.Visible = giro % 7 == 0;
        EXPECT_EQ(Conta().fuori, 0) << "round " << giro;
    }
}

TEST_F(ElasticiProva, UnRettangoloGrandeNonRidipingeIlSuoInterno) {
    d.Shape.Left = 10;
    d.Shape.Top = 190;
    d.Shape.Width = 280;
    d.Shape.Height = 180;
    d.Shape.Visible = true;
    EXPECT_GT(Conta().dentro, 2 * (280 + 180)) << "its sides are seen";
    EXPECT_LT(PixelDelleZone(), 300 * 200 / 4);
}

TEST_F(ElasticiProva, UnaLineaObliquaNonRidipingeIlSuoRettangolo) {
    d.LineSposta.X1 = 0;
    d.LineSposta.Y1 = 0;
    d.LineSposta.X2 = 299;
    d.LineSposta.Y2 = 199;
    d.LineSposta.Visible = true;
    EXPECT_LT(PixelDelleZone(), 300 * 200 / 2);
}

TEST_F(ElasticiProva, AnteprimaBiancaSuNero) {
    d.Anteprima = Sagoma{.linee = {{20, 100, 280, 100}}, .cerchi = {{150, 50, 10}}};
    const Superficie s = Mostrata();
    const int linea = 100, cerchio = 150; // rows, from the top
    EXPECT_EQ(s.Leggi(150, linea), 0xFFFFFFu) << "the line";
    EXPECT_EQ(s.Leggi(150, linea - 3), 0x202020u) << "its edge";
    EXPECT_EQ(s.Leggi(150, linea - 6), 0x808080u) << "the picture beside it";
    EXPECT_EQ(s.Leggi(150 + 10, cerchio), 0xFFFFFFu) << "the circle";
    EXPECT_EQ(s.Leggi(150, cerchio), 0x808080u) << "the middle of the circle";
    d.Anteprima = Sagoma{};
    EXPECT_FALSE(d.ElasticiVisibili());
    EXPECT_EQ(Conta().dentro, 0);
}

TEST_F(ElasticiProva, UnaParteEUgualeAllaStessaParteDelTutto) {
    d.Anteprima = Sagoma{.linee = {{5, 5, 290, 170}}, .cerchi = {}};
    d.Shape.Left = 30;
    d.Shape.Top = 150;
    d.Shape.Width = 200;
    d.Shape.Height = 100;
    d.Shape.Visible = true;
    const Superficie tutto = Mostrata();
    const ZonaPixel zona{40, 30, 120, 90};
    Superficie parte;
    d.ComponiElastici(parte, zona);
    ASSERT_EQ(parte.Larghezza(), zona.larghezza);
    for (int y = 0; y < zona.altezza; ++y)
        for (int x = 0; x < zona.larghezza; ++x)
            ASSERT_EQ(parte.Leggi(x, y), tutto.Leggi(zona.x + x, zona.y + y)) << x << ", " << y;
}

} // namespace telva::prove
