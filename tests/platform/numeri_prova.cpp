#include "platform/numeri.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace telva::prove {
namespace {

constexpr double kMax = std::numeric_limits<double>::max();

TEST(Numeri, IlValoreEQuelloDelPrefissoNumerico) {
    const std::string zeri(400, '0');
    const std::pair<std::string, double> casi[] = {
        {"", 0}, {"  12abc", 12}, {"1 2\t3", 123}, {"- .5x", -0.5}, {"+7", 7}, {"5.", 5}, {".", 0},
        {"-", 0}, {"1e3", 1000}, {"1D+2", 100}, {"1d-2", 0.01}, {"2e", 2}, {"2e+", 2}, {"--1", 0},
        {"+-1", 0}, {"nan", 0}, {"-inf", 0}, {"0x10", 0}, {"1,5", 1}, {"1e400", kMax},
        {"-1e400", -kMax}, {"1e-400", 0}, {"0." + zeri + "1", 0}, {"1" + zeri + "e-5", kMax}};
    for (const auto &[testo, atteso] : casi) EXPECT_EQ(ValoreNumerico(testo), atteso) << testo;
}

TEST(Numeri, StrettoESoloUnNumeroIntero) {
    const std::pair<const char *, std::optional<double>> casi[] = {
        {" 12.5\t", 12.5}, {"1D2", 100}, {"+3", 3}, {"", {}}, {" ", {}}, {"1 2", {}}, {"5x", {}},
        {"2e", {}}, {"nan", {}}, {"inf", {}}, {"1e400", {}}, {"1e-400", 0}};
    for (const auto &[testo, atteso] : casi) EXPECT_EQ(NumeroStretto(testo), atteso) << testo;
}

TEST(Numeri, ArrotondaLeMetaAlPariETroncaVersoMenoInfinito) {
    const std::array<double, 3> casi[] = {
        {0.5, 0, 0}, {1.5, 2, 1}, {2.5, 2, 2}, {-0.5, 0, -1}, {-1.5, -2, -2}, {-2.5, -2, -3},
        {0.49999999999999994, 0, 0}, {2.5000001, 3, 2}, {4503599627370497, 4503599627370497, 4503599627370497}};
    for (const auto &[valore, pari, intera] : casi) {
        EXPECT_EQ(ArrotondaPari(valore), pari) << valore;
        EXPECT_EQ(ParteIntera(valore), intera) << valore;
    }
    EXPECT_EQ(Intero16(-32768), -32768);
    EXPECT_EQ(Intero16(32767), 32767);
    for (double fuori : {32768.0, -32769.0, 1e300, std::nan("")}) EXPECT_FALSE(Intero16(fuori));
}

TEST(Numeri, IlTestoRidaLoStessoNumero) {
    const std::pair<double, const char *> casi[] = {
        {-0.0, "0"}, {12.5, "12.5"}, {-3, "-3"}, {1e21, "1000000000000000000000"}, {1e-7, "0.0000001"}};
    for (const auto &[valore, atteso] : casi) EXPECT_EQ(TestoNumero(valore), atteso);
    std::mt19937_64 caso(7);
    for (int n = 0; n < 2000; ++n) {
        const auto valore = std::bit_cast<double>(caso());
        if (std::isfinite(valore)) EXPECT_EQ(ValoreNumerico(TestoNumero(valore)), valore);
    }
}

} // namespace
} // namespace telva::prove
