// What is shown over the picture: its zones hold every pixel that it lights.
#include "sostegno/Composta.h"

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
    void MostraRettangolo(double sinistra, double alto, double larghezza, double altezza) {
        d.Shape.Left = sinistra;
        d.Shape.Top = alto;
        d.Shape.Width = larghezza;
        d.Shape.Height = altezza;
        d.Shape.Visible = true;
    }
    void MostraLinea(double x1, double y1, double x2, double y2) {
        d.LineSposta.X1 = x1;
        d.LineSposta.Y1 = y1;
        d.LineSposta.X2 = x2;
        d.LineSposta.Y2 = y2;
        d.LineSposta.Visible = true;
    }
    Superficie Mostrata() { return Composta(d, {0, 0, 300, 200}); }
    // Pixels of the window that are wrong once it has shown each zone over the picture.
    std::ptrdiff_t FuoriDalleZone() {
        Superficie finestra = d.Immagine();
        const auto mostra = [&](const Superficie &parte, const ZonaPixel &z) {
            for (int y = 0; y < z.altezza; ++y)
                std::copy_n(parte.Riga(y), z.larghezza, finestra.Riga(z.y + y) + z.x);
        };
        d.ComponiElastici(d.ZoneElastici(), mostra);
        return PixelDiversi(finestra, Mostrata());
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
        for (int linee = giro % 4 == 0 ? 40 : 1; linee > 0; --linee) // a chain, or one element
            sagoma.linee.push_back({fra(-lontano, lontano), fra(-lontano, lontano),
                                    fra(-lontano, lontano), fra(-lontano, lontano)});
        sagoma.cerchi.push_back({fra(-20, 320), fra(-20, 220), fra(0, 30)});
        d.Anteprima = sagoma;
        MostraRettangolo(fra(-50, 300), fra(0, 250), fra(0, 400), fra(0, 300));
        d.Shape.Visible = giro % 2 == 0;
        MostraLinea(fra(-50, 350), fra(-50, 250), fra(-50, 350), fra(-50, 250));
        d.LineSposta.Visible = giro % 7 == 0;
        EXPECT_EQ(FuoriDalleZone(), 0) << "round " << giro;
        EXPECT_LE(d.ZoneElastici().size(), 16u) << "round " << giro;
    }
}

TEST_F(ElasticiProva, DentroUnRettangoloNienteSiRifa) {
    MostraRettangolo(10, 190, 280, 180);
    int pixel = 0;
    for (const ZonaPixel &z : d.ZoneElastici()) pixel += z.larghezza * z.altezza;
    EXPECT_LT(pixel, 300 * 200 / 8);
}

TEST_F(ElasticiProva, UnaParteEUgualeAllaStessaParteDelTutto) {
    d.Anteprima = Sagoma{.linee = {{5, 5, 290, 170}}, .cerchi = {}};
    MostraRettangolo(30, 150, 200, 100);
    const Superficie tutto = Mostrata();
    const ZonaPixel zona{40, 30, 120, 90};
    const Superficie parte = Composta(d, zona);
    ASSERT_EQ(parte.Larghezza(), zona.larghezza);
    for (int y = 0; y < zona.altezza; ++y)
        for (int x = 0; x < zona.larghezza; ++x)
            ASSERT_EQ(parte.Leggi(x, y), tutto.Leggi(zona.x + x, zona.y + y)) << x << ", " << y;
}

} // namespace telva::prove
