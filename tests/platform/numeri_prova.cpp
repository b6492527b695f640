#include "platform/numeri.h"
#include <gtest/gtest.h>
namespace telva::prove {
TEST(Numeri, OgniRegolaDiLetturaEDiArrotondamento) {
    std::string letti; // value, "!" when the text is nothing but that number
    for (const char *testo : {"", " 12.5\t", "12abc", "1 2\t3", "- .5x", "+7", "5.", ".", "1D+2",
                              "2e+", "+-1", "nan", "-inf", "0x10", "1,5", "1e-400", "-1e-7"})
        letti += TestoNumero(ValoreNumerico(testo)) + (NumeroStretto(testo) ? "! " : " ");
    EXPECT_EQ(letti, "0 12.5! 12 123 -0.5 7! 5! 0 100! 2 0 0 0 0 1 0! -0.0000001! ");
    letti.clear();
    for (const double v : {0.5, 1.5, 2.5, -0.5, -1.5, -2.5, 0.49999999999999994, 2.5000001})
        letti += TestoNumero(ArrotondaPari(v)) + "/" + TestoNumero(ParteIntera(v)) + " ";
    EXPECT_EQ(letti, "0/0 2/1 2/2 0/-1 -2/-2 -2/-3 0/0 3/2 ");
}
} // namespace telva::prove
