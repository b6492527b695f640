#include "platform/controlli.h"
#include <gtest/gtest.h>

namespace telva::prove {
namespace {

struct PariCheConta : Pari {
    int cambi = 0;
    void Cambia(Controllo &, Campo) override { ++cambi; }
};

} // namespace

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
