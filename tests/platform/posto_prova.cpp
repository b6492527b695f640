#include "platform/posto.h"

#include <gtest/gtest.h>

using namespace telva;

TEST(Posto, SiRicordaSoloUnPostoCheUnaFinestraPuoAvere) {
    constexpr std::int32_t kTroppo = 2000000;
    const struct {
        NumeriPosto numeri;
        bool buono;
    } casi[] = {
        {.numeri = {-1500, 40, 15000, 11400, 1}, .buono = true},
        {.numeri = {0, 0, 1, 1, 0}, .buono = true},
        {.numeri = {0, 0, 0, 11400, 0}, .buono = false},
        {.numeri = {0, 0, 15000, -1, 0}, .buono = false},
        {.numeri = {kTroppo, 0, 15000, 11400, 0}, .buono = false},
        {.numeri = {0, -kTroppo, 15000, 11400, 0}, .buono = false},
        {.numeri = {0, 0, kTroppo, 11400, 0}, .buono = false},
    };
    for (const auto &c : casi) {
        const auto posto = PostoDaNumeri(c.numeri);
        EXPECT_EQ(posto.has_value(), c.buono) << testing::PrintToString(c.numeri);
        EXPECT_TRUE(!posto || ANumeri(*posto) == c.numeri) << testing::PrintToString(c.numeri);
    }
}

TEST(Posto, LaMisuraNonSuperaLAreaDiLavoro) {
    const auto grande = PostoDaNumeri({7, 8, 1000000, 900000, 1});
    EXPECT_EQ(ANumeri(EntroArea(*grande, 28800, 16200)), (NumeriPosto{7, 8, 28800, 16200, 1}));
    const auto piccola = PostoDaNumeri({7, 8, 9000, 8000, 0});
    EXPECT_EQ(ANumeri(EntroArea(*piccola, 28800, 16200)), (NumeriPosto{7, 8, 9000, 8000, 0}));
}
