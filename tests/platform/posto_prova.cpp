#include "platform/posto.h"

#include <gtest/gtest.h>

using namespace telva;

TEST(Posto, SiRicordaSoloUnPostoCheUnaFinestraPuoAvere) {
    constexpr std::int32_t kTroppo = 2000000;
    const struct {
        std::int32_t left = 0, top = 0, larghezza = 15000, altezza = 11400, massimizzata = 0;
        bool buono;
    } casi[] = {
        {.left = -1500, .top = 40, .massimizzata = 1, .buono = true},
        {.larghezza = 1, .altezza = 1, .buono = true},
        {.larghezza = 0, .buono = false},
        {.altezza = -1, .buono = false},
        {.left = kTroppo, .buono = false},
        {.top = -kTroppo, .buono = false},
        {.larghezza = kTroppo, .buono = false},
    };
    for (const auto &c : casi) {
        const NumeriPosto numeri = {c.left, c.top, c.larghezza, c.altezza, c.massimizzata};
        const auto posto = PostoDaNumeri(numeri);
        EXPECT_EQ(posto.has_value(), c.buono) << testing::PrintToString(numeri);
        if (posto) {
            EXPECT_EQ(ANumeri(*posto), numeri);
        }
    }
}

TEST(Posto, LaMisuraNonSuperaLAreaDiLavoro) {
    const double kLarghezza = 28800, kAltezza = 16200;
    const PostoFinestra grande{.left = 7, .top = 8, .larghezza = 1000000, .altezza = 900000};
    EXPECT_EQ(EntroArea(grande, kLarghezza, kAltezza).larghezza, kLarghezza);
    EXPECT_EQ(EntroArea(grande, kLarghezza, kAltezza).altezza, kAltezza);
    const PostoFinestra piccola{.left = 7, .top = 8, .larghezza = 9000, .altezza = 8000};
    EXPECT_EQ(ANumeri(EntroArea(piccola, kLarghezza, kAltezza)), ANumeri(piccola));
}
