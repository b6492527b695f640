#include "platform/controlli.h"
#include <gtest/gtest.h>

namespace telva::prove {
namespace {

struct PariCheConta : Pari {
    int cambi = 0;
    void Cambia(Controllo &, Campo) override { ++cambi; }
};

} // namespace

TEST(Controlli, ITwipDiventanoPixelInteri) {
    struct Caso {
        double twip, dpi;
        int pixel;
    };
    for (const Caso &c : {Caso{.twip = 1440, .dpi = 96, .pixel = 96},
                          {.twip = 22.4, .dpi = 96, .pixel = 1},
                          {.twip = 22.5, .dpi = 96, .pixel = 2}, // halves up
                          {.twip = -22.5, .dpi = 96, .pixel = -1},
                          {.twip = 1440, .dpi = 144, .pixel = 144}})
        EXPECT_EQ(APixel(c.twip, c.dpi), c.pixel) << c.twip << " twips at " << c.dpi;
    EXPECT_EQ(ATwip(144, 144), 1440);
}

TEST(Controlli, IlPariSenteSoloICambiamenti) {
    Modulo modulo{"m"};
    CasellaTesto casella{&modulo, "casella"};
    PariCheConta pari;
    casella.Text = "prima che si veda";
    casella.pari = &pari;
    casella.Text = "a";
    EXPECT_EQ(pari.cambi, 1);
    casella.Text = "a";
    EXPECT_EQ(pari.cambi, 1) << "the same text";
    casella.SetFocus();
    EXPECT_EQ(pari.cambi, 2);
    EXPECT_EQ(modulo.fuoco, &casella);
}

TEST(Controlli, LaRotellaRaccoglieGliScattiInteri) {
    struct Passo {
        int delta, scatti;
    };
    RaccoltaRotella rotella;
    for (const Passo &p : {Passo{.delta = 120, .scatti = 1},
                           {.delta = 60, .scatti = 0},
                           {.delta = 60, .scatti = 1},
                           {.delta = 100, .scatti = 0},
                           {.delta = -119, .scatti = 0}, // turned round: the rest is dropped
                           {.delta = -1, .scatti = -1},
                           {.delta = -360, .scatti = -3}})
        EXPECT_EQ(rotella.Aggiungi(p.delta), p.scatti) << "delta " << p.delta;
}

} // namespace telva::prove
